// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/placesmodel.h>
#include <veskfm/settings.h>
#include <veskplatform/standardpaths.h>

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace VeskFM;

namespace
{

void hide(const QStringList &roots)
{
    Settings::ptr()->setHiddenTreeItems(roots);
}

const QStringList allGroups{"Favorites", "Places", "StorageDevices", "Network", "NetworkResources"};
const QStringList allPlaces{"FileSystem", "Home", "Trash"};

/// The model with the group "Places" expanded. Rows are told by their root name, or by the displayed one.
struct Shown
{
    Shown()
    {
        [this] {
            QTRY_VERIFY((places = at("Places")).isValid());
            model.fetchMore(places);
            QTRY_VERIFY(model.rowCount(places) > 0);
        }();
    }
    QString name(const QModelIndex &index) const
    {
        const QString root = PlacesModel::rootName(model.entryByIndex(index));
        return root.isEmpty() ? index.data().toString() : root;
    }
    QStringList names(const QModelIndex &parent = {}) const
    {
        QStringList rows;
        for (int row = 0; row < model.rowCount(parent); ++row)
            rows.append(name(model.index(row, 0, parent)));
        return rows;
    }
    QModelIndex at(const QString &row, const QModelIndex &parent = {}) const
    {
        return model.index(names(parent).indexOf(row), 0, parent);
    }
    PlacesModel model;
    QPersistentModelIndex places;
};

} // namespace

class PlacesModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { hide({}); }

    void showsTheGroupsAndTheirPlaces()
    {
        Shown shown;
        QCOMPARE(shown.model.mode(), Model::PlacesMode);
        QCOMPARE(shown.names(), allGroups);
        QCOMPARE(shown.names(shown.places), allPlaces);
        QVERIFY(!shown.model.hasChildren(shown.at("Trash", shown.places)));
        QVERIFY(QDir::home().mkpath("shown"));
        const QModelIndex home = shown.at("Home", shown.places);
        shown.model.fetchMore(home);
        QTRY_VERIFY(shown.names(home).contains("shown"));
        const QPersistentModelIndex branch = shown.at("shown", home);
        QVERIFY(QDir::home().mkpath("late"));
        QTRY_VERIFY(shown.names(home).contains("late"));
        QVERIFY(branch.isValid()); // it may be expanded
        Q_EMIT watcher()->entryReset(shown.model.entryByIndex(home));
        Q_EMIT watcher()->dirListed(shown.model.entryByIndex(home), VFS::ContainersOnly, {}); // and nobody told
        QTRY_VERIFY(!branch.isValid());
        TreeModel tree(ModelFilter::AllEntries); // over the same top, where it finds the root of the disk too
        tree.rebuild(VFS::ptr()->rootEntry());
        shown.model.refresh();
        QTRY_COMPARE(tree.rowCount(), allGroups.size() + 1);
        QTRY_COMPARE(shown.names(), allGroups);
    }

    void followsTheSettingRowByRow()
    {
        hide({"Network", "Home", "unknown"});
        const Shown shown;
        QCOMPARE(shown.names(), QStringList({"Favorites", "Places", "StorageDevices", "NetworkResources"}));
        QCOMPARE(shown.names(shown.places), QStringList({"FileSystem", "Trash"}));
        QSignalSpy reset(&shown.model, &PlacesModel::modelReset);
        hide({"Favorites", "FileSystem"});
        QCOMPARE(shown.names(), allGroups.mid(1));
        QCOMPARE(shown.names(shown.places), allPlaces.mid(1));
        hide({"Places"});
        QVERIFY(!shown.places.isValid());
        hide({});
        QCOMPARE(shown.names(), allGroups); // back where they were
        QCOMPARE(reset.count(), 0);
    }

    void showsExtraEntries()
    {
        TestTree tree({"extra/", ".kept/", "file", "gone/"});
        Shown shown;
        const Entry network = VFS::ptr()->networkEntry();
        for (const Entry &entry : {tree.entry("extra"), tree.entry("extra"), tree.entry(".kept"), tree.entry("file"),
                                   Entry(), network, tree.entry("gone")})
            shown.model.addExtraEntry(entry);
        QCOMPARE(shown.model.extraEntries().size(), 4);
        hide({"Network", "Favorites"}); // the application wants the network in any case
        QCOMPARE(shown.names(), allGroups.mid(1) + QStringList({".kept", "extra", "gone"}));
        shown.model.removeExtraEntry(network);
        shown.model.removeExtraEntry(tree.entry(".kept"));
        QVERIFY(!shown.names().contains("Network"));
        tree.remove("gone");
        Q_EMIT watcher()->entryDeleted(shown.model.extraEntries().last());
        QTRY_COMPARE(shown.model.rowCount(), 4);
        hide({});
        QCOMPARE(shown.names(), allGroups + QStringList("extra")); // the other one comes back when it exists again
        Q_EMIT watcher()->entryCreated(tree.add("gone/"));
        QTRY_COMPARE(shown.names(), allGroups + QStringList({"extra", "gone"}));
    }

    void opensTheNearestPlace_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("opened");
        const QString home = QDir::homePath();
        QTest::newRow("a place") << "places:/trash" << QStringList({"Places", "Trash"});
        QTest::newRow("a group") << "storage:/" << QStringList("StorageDevices");
        QTest::newRow("the directory of a place") << home << QStringList({"Places", "Home"});
        QTest::newRow("below home") << home + "/deep/er" << QStringList({"Places", "Home", "deep", "er"});
        QTest::newRow("the hidden disk") << "/usr/share" << QStringList();
        QTest::newRow("in the trash") << StandardPaths::trashDirPath() + "/x" << QStringList({"Places", "Trash"});
        QTest::newRow("below an extra entry") << home + "/extra/b" << QStringList({"extra", "b"});
        QTest::newRow("only a similar name") << home + "/extra-b" << QStringList({"Places", "Home", "extra-b"});
    }

    void opensTheNearestPlace()
    {
        QFETCH(QString, path);
        for (const char *name : {"deep/er", "extra/b", "extra-b"})
            QVERIFY(QDir::home().mkpath(name));
        QVERIFY(QDir().mkpath(StandardPaths::trashDirPath() + "/x"));
        hide({"FileSystem"});
        Shown shown;
        shown.model.addExtraEntry(VFS::ptr()->entry(QDir::homePath() + "/extra"));
        shown.model.rebuild();
        for (int round = 0; round < 2; ++round) { // before the rows are there, and after
            QStringList opened;
            const QModelIndexList indexes = shown.model.pathIndexList(VFS::ptr()->entry(path));
            for (const QModelIndex &index : indexes)
                opened.append(shown.name(index));
            QTEST(opened, "opened");
            QTRY_COMPARE(shown.model.rowCount(), allGroups.size() + 1);
        }
    }
};

QTEST_MAIN(PlacesModelTest)

#include "placesmodeltest.moc"
