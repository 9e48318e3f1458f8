// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "opening/applicationdialog.h"
#include "opening/associations.h"
#include "testapplication.h"

#include <veskfm/mimerelatedsettings.h>

#include <QtWidgets>

#include <QtTest>

using namespace VeskFM;

/// The dialog of the opening service, in this process.
class ApplicationDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensAndRemembers_data();
    void opensAndRemembers();
    void staysUntilSomethingStarts_data();
    void staysUntilSomethingStarts();
    void setsTheDefaultOfANamedType();
    void offersWhatOpensAllTypes();

private:
    QPointer<ApplicationDialog> show(const EntryList &entries)
    {
        return new ApplicationDialog(openTargets(entries), LaunchContext::fromOptions({}));
    }
    static void select(QDialog *dialog, const QString &name)
    {
        auto *const tree = dialog->findChild<QTreeWidget *>();
        tree->setCurrentItem(tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0));
    }
    static QStringList fitting(QDialog *dialog)
    {
        QStringList names;
        const QTreeWidgetItem *const group = dialog->findChild<QTreeWidget *>()->topLevelItem(0);
        for (int i = 0; i < group->childCount(); ++i)
            names.append(group->child(i)->text(0));
        return names;
    }
    static QLineEdit *command(QDialog *dialog) { return dialog->findChildren<QLineEdit *>().last(); }
    static void press(QDialog *dialog, QDialogButtonBox::StandardButton button)
    {
        dialog->findChild<QDialogButtonBox *>()->button(button)->click();
    }
    static QString defaultName(const char *type)
    {
        return Associations::describe(Associations::defaultFor(type).get()).name();
    }

    TestTree m_tree;
    TestApplication m_viewer{&m_tree, "viewer"};
    TestApplication m_editor{&m_tree, "editor", "Exec=@ %F\nMimeType=text/plain;test/x;\n"};
    TestApplication m_other{&m_tree, "other", "Exec=@ %F\n"};
};

void ApplicationDialogTest::opensAndRemembers_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("byCommand");
    QTest::addColumn<bool>("always");
    QTest::newRow("one of the type, once") << "viewer" << false << false;
    QTest::newRow("one of no type, always") << "other" << false << true;
    QTest::newRow("a command, always") << "viewer" << true << true;
}

void ApplicationDialogTest::opensAndRemembers()
{
    QFETCH(QString, name);
    QFETCH(bool, byCommand);
    QFETCH(bool, always);
    Associations::reset("text/plain");
    const QString before = defaultName("text/plain");
    const QPointer<ApplicationDialog> dialog = show(EntryList(m_tree.add("a.txt", "text")));
    QSignalSpy finished(dialog, &QDialog::finished);
    if (byCommand)
        command(dialog)->setText(m_tree.path(name));
    else
        select(dialog, name);
    dialog->findChild<QCheckBox *>()->setChecked(always);
    dialog->resize(500, 501);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(finished.value(0), QVariantList{int(QDialog::Accepted)});
    QTRY_VERIFY(!dialog);
    QCOMPARE(MimeRelatedSettings().applicationDialogSize(), QSize(500, 501));
    QVERIFY((name == "other" ? m_other : m_viewer).takeStart().endsWith("/a.txt>\n"));
    QCOMPARE(defaultName("text/plain"), always ? name : before);
}

void ApplicationDialogTest::staysUntilSomethingStarts_data()
{
    QTest::addColumn<QString>("commandLine");
    QTest::newRow("nothing chosen") << "";
    QTest::newRow("no such program") << "/no/such/program %F";
    QTest::newRow("unbalanced quotes") << "viewer \"x";
}

void ApplicationDialogTest::staysUntilSomethingStarts()
{
    QFETCH(QString, commandLine);
    const QString before = defaultName("text/plain");
    const QPointer<ApplicationDialog> dialog = show(EntryList(m_tree.add("a.txt", "text")));
    select(dialog, {});
    command(dialog)->setText(commandLine);
    dialog->findChild<QCheckBox *>()->setChecked(true);
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog && dialog->isVisible());
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    QVERIFY(std::all_of(labels.begin(), labels.end(), [](const QLabel *label) { return label->isVisible(); }));
    press(dialog, QDialogButtonBox::Cancel);
    QTRY_VERIFY(!dialog);
    QCOMPARE(defaultName("text/plain"), before);
}

void ApplicationDialogTest::setsTheDefaultOfANamedType()
{
    const QPointer<ApplicationDialog> dialog = show({});
    auto *const type = dialog->findChildren<QLineEdit *>().first();
    type->setText("image/svg+xml");
    select(dialog, "other");
    press(dialog, QDialogButtonBox::Ok);
    QTRY_VERIFY(!dialog);
    QCOMPARE(defaultName("image/svg+xml"), QString("other"));
    QCOMPARE(m_other.starts(), QByteArray());
}

void ApplicationDialogTest::offersWhatOpensAllTypes()
{
    Associations::reset("text/plain");
    const QPointer<ApplicationDialog> dialog(
        new ApplicationDialog({{"a", "text/plain", "file:///a"}, {"b", "test/x", "file:///b"}}, {}));
    QCOMPARE(fitting(dialog), QStringList("editor"));
    dialog->close();
}

QTEST_MAIN(ApplicationDialogTest)

#include "applicationdialogtest.moc"
