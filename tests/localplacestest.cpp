// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakevfs.h"
#include "testtree.h"

#include <veskfm/placesmodel.h>
#include <veskplatform/favorites.h>
#include <veskplatform/networkplaces.h>
#include <veskplatform/storagemount.h>
#include <veskplatform/storagesource.h>
#include <veskplatform/vfsplacebase.h>

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace VeskFM;

namespace
{

/// Devices that the test plugs in and out.
class FakeStorage : public StorageSource
{
public:
    QVector<StorageDevice> devices() const override { return present; }
    void mount(const QString &id) override
    {
        for (StorageDevice &device : present) {
            if (device.id == id)
                device.mountPoint = mountPoint;
        }
        Q_EMIT devicesChanged();
        Q_EMIT finished(id, QString());
    }
    void plug(const QVector<StorageDevice> &devices)
    {
        present = devices;
        Q_EMIT devicesChanged();
    }
    QVector<StorageDevice> present;
    QString mountPoint;
};

/// One server with as many shares as the test wants.
class FakeNetwork : public NetworkPlaces
{
public:
    Entry entry(const QString &path) const override
    {
        if (!path.startsWith("sftp://"))
            return {};
        return Entry(new FakeEntryData(path, {EntryTrait::Exists, EntryTrait::Place, EntryTrait::SFtpSharePlace}));
    }
    EntryList childs(const Entry &entry, QAtomicInt *) const override
    {
        EntryList found;
        if (entry.isNetworkPlace())
            found.append(this->entry("sftp://server"));
        for (const QString &share : entry.path() == "sftp://server" ? shares : QStringList())
            found.append(this->entry("sftp://server/" + share));
        return found;
    }
    Entry parent(const Entry &entry) const override
    {
        const bool isServer = entry.path() == "sftp://server";
        return isServer ? VFS::ptr()->networkEntry() : this->entry("sftp://server");
    }
    int orderIndex(const Entry &place, const Entry &) const override { return shares.indexOf(place.fileName()); }
    QStringList shares;
};

/// A model of places, with the rows of one group fetched.
struct Shown
{
    explicit Shown(const Entry &entry)
    {
        [&] {
            QTRY_VERIFY((group = model.indexOfEntry(entry)).isValid());
            group.data(Qt::DecorationRole);
            model.fetchMore(group);
            QTRY_VERIFY(!model.canFetchMore(group));
        }();
    }
    QStringList rows(const QModelIndex &parent = {})
    {
        QStringList names;
        const QModelIndex above = parent.isValid() ? parent : QModelIndex(group);
        for (int row = 0; row < model.rowCount(above); ++row) {
            const QModelIndex index = model.index(row, 0, above);
            index.data(Qt::DecorationRole); // as a view does: leaves lose their expanders
            names.append(index.data().toString());
        }
        return names;
    }
    PlacesModel model;
    QPersistentModelIndex group;
};

const StorageDevice disk{"sda2", 4, "Data", {}, "/none", false, true, false};
const StorageDevice stick{"sdb 1", 3, "Stick", {}, {}, true, false, false};
const StorageDevice disc{"sr0", 2, "Film", {}, {}, true, false, true};

QString bookmarksFile()
{
    return QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + "/gtk-3.0/bookmarks";
}

void writeBookmarks(const QByteArray &text)
{
    QFile file(bookmarksFile());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

QByteArray bookmarks()
{
    QFile file(bookmarksFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class LocalPlacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QDir(QFileInfo(bookmarksFile()).path()).removeRecursively(); }

    void followsDevices()
    {
        TestTree tree({"inside/"});
        FakeStorage storage;
        storage.mountPoint = tree.path();
        StorageSource::install(&storage);
        Shown shown(VFS::ptr()->storageDevicesEntry());
        QVERIFY(shown.rows().isEmpty());
        storage.plug({stick});
        QTRY_COMPARE(shown.rows(), QStringList("Stick"));
        storage.plug({disk, stick, disc});
        QTRY_COMPARE(shown.rows(), QStringList({"Data (/none)", "Stick", "Film"}));

        const QPersistentModelIndex row = shown.model.index(1, 0, shown.group);
        const Entry place = shown.model.entryByIndex(row);
        QVERIFY(place.isStoragePlace() && place.isPurePlace() && !shown.model.hasChildren(row));
        StorageMount mount;
        QSignalSpy finished(&mount, &StorageMount::finished);
        QVERIFY(StorageMount::canMount(place) && !StorageMount::canEject(place));
        mount.mount(place);
        QVERIFY(finished.isEmpty() && finished.wait());
        QTRY_COMPARE(shown.rows(row), QStringList("inside")); // the expander is back
        QCOMPARE(row.data().toString(), QString("Stick (%1)").arg(tree.path()));
        QVERIFY(VFS::ptr()->storagePlace(place).isMounted() && shown.model.hasChildren(row));
        mount.eject(place);
        QVERIFY(finished.wait() && !finished.last().at(1).toString().isEmpty()); // cannot, and says so

        storage.plug({disk, disc});
        QTRY_COMPARE(shown.rows(), QStringList({"Data (/none)", "Film"}));
        mount.mount(place);
        QVERIFY(finished.wait() && !VFS::ptr()->storagePlace(place).isValid());
        StorageSource::install(nullptr);
        QTRY_VERIFY(!shown.rows().contains("Film"));
    }

    void followsFavorites_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("open"); // branches that stay so
        QTest::newRow("one more") << QByteArray("file:///usr\nfile:///none x\nfile:///etc\nfile:///var\n")
                                  << QStringList({"usr", "x", "etc", "var"}) << 3;
        QTest::newRow("another order") << QByteArray("file:///var\nfile:///usr\nfile:///etc\n")
                                       << QStringList({"var", "usr", "etc"}) << 2;
        QTest::newRow("a label") << QByteArray("file:///usr U s\nfile:///etc\nfile:///var\n")
                                 << QStringList({"U s", "etc", "var"}) << 3;
        QTest::newRow("all at once") << QByteArray("file:///var V\nfile:///tmp\nfile:///usr\n")
                                     << QStringList({"V", "tmp", "usr"}) << 1;
        QTest::newRow("none") << QByteArray() << QStringList() << 0;
    }

    void followsFavorites()
    {
        QFETCH(QByteArray, text);
        Shown shown(VFS::ptr()->favoritesEntry()); // the directory of their file is still to come
        QVERIFY(QDir().mkpath(QFileInfo(bookmarksFile()).path()));
        writeBookmarks("file:///usr\nfile:///etc\nfile:///var\n");
        QTRY_COMPARE(shown.rows(), QStringList({"usr", "etc", "var"}));
        QList<QPersistentModelIndex> branches;
        for (int row = 0; row < 3; ++row)
            branches.append(shown.model.index(row, 0, shown.group));
        writeBookmarks(text);
        QFETCH(QStringList, rows);
        QTRY_COMPARE(shown.rows(), rows);
        QTEST(int(std::count_if(branches.begin(), branches.end(), [](const auto &row) { return row.isValid(); })),
              "open");
    }

    void editsFavorites()
    {
        TestTree tree({"a b/", "c/", "file"});
        const auto line = [&](const char *name) { return QUrl::fromLocalFile(tree.path(name)).toEncoded() + '\n'; };
        const Entry a = tree.entry("a b");
        const Entry c = tree.entry("c");
        QString error;
        QVERIFY(Favorites::add(a) && !Favorites::add(tree.entry("file"), 0, &error) && !error.isEmpty());
        QCOMPARE(bookmarks(), line("a b"));
        const QByteArray strange("# no bookmark\nsftp://server/x Far away\n\xff\xfe\n");
        writeBookmarks(strange + bookmarks() + "file:///usr");
        QVERIFY(Favorites::add(c, 1) && Favorites::rename(a, "My\nown") && Favorites::move(c, 0));
        QCOMPARE(bookmarks(), strange + line("c") + line("a b").trimmed() + " My own\nfile:///usr\n");
        const EntryList favorites = VFS::ptr()->placeBase()->childEntries(VFS::ptr()->favoritesEntry());
        QCOMPARE(fileNames(favorites), QStringList({"c", "My own", "usr"}));
        QVERIFY(Favorites::remove(favorites.first()) && !Favorites::remove(favorites.first())
                && !Favorites::remove({}));
        QVERIFY(Favorites::rename(a, {}) && Favorites::add(VFS::ptr()->entry("places:/home"), 1));
        QCOMPARE(bookmarks(),
                 strange + line("a b") + QUrl::fromLocalFile(QDir::homePath()).toEncoded() + "\nfile:///usr\n");
        QVERIFY(QFile::remove(bookmarksFile()) && QDir().mkpath(bookmarksFile()));
        QVERIFY(!Favorites::add(a, 0, &error) && error.contains(bookmarksFile()));
    }

    void plugsInTheNetwork()
    {
        QVERIFY(QDir().mkpath(QFileInfo(bookmarksFile()).path()));
        writeBookmarks("sftp://server/b\n");
        Shown favorites(VFS::ptr()->favoritesEntry());
        Shown shown(VFS::ptr()->networkEntry());
        QVERIFY(shown.rows().isEmpty() && favorites.rows().isEmpty() && !shown.model.hasChildren(shown.group));
        FakeNetwork network;
        network.shares = QStringList({"b", "a"});
        NetworkPlaces::install(&network);
        QTRY_COMPARE(shown.rows(), QStringList("server"));
        QTRY_COMPARE(favorites.rows(), QStringList("b"));
        const QPersistentModelIndex server = shown.model.index(0, 0, shown.group);
        shown.model.fetchMore(server);
        QTRY_COMPARE(shown.rows(server), QStringList({"b", "a"}));
        network.shares.append("0");
        Q_EMIT network.entryCreated(VFS::ptr()->entry("sftp://server/0"));
        QTRY_COMPARE(shown.rows(server), QStringList({"b", "a", "0"}));
        NetworkPlaces::install(nullptr);
        QTRY_VERIFY(shown.rows().isEmpty() && favorites.rows().isEmpty());
    }

    void tellsLeaves_data()
    {
        QTest::addColumn<QList<QByteArray>>("content"); // "name>target" is a link
        QTest::addColumn<bool>("isLeaf");
        QTest::newRow("empty") << QList<QByteArray>() << true;
        QTest::newRow("files") << QList<QByteArray>({"a", "b", ".c"}) << true;
        QTest::newRow("a directory") << QList<QByteArray>({"a", "b/"}) << false;
        QTest::newRow("an archive") << QList<QByteArray>({"a", "b.zip"}) << false;
        QTest::newRow("links to nothing else") << QList<QByteArray>({"a", "l>a", "m>none", "n>n"}) << true;
        QTest::newRow("a link to a directory") << QList<QByteArray>({"a", "l>a", "m>../other"}) << false;
        QTest::newRow("a link upwards") << QList<QByteArray>({"l>.."}) << false;
        QList<QByteArray> many;
        for (int i = 0; i < 2000; ++i)
            many.append(QByteArray::number(i));
        QTest::newRow("too many to tell") << many << false;
    }

    void tellsLeaves()
    {
        QFETCH(QList<QByteArray>, content);
        TestTree tree({"d/", "other/"});
        for (const QByteArray &name : content) {
            const int arrow = name.indexOf('>');
            arrow < 0 ? tree.add("d/" + name) : tree.link("d/" + name.left(arrow), name.mid(arrow + 1));
        }
        QTEST(!VFS::ptr()->mayContainContainers(tree.entry("d")), "isLeaf");
    }
};

QTEST_MAIN(LocalPlacesTest)

#include "localplacestest.moc"
