// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakevfs.h"
#include "testtree.h"

#include "platform/mounteddevices.h"

#include <veskfm/placesmodel.h>
#include <veskfm/settings.h>
#include <veskplatform/favorites.h>
#include <veskplatform/networkplaces.h>
#include <veskplatform/standardpaths.h>
#include <veskplatform/storagemount.h>

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
    /// A group with its rows fetched, and painted: leaves have lost their expanders.
    QPersistentModelIndex open(const QString &row)
    {
        const QPersistentModelIndex group = at(row);
        group.data(Qt::DecorationRole);
        model.fetchMore(group);
        [&] { QTRY_VERIFY(!model.canFetchMore(group)); }();
        return group;
    }
    PlacesModel model;
    QPersistentModelIndex places;
};

/// Devices that the test plugs in; mounting changes the last one.
struct FakeStorage : StorageSource
{
    QVector<StorageDevice> devices() const override { return present; }
    void mount(const QString &id) override
    {
        present.last().mountPoint = mountPoint;
        Q_EMIT devicesChanged();
        Q_EMIT finished(id, QString());
    }
    QVector<StorageDevice> present;
    QString mountPoint;
};

/// A server with one share.
struct FakeNetwork : NetworkPlaces
{
    Entry entry(const QString &path) const override
    {
        return path.startsWith("x:") ? Entry(new FakeEntryData(path, {EntryTrait::Exists, EntryTrait::Place}))
                                     : Entry();
    }
    EntryList childs(const Entry &entry, QAtomicInt *) const override
    {
        return EntryList(this->entry(entry.isNetworkPlace() ? "x://s" : "x://s/b"));
    }
    Entry parent(const Entry &) const override { return VFS::ptr()->networkEntry(); }
};

QString bookmarksFile()
{
    return QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + "/gtk-3.0/bookmarks";
}

QByteArray bookmarks()
{
    QFile file(bookmarksFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void setBookmarks(const QByteArray &text)
{
    QFile file(bookmarksFile());
    QDir().mkpath(QFileInfo(file).path());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

} // namespace

class PlacesModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        hide({});
        QDir(QFileInfo(bookmarksFile()).path()).removeRecursively();
    }

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

    void showsThemOnTheTopLevelOnly()
    {
        QVERIFY(QDir::home().mkpath(".kept") && QDir::home().mkpath("plain"));
        hide({"Trash"});
        Shown shown;
        const Entry trash = VFS::ptr()->entry("places:/trash");
        shown.model.addExtraEntry(trash);
        shown.model.addExtraEntry(VFS::ptr()->entry(QDir::homePath() + "/.kept"));
        shown.model.rebuild(); // rows that are there from the start and those added later are the same
        QTRY_VERIFY(shown.names().contains("Trash") && shown.names().contains(".kept"));
        QCOMPARE(shown.model.pathIndexList(trash), QModelIndexList{shown.at("Trash")});
        const QPersistentModelIndex home = shown.model.indexOfEntry(VFS::ptr()->homeEntry());
        shown.model.fetchMore(home);
        QTRY_VERIFY(shown.names(home).contains("plain"));
        QVERIFY(!shown.names(home).contains(".kept") && !shown.names(home.parent()).contains("Trash"));
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

    void findsMountedDevices()
    {
        const MountTable table(
            "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n2 1 0:5 / /proc rw - proc proc rw\nnonsense\n"
            "3 1 8:2 / /boot rw - ext4 /dev/sda2 rw\n4 1 7:0 / /snap/x ro - squashfs /dev/loop0 ro\n"
            "5 1 999:3 / /mnt/My\\040\\134\\303\\244 rw shared:1 master:2 - vfat /dev/sdzz3 rw\n"
            "6 1 8:1 /sub /mnt/bound rw - ext4 /dev/sda1 rw\n7 1 0:9 / /mnt/far rw - nfs4 host:/x rw\n"
            "8 1 999:4 / /mnt/under rw - ext4 /dev/sdzz4 rw\n9 8 0:6 / /mnt/under rw - tmpfs tmpfs rw\n"
            "10 1 999:5 / /run/media/u/d ro - iso9660 /dev/sr9 ro\n11 1 8:1 / - -\n");
        QStringList found;
        for (const StorageDevice &device : MountedDevices::devicesOf(table))
            found.append(QString("%1 %2 %3 %4").arg(device.id, device.label, device.mountPoint).arg(device.type));
        QCOMPARE(found, QStringList({u8"sdzz3 sdzz3 /mnt/My \\ä 4", "sr9 sr9 /run/media/u/d 2"}));
        QVERIFY(table.ofPath("/mnt/far/a/b")->mayHang() && !table.ofPath("/mnt/farther")->mayHang());
    }

    void followsDevices()
    {
        TestTree tree({"inside/"});
        FakeStorage storage;
        storage.mountPoint = tree.path();
        StorageSource::install(&storage);
        Shown shown;
        const QPersistentModelIndex devices = shown.open("StorageDevices");
        QVERIFY(shown.names(devices).isEmpty() && !shown.model.hasChildren(devices));
        storage.present.append({"sdb 1", 3, "Stick", {}, {}, true, false, false});
        Q_EMIT storage.devicesChanged();
        QTRY_COMPARE(shown.names(devices), QStringList("Stick"));
        storage.present.prepend({"sr0", 2, "Film", {}, "/none", false, true, false});
        Q_EMIT storage.devicesChanged();
        QTRY_COMPARE(shown.names(devices), QStringList({"Film (/none)", "Stick"}));
        const QPersistentModelIndex row = shown.model.index(1, 0, devices);
        const Entry place = shown.model.entryByIndex(row);
        row.data(Qt::DecorationRole);
        QVERIFY(place.type() != Entry::VirtualDir); // those are drawn as folders
        QVERIFY(place.isStoragePlace() && place.isPurePlace() && !shown.model.hasChildren(row));
        StorageMount mount;
        QSignalSpy finished(&mount, &StorageMount::finished);
        mount.mount(place);
        QVERIFY(StorageMount::canMount(place) && finished.isEmpty() && finished.wait());
        QTRY_COMPARE(shown.names(row), QStringList("inside")); // without having been expanded
        QCOMPARE(row.data().toString(), QString("Stick (%1)").arg(tree.path()));
        QVERIFY(shown.model.hasChildren(row));
        storage.present.last().mountPoint.clear();
        Q_EMIT storage.devicesChanged();
        QTRY_VERIFY(!shown.model.hasChildren(row)); // nor when it is unmounted again
        mount.eject(place);
        QVERIFY(finished.wait() && !finished.last().at(1).toString().isEmpty()); // cannot, and says so
        storage.present.removeLast();
        Q_EMIT storage.devicesChanged();
        QTRY_COMPARE(shown.names(devices), QStringList("Film (/none)"));
        StorageSource::install(nullptr);
    }

    void followsFavorites_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("open"); // branches that stay so
        QTest::newRow("one more") << QByteArray("file:///usr\nfile:///a%20b/%ff x\nfile:///etc\nfile:///var\nno\n")
                                  << QStringList({"usr", "x", "etc", "var"}) << 3;
        QTest::newRow("another order") << QByteArray("file:///var\nfile:///usr\nfile:///etc\nfile:///var twice")
                                       << QStringList({"var", "usr", "etc"}) << 2;
        QTest::newRow("all at once") << QByteArray("file:///var V\nfile:///\nftp://h/x\nfile:///usr\n")
                                     << QStringList({"V", "/", "usr"}) << 1;
    }

    void followsFavorites()
    {
        Shown shown;
        const QPersistentModelIndex favorites = shown.open("Favorites"); // the directory of their file is still to come
        setBookmarks("file:///usr\nfile:///etc\nfile:///var\n");
        QTRY_COMPARE(shown.names(favorites), QStringList({"usr", "etc", "var"}));
        QList<QPersistentModelIndex> branches;
        for (int row = 0; row < 3; ++row)
            branches.append(shown.model.index(row, 0, favorites));
        QFETCH(QByteArray, text);
        QFETCH(QStringList, rows);
        setBookmarks(text);
        QTRY_COMPARE(shown.names(favorites), rows);
        for (int row = 0; row < rows.size(); ++row) {
            const QModelIndex favorite = shown.model.index(row, 0, favorites);
            favorite.data(Qt::DecorationRole);
            QCOMPARE(shown.model.hasChildren(favorite), rows.at(row) != "x"); // which leads nowhere
        }
        QTEST(int(std::count_if(branches.begin(), branches.end(), [](const auto &row) { return row.isValid(); })),
              "open");
    }

    void editsFavorites()
    {
        TestTree tree({"a b/", "c/", "file"});
        const auto line = [&](const char *name) { return QUrl::fromLocalFile(tree.path(name)).toEncoded() + '\n'; };
        const Entry a = tree.entry("a b");
        QString error;
        QVERIFY(Favorites::add(a) && !Favorites::add(tree.entry("file"), 0, &error) && !error.isEmpty());
        const QByteArray strange("# no bookmark\nsftp://server/x Far away\n\xff\xfe\n");
        setBookmarks(strange + bookmarks() + "file:///usr");
        QVERIFY(Favorites::add(tree.entry("c"), 1) && Favorites::rename(a, "My\nown") && Favorites::move(a, 2));
        QCOMPARE(bookmarks(), strange + line("c") + "file:///usr\n" + line("a b").trimmed() + " My own\n");
        const Entry favorite = VFS::ptr()->childs(VFS::ptr()->favoritesEntry(), {}, nullptr).value(0);
        QVERIFY(Favorites::remove(favorite) && !Favorites::remove(favorite) && !Favorites::remove(Entry()));
        QCOMPARE(bookmarks(), strange + "file:///usr\n" + line("a b").trimmed() + " My own\n");
        QVERIFY(QFile::remove(bookmarksFile()) && QDir().mkpath(bookmarksFile()));
        QVERIFY(!Favorites::add(a, 0, &error) && error.contains(bookmarksFile()));
    }

    void plugsInTheNetwork()
    {
        setBookmarks("x://s/b\n");
        Shown shown;
        const QPersistentModelIndex favorites = shown.open("Favorites");
        const QPersistentModelIndex servers = shown.open("Network");
        QVERIFY(shown.names(servers).isEmpty() && shown.names(favorites).isEmpty()
                && !shown.model.hasChildren(servers));
        FakeNetwork network;
        NetworkPlaces::install(&network);
        QTRY_VERIFY(shown.names(servers) == QStringList("s") && shown.names(favorites) == QStringList("b"));
        shown.model.fetchMore(shown.at("s", servers));
        QTRY_COMPARE(shown.names(shown.at("s", servers)), QStringList("b"));
        NetworkPlaces::install(nullptr);
        QTRY_VERIFY(shown.names(servers).isEmpty() && shown.names(favorites).isEmpty());
    }
};

QTEST_MAIN(PlacesModelTest)

#include "placesmodeltest.moc"
