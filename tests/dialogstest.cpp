// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "findwindow.h"
#include "propertiesdialog.h"
#include "recordingplugin.h"
#include "selectiondescription.h"
#include "settingsdialog.h"
#include "testtree.h"
#include "wildcard.h"

#include <veskfm/corepluginsmanager.h>
#include <veskfm/settings.h>

#include <QtTest>
#include <QtWidgets>

using namespace VeskFM;

namespace
{

QSemaphore entered, mayGoOn;

/// What dialogs must be safe from: a digest that looks at no flag, and a page that throws.
struct BadPlugin : RecordingPlugin
{
    using RecordingPlugin::RecordingPlugin;
    bool hasTextDigest() override { return true; }
    QString textDigest(const EntryList &, bool *) override
    {
        entered.release();
        mayGoOn.acquire();
        return QStringLiteral("5 words");
    }
    bool hasPropsWidgetFor(const EntryList &) override { return true; }
    PropsPluginWidget *createPropsWidget(const EntryList &, QWidget *) override { throw std::runtime_error("bad"); }
};

} // namespace

// Stands in front of the library's: these are the plug-ins that there are.
QList<PropsPlugin *> CorePluginsManager::propsPlugins() const
{
    static BadPlugin bad(0);
    static QPluginLoader loader(QCoreApplication::applicationDirPath() + "/../plugin-dir/fileinfo.so");
    return {&bad, qobject_cast<PropsPlugin *>(loader.instance())};
}

class DialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matchesNames_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("matching");
        QTest::addColumn<QStringList>("others");
        using Names = QStringList;
        QTest::newRow("end") << "*.jpg" << Names{"a.JPG", ".jpg", "a\n.jpg"} << Names{"a.jpg~", "jpg", ""};
        QTest::newRow("middle") << "a*bc*bc" << Names{"abcbc", "axbcbcbc"} << Names{"abc", "abcb"};
        QTest::newRow("whole") << "Ünï" << Names{"üNÏ"} << Names{"ün", "üns", "xünï"};
        QTest::newRow("one") << "?.?" << Names{"a.b", QString::fromUtf8("😀.é")} << Names{".b", "ab.c"};
        QTest::newRow("set") << "[x-zA][!0-9]" << Names{"yb", "a-", "X]"} << Names{"bb", "a1", "y"};
        QTest::newRow("set with a bracket") << "[]]*" << Names{"]"} << Names{"[", "[]"};
        QTest::newRow("no set") << "[a*" << Names{"[A", "[ab"} << Names{"a"};
        QTest::newRow("stars") << "**a**" << Names{"a", "bab"} << Names{"", "b"};
    }

    void matchesNames()
    {
        QFETCH(QString, pattern);
        QFETCH(QStringList, matching);
        QFETCH(QStringList, others);
        const Wildcard wildcard(pattern);
        const auto matches = [&wildcard](const QString &name) { return wildcard.matches(name); };
        QVERIFY(std::all_of(matching.cbegin(), matching.cend(), matches));
        QVERIFY(std::none_of(others.cbegin(), others.cend(), matches));
    }

    void finds()
    {
        TestTree tree({"sub/d.jpg", "sub/.hidden.png"});
        tree.add("sub/b.png", QByteArray(3000, 'x'));
        tree.add("notes.PNG", QByteArray(128 * 1024 - 3, 'x') + "needle"); // across the pieces that are read
        FindWindow window(tree.entry());
        QSignalSpy finished(&window, &FindWindow::searchFinished);
        const QAbstractItemModel *const results = window.findChild<QTableView *>("results")->model();
        const auto found = [&](const char *names, const char *text, int kilobytes) {
            window.findChild<QLineEdit *>("names")->setText(names);
            window.findChild<QLineEdit *>("text")->setText(text);
            window.findChild<QSpinBox *>("most")->setValue(kilobytes);
            window.find();
            QSet<QString> rows;
            for (int row = finished.wait() ? 0 : INT_MAX; row < results->rowCount(); ++row)
                rows += results->index(row, 0).data().toString();
            return rows;
        };
        QCOMPARE(found("*.png; *.jpg", "", -1), QSet<QString>({"b.png", "d.jpg", "notes.PNG"}));
        QCOMPARE(found("png", "", 100), QSet<QString>({"b.png"}));
        QCOMPARE(found("", "NEEDLE", -1), QSet<QString>({"notes.PNG"}));
        window.findChild<QLineEdit *>("where")->setText("/");
        window.find();
        window.reject(); // stops
        QVERIFY(!window.isSearching() && finished.wait());
    }

    void neverWaitsForADigest()
    {
        TestTree tree({"a", "b"});
        const auto isBusy = [] { return entered.tryAcquire(); };
        SelectionDescription description;
        QSignalSpy updated(&description, &SelectionDescription::updated);
        description.describe({tree.entry("a")});
        QVERIFY(QTest::qWaitFor(isBusy));
        auto dialog = std::make_unique<PropertiesDialog>(EntryList{tree.entry("a"), tree.entry("b")});
        QVERIFY(QTest::qWaitFor(isBusy));
        dialog.reset();
        updated.clear();
        description.describe({tree.entry("b")});
        QCOMPARE(updated.first().first().toString(), "b (1 B)");
        mayGoOn.release(3);
        QTRY_COMPARE(updated.last().first().toString(), "b (1 B), 5 words");
    }

    void changesPermissions()
    {
        TestTree tree({"a"});
        PropertiesDialog dialog({tree.entry("a")});
        QCOMPARE(dialog.findChild<QTabWidget *>("pages")->count(), 2); // the plug-in that throws has none
        dialog.findChild<QCheckBox *>("others-write")->click();
        dialog.findChild<QDialogButtonBox *>("buttons")->button(QDialogButtonBox::Apply)->click();
        QVERIFY(QFileInfo(tree.path("a")).permissions().testFlag(QFile::WriteOther));
        dialog.findChild<QCheckBox *>("group-write")->click();
        tree.remove("a");
        dialog.accept();
        QCOMPARE(dialog.result(), 0); // still open, or nobody would see why not
    }

    void editsAndFollowsSettings()
    {
        Settings::ptr()->setHiddenCategories({"Unknown"});
        SettingsDialog dialog({});
        QSettings file("tessaro", "vesk-fm");
        QCheckBox *const box = dialog.findChild<QCheckBox *>("numericSorting");
        box->click();
        QCOMPARE(file.value("Global/numericSorting"), QVariant("false"));
        dialog.findChild<QListWidget *>("hiddenCategories")->item(3)->setCheckState(Qt::Unchecked);
        QCOMPARE(Settings::ptr()->hiddenCategories(), QStringList({"Unknown", "Game"}));
        QAbstractItemModel *places = dialog.findChild<QTreeView *>("hiddenTreeItems")->model();
        places->setData(places->index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
        QVERIFY(Settings::ptr()->hiddenTreeItems().contains("Favorites"));
        file.setValue("Global/numericSorting", true); // as another window does
        QTRY_VERIFY(box->isChecked());
    }
};

QTEST_MAIN(DialogsTest)
#include "dialogstest.moc"
