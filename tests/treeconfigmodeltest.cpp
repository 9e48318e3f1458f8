// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/model.h>
#include <veskfm/settings.h>
#include <veskfm/treeconfigmodel.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace VeskFM;

class TreeConfigModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storesWhatIsUnchecked_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QStringList>("checks"); // "+" shows, "-" hides
        QTest::addColumn<QStringList>("after");
        QTest::addColumn<int>("places"); // state of that group
        const QStringList none;
        const QStringList allPlaces{"Places", "FileSystem", "Home", "Trash"};
        const auto row = [](const char *name, const QStringList &before, const QStringList &checks,
                            const QStringList &after,
                            Qt::CheckState places) { QTest::newRow(name) << before << checks << after << int(places); };
        row("one place", none, {"-Home"}, {"Home"}, Qt::PartiallyChecked);
        row("a group and all in it", none, {"-Places"}, allPlaces, Qt::Unchecked);
        row("all of a group", none, {"-Home", "-Trash", "-FileSystem"}, allPlaces, Qt::Unchecked);
        row("one back", {"Places"}, {"+Home"}, {"FileSystem", "Trash"}, Qt::PartiallyChecked);
        row("a group back", {"Home"}, {"+Places"}, none, Qt::Checked);
        row("others' names stay", {"Trash", "theirs", "Home"}, {"+Trash", "-Network"}, {"theirs", "Home", "Network"},
            Qt::PartiallyChecked);
        row("there and back", {"Places"}, {"+Places", "-Places"}, {"Places"}, Qt::Unchecked);
    }

    void storesWhatIsUnchecked()
    {
        QFETCH(QStringList, before);
        QFETCH(QStringList, checks);
        Settings::ptr()->setHiddenTreeItems(before);
        TreeConfigModel model;
        const QAbstractItemModelTester tester(&model);
        QSignalSpy changed(&model, &TreeConfigModel::dataChanged);
        for (const QString &each : qAsConst(checks))
            QVERIFY(check(&model, each.mid(1), each.startsWith('+') ? Qt::Checked : Qt::Unchecked));
        QFETCH(int, places);
        QCOMPARE(int(state(model, "Places")), places);
        QVERIFY(!changed.isEmpty());
        QCOMPARE(Settings::ptr()->hiddenTreeItems(), before);
        model.apply();
        QTEST(Settings::ptr()->hiddenTreeItems(), "after");
        QVERIFY(!model.isModified());
    }

    void followsTheSettingUntilTheUserChangesSomething()
    {
        Settings::ptr()->setHiddenTreeItems({});
        TreeConfigModel model;
        Settings::ptr()->setHiddenTreeItems({"Home"});
        QCOMPARE(state(model, "Home"), Qt::Unchecked);
        QVERIFY(check(&model, "Network", Qt::Unchecked));
        Settings::ptr()->setHiddenTreeItems({});
        QCOMPARE(state(model, "Network"), Qt::Unchecked);
        QVERIFY(!check(&model, "Places", Qt::PartiallyChecked)); // that comes from its places only
        QVERIFY(model.isModified());
        model.revert();
        QVERIFY(state(model, "Network") == Qt::Checked && state(model, "Home") == Qt::Checked);
    }

private:
    static QModelIndex at(const TreeConfigModel &model, const QString &name)
    {
        return model.match(model.index(0, 0), Model::SortKeyRole, name, 1, Qt::MatchRecursive).value(0);
    }
    static Qt::CheckState state(const TreeConfigModel &model, const QString &name)
    {
        return Qt::CheckState(at(model, name).data(Qt::CheckStateRole).toInt());
    }
    static bool check(TreeConfigModel *model, const QString &name, Qt::CheckState wanted)
    {
        return model->setData(at(*model, name), wanted, Qt::CheckStateRole);
    }
};

QTEST_MAIN(TreeConfigModelTest)

#include "treeconfigmodeltest.moc"
