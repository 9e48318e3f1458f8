// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakevfs.h"
#include "testtree.h"

#include <veskfm/entrybasepropertyset.h>
#include <veskfm/entryviewparameters.h>
#include <veskplatform/standardpaths.h>

#include <QIcon>
#include <QImage>
#include <QtConcurrentRun>
#include <QtTest>

#include <sys/stat.h>

using namespace VeskFM;

namespace
{

constexpr int sortKeyRole = 256;

/// A theme with every icon that the table rows name, one-coloured squares, and nothing else.
void makeTheme(TestTree &tree)
{
    QByteArray index("[Icon Theme]\nName=plain\nDirectories=32\n[32]\nSize=32\n");
    tree.add("themes/plain/index.theme", index);
    QImage square(32, 32, QImage::Format_RGB32);
    square.fill(Qt::blue);
    for (const char *name :
         {"folder", "unknown", "user-home", "user-trash", "drive-harddisk", "media-optical", "computer",
          "drive-removable-media-usb-pendrive", "stick", "dialog-cancel", "application-x-desktop", "editor", "special",
          "text-plain", "image-png", "system-run", "folder-remote", "application-octet-stream"}) {
        tree.add(QByteArray("themes/plain/32/") + name + ".png");
        QVERIFY(square.save(tree.path(QLatin1String("themes/plain/32/") + QLatin1String(name) + ".png")));
    }
    square.fill(Qt::red);
    tree.add("themes/plain/32/emblem-mounted.png");
    QVERIFY(square.save(tree.path("themes/plain/32/emblem-mounted.png")));
    QIcon::setThemeSearchPaths({tree.path("themes")});
    QIcon::setThemeName("plain");
}

QIcon iconOf(const EntryBasePropertySet &set, const Entry &entry)
{
    return set.value(entry, 0, Qt::DecorationRole).value<QIcon>();
}

QString nameOf(const EntryBasePropertySet &set, const Entry &entry)
{
    return set.value(entry, 0, Qt::DisplayRole).toString();
}

QSet<int> traits(std::initializer_list<EntryTrait> list)
{
    QSet<int> result;
    for (EntryTrait trait : list)
        result.insert(int(trait));
    return result;
}

} // namespace

class EntryBasePropertySetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeTheme(m_theme); }
    void init();
    void namesAndDrawsPlaces_data();
    void namesAndDrawsPlaces();
    void namesAndDrawsDesktopFiles_data();
    void namesAndDrawsDesktopFiles();
    void readsDirectoryFiles_data();
    void readsDirectoryFiles();
    void preparesChildrenOfHomeAtOnce();
    void refinesFiles_data();
    void refinesFiles();
    void decidesOnThumbnails_data();
    void decidesOnThumbnails();
    void describesTypes();
    void forgetsTheFormerEntry();
    void survivesRefinementOnThePool();

private:
    TestTree m_theme;
};

void EntryBasePropertySetTest::init()
{
    EntryViewParameters *parameters = EntryViewParameters::ptr();
    parameters->setUseMetaInfoForDirNames(true);
    parameters->setUseMetaInfoForDirIcons(true);
    parameters->setShowThumbnails(true);
    parameters->setShowThumbnailsInNetwork(false);
    parameters->setShownThumbnailGroups({"image"});
    parameters->setMaxImageFileSizeToShowThumbnailMB(0);
}

void EntryBasePropertySetTest::namesAndDrawsPlaces_data()
{
    using T = EntryTrait;
    QTest::addColumn<QSet<int>>("traits");
    QTest::addColumn<QString>("local");
    QTest::addColumn<int>("storageType");
    QTest::addColumn<QString>("storageIcon");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("icon");
    const auto place = [](std::initializer_list<T> more) { return traits(more) + traits({T::Place}); };
    QTest::newRow("first match wins") << place({T::HomeDirPlace, T::ComputerPlace}) << "" << 0 << ""
                                      << "node"
                                      << "computer";
    QTest::newRow("home") << place({T::HomeDirPlace, T::DirPlace}) << "/h" << 0 << ""
                          << "node"
                          << "user-home";
    QTest::newRow("trash by its path") << traits({T::Dir}) << StandardPaths::trashDirPath() << 0 << ""
                                       << "node"
                                       << "user-trash";
    QTest::newRow("share") << place({T::SFtpSharePlace}) << "" << 0 << ""
                           << "node"
                           << "folder-remote";
    QTest::newRow("disk") << place({T::StoragePlace}) << "/mnt/%1" << 4 << ""
                          << "node (/mnt/%1)"
                          << "drive-harddisk";
    QTest::newRow("stick") << place({T::StoragePlace}) << "" << 3 << ""
                           << "node"
                           << "drive-removable-media-usb-pendrive";
    QTest::newRow("stick with an icon") << place({T::StoragePlace}) << "" << 3 << "stick"
                                        << "node"
                                        << "stick";
    QTest::newRow("disc keeps %1") << place({T::StoragePlace, T::CdromDriveStoragePlace}) << "/m" << 2 << ""
                                   << "L%1 (/m)"
                                   << "media-optical";
    QTest::newRow("unknown storage") << place({T::StoragePlace}) << "" << 9 << ""
                                     << "node"
                                     << "unknown";
    QTest::newRow("unknown storage, dir") << place({T::StoragePlace, T::DirPlace}) << "" << 9 << ""
                                          << "node"
                                          << "folder";
    QTest::newRow("favourite") << place({T::FavoritePlace, T::DirPlace}) << "/f" << 0 << ""
                               << "My things"
                               << "folder";
    QTest::newRow("file system root") << traits({T::FSRoot, T::Dir}) << "/" << 0 << ""
                                      << "/"
                                      << "folder";
}

void EntryBasePropertySetTest::namesAndDrawsPlaces()
{
    QFETCH(QSet<int>, traits);
    QFETCH(QString, local);
    QFETCH(int, storageType);
    QFETCH(QString, storageIcon);
    FakeVfs vfs;
    vfs.storage = StoragePlace(storageType, storageIcon, "L%1", false);
    vfs.favorite = FavoritePlace("My things");
    auto *data = new FakeEntryData("x:/node", traits + QSet<int>{int(EntryTrait::Exists)});
    data->local = local;
    const Entry entry(data);
    EntryBasePropertySet set;
    set.prepare(entry);
    QTEST(nameOf(set, entry), "name");
    QTEST(iconOf(set, entry).name(), "icon");
    set.refineData(entry);
    QTEST(nameOf(set, entry), "name");
    QTEST(iconOf(set, entry).name(), "icon");

    vfs.storage = StoragePlace(storageType, storageIcon, "L%1", true);
    const QImage before = iconOf(set, entry).pixmap(32).toImage();
    set.prepare(entry);
    const QImage mounted = iconOf(set, entry).pixmap(32).toImage();
    QCOMPARE(mounted.pixelColor(30, 30) != before.pixelColor(30, 30),
             storageType != 0); // the emblem of a mounted device
    QCOMPARE(mounted.pixelColor(1, 1), before.pixelColor(1, 1));
}

void EntryBasePropertySetTest::namesAndDrawsDesktopFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("icon");
    const QByteArray head("[Desktop Entry]\nType=Application\nExec=true\n");
    QTest::newRow("all there") << head + "Name= Editor \nComment= Edits \nIcon=editor\n"
                               << "Editor"
                               << "Editor\nEdits"
                               << "editor";
    QTest::newRow("theme lacks icon") << head + "Name=E\nIcon=missing\n"
                                      << "E"
                                      << "E"
                                      << "application-x-desktop";
    QTest::newRow("no icon, no name") << head << "a.desktop"
                                      << "a.desktop"
                                      << "application-x-desktop";
    QTest::newRow("link keeps its icon") << QByteArray("[Desktop Entry]\nType=Link\nURL=file:/\nName=L\nIcon=missing\n")
                                         << "L"
                                         << "L"
                                         << "";
    QTest::newRow("no desktop entry") << QByteArray("hello\n") << "a.desktop"
                                      << "a.desktop"
                                      << "unknown";
}

void EntryBasePropertySetTest::namesAndDrawsDesktopFiles()
{
    QFETCH(QByteArray, content);
    TestTree tree;
    const Entry entry = tree.add("a.desktop", content);
    EntryBasePropertySet set;
    set.prepare(entry);
    for (bool refined : {false, true}) {
        if (refined)
            set.refineData(entry);
        QTEST(nameOf(set, entry), "name");
        QTEST(set.value(entry, 0, Qt::ToolTipRole).toString(), "toolTip");
        QTEST(iconOf(set, entry).name(), "icon");
    }
}

void EntryBasePropertySetTest::readsDirectoryFiles_data()
{
    QTest::addColumn<bool>("names");
    QTest::addColumn<bool>("icons");
    QTest::addColumn<bool>("slow");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("icon");
    QTest::newRow("both") << true << true << false << "Special"
                          << "special";
    QTest::newRow("names") << true << false << false << "Special"
                           << "folder";
    QTest::newRow("icons") << false << true << false << "dir"
                           << "special";
    QTest::newRow("neither") << false << false << false << "dir"
                             << "folder";
    QTest::newRow("slow") << true << true << true << "dir"
                          << "folder";
}

void EntryBasePropertySetTest::readsDirectoryFiles()
{
    QFETCH(bool, names);
    QFETCH(bool, icons);
    TestTree tree;
    FakeVfs vfs;
    tree.add("dir/.directory", "[Desktop Entry]\nType=Directory\nName=Special\nIcon=special\n");
    const Entry entry = tree.entry("dir");
    EntryBasePropertySet set;
    set.prepare(entry);
    QCOMPARE(iconOf(set, entry).name(), "folder"); // a listing reads no file of a directory's
    set.refineData(entry);
    QCOMPARE(iconOf(set, entry).name(), "special");

    vfs.slow = QTest::currentDataTag() == QByteArray("slow");
    EntryViewParameters::ptr()->setUseMetaInfoForDirNames(names);
    EntryViewParameters::ptr()->setUseMetaInfoForDirIcons(icons);
    set.updatePresentation(entry, false);
    QCOMPARE(nameOf(set, entry), "Special"); // nothing refined, nothing to redo
    set.updatePresentation(entry, true);
    QTEST(nameOf(set, entry), "name");
    QTEST(iconOf(set, entry).name(), "icon");
    QCOMPARE(set.value(entry, 1, Qt::ToolTipRole), "inode/directory");
}

void EntryBasePropertySetTest::preparesChildrenOfHomeAtOnce()
{
    TestTree tree;
    FakeVfs vfs;
    vfs.home = tree.entry();
    tree.add("dir/.directory", "[Desktop Entry]\nType=Directory\nName=Special\nIcon=special\n");
    tree.add("bad/.directory", "nonsense");
    EntryBasePropertySet set;
    set.prepare(tree.entry("dir"));
    QCOMPARE(nameOf(set, tree.entry("dir")), "Special");
    QCOMPARE(iconOf(set, tree.entry("dir")).name(), "special");
    set.prepare(tree.entry("bad"));
    QCOMPARE(nameOf(set, tree.entry("bad")), "bad");
    QCOMPARE(iconOf(set, tree.entry("bad")).name(), "folder");
}

void EntryBasePropertySetTest::refinesFiles_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("slow");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("mimeType");
    QTest::newRow("by content") << QByteArray("text") << false << "text-plain"
                                << "text/plain";
    QTest::newRow("by name when slow") << QByteArray("text") << true << "application-octet-stream"
                                       << "application/octet-stream";
    QTest::newRow("program") << QByteArray("program") << false << "system-run"
                             << "application/octet-stream";
    QTest::newRow("dead link") << QByteArray("dead") << false << "dialog-cancel"
                               << "";
    QTest::newRow("endless link") << QByteArray("endless") << false << "dialog-cancel"
                                  << "";
    QTest::newRow("relative link") << QByteArray("link") << false << "text-plain"
                                   << "";
    QTest::newRow("broken picture") << QByteArray("broken.png") << false << "image-png"
                                    << "image/png";
    QTest::newRow("no UTF-8") << QByteArray("\xff.png") << false << "image-png"
                              << "image/png";
    QTest::newRow("waits for no writer") << QByteArray("fifo.desktop") << false << "unknown"
                                         << "";
}

void EntryBasePropertySetTest::refinesFiles()
{
    QFETCH(QByteArray, name);
    TestTree tree;
    FakeVfs vfs;
    tree.add("text", "some text\n");
    tree.add("program", QByteArray("\x01\x02\x00\xfe\x03\x00\x00", 7));
    QCOMPARE(chmod(tree.bytes("program").constData(), 0755), 0);
    tree.link("dead", "nowhere");
    tree.link("endless", "endless");
    tree.link("link", "text");
    tree.add("broken.png", "\x89PNG\r\n\x1a\nno more");
    if (name == "\xff.png") // only then: the tree cannot remove it itself
        tree.add("\xff.png", "\x89PNG\r\n\x1a\nno more");
    QCOMPARE(mkfifo(tree.bytes("fifo.desktop").constData(), 0600), 0);
    Entry entry;
    for (const Entry &child : VFS::ptr()->childs(tree.entry(), VFS::PlainListing, nullptr)) {
        if (VFS::ptr()->urlsFromEntries(EntryList(child)).value(0).toEncoded().endsWith(name.toPercentEncoding()))
            entry = child;
    }
    QVERIFY(!entry.isNull());
    EntryBasePropertySet set;
    set.prepare(entry);
    QCOMPARE(iconOf(set, entry).name(), "unknown");
    QVERIFY(set.value(entry, 1, Qt::ToolTipRole).toString().isEmpty());
    vfs.slow = QTest::currentDataTag() == QByteArray("by name when slow");
    set.refineData(entry);
    QTEST(iconOf(set, entry).name(), "icon");
    QTEST(set.value(entry, 1, Qt::ToolTipRole).toString(), "mimeType");
}

void EntryBasePropertySetTest::decidesOnThumbnails_data()
{
    QTest::addColumn<bool>("here");
    QTest::addColumn<bool>("inNetwork");
    QTest::addColumn<bool>("isNetwork");
    QTest::addColumn<int>("limitMB");
    QTest::addColumn<QStringList>("groups");
    QTest::addColumn<bool>("shown");
    const QStringList image("image");
    QTest::newRow("usual") << true << false << false << 0 << image << true;
    QTest::newRow("off") << false << false << false << 0 << image << false;
    QTest::newRow("not in the network") << true << false << true << 0 << image << false;
    QTest::newRow("only in the network") << false << true << false << 0 << image << false;
    QTest::newRow("in the network") << false << true << true << 0 << image << true;
    QTest::newRow("everywhere") << true << true << true << 0 << image << true;
    QTest::newRow("no group") << true << false << false << 0 << QStringList() << false;
    QTest::newRow("above the limit") << true << false << false << 1 << image << false;
    QTest::newRow("below the limit") << true << false << false << 3 << image << true;
    QTest::newRow("2048 MB overflow to no limit") << true << false << false << 2048 << image << true;
    QTest::newRow("4096 MB overflow to no limit") << true << false << false << 4096 << image << true;
}

void EntryBasePropertySetTest::decidesOnThumbnails()
{
    QFETCH(bool, here);
    QFETCH(bool, inNetwork);
    QFETCH(int, limitMB);
    QFETCH(QStringList, groups);
    QFETCH(bool, shown);
    TestTree tree({"a.png"});
    FakeVfs vfs;
    vfs.network = *static_cast<bool *>(QTest::qData("isNetwork", QMetaType::Bool));
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QVERIFY(picture.save(tree.path("a.png")));
    auto *data = new FakeEntryData(tree.path("a.png"), traits({EntryTrait::Exists, EntryTrait::File}));
    data->local = data->path();
    data->size = 2 << 20; // for the limit only the entry's word counts
    const Entry entry(data);
    EntryViewParameters *parameters = EntryViewParameters::ptr();
    parameters->setShowThumbnails(here);
    parameters->setShowThumbnailsInNetwork(inNetwork);
    parameters->setMaxImageFileSizeToShowThumbnailMB(limitMB);
    parameters->setShownThumbnailGroups(groups);
    EntryBasePropertySet set;
    set.prepare(entry);
    set.refineData(entry);
    const QIcon icon = iconOf(set, entry);
    QCOMPARE(icon.name(), shown ? QString() : QString("image-png"));
    if (shown) {
        QCOMPARE(icon.pixmap(64).toImage().pixelColor(5, 5), QColor(Qt::green));
        QCOMPARE(iconOf(set, entry).cacheKey(), icon.cacheKey()); // made once, so that views may cache what they scaled
    }
}

void EntryBasePropertySetTest::describesTypes()
{
    TestTree tree({"a.txt"});
    const Entry file = tree.entry("a.txt");
    const Entry link = tree.link("link", "a.txt");
    EntryBasePropertySet set;
    set.prepare(file);
    QCOMPARE(set.value(file, 1, Qt::DisplayRole).toString(), QString()); // not known yet
    set.refineData(file);
    QCOMPARE(set.value(file, 1, Qt::DisplayRole), "plain text document");
    QCOMPARE(set.value(file, 1, sortKeyRole), "plain text document");
    QCOMPARE(set.value(file, 1, Qt::ToolTipRole), "text/plain");
    QVERIFY(!set.value(file, 0, Qt::EditRole).isValid());
    QVERIFY(!set.value(file, 2, Qt::DisplayRole).isValid());
    set.refineData(link);
    QCOMPARE(set.value(link, 1, Qt::DisplayRole), "symbolic link");
    QCOMPARE(set.value(link, 1, Qt::ToolTipRole), QString(""));
    QCOMPARE(EntryBasePropertySet::headerData(1, Qt::ToolTipRole), "MIME type");
    QVERIFY(!EntryBasePropertySet::headerData(0, Qt::ToolTipRole).isValid());
    QVERIFY(!EntryBasePropertySet::headerData(2, sortKeyRole).isValid());
}

void EntryBasePropertySetTest::forgetsTheFormerEntry()
{
    TestTree tree({"a.txt"});
    const Entry shortcut = tree.add("b.desktop", "[Desktop Entry]\nType=Link\nURL=/\nName=N\nComment=C\nIcon=editor\n");
    const Entry file = tree.entry("a.txt");
    EntryBasePropertySet set;
    set.prepare(shortcut);
    iconOf(set, shortcut);
    set.prepare(file);
    QCOMPARE(nameOf(set, file), "a.txt");
    QCOMPARE(set.value(file, 0, Qt::ToolTipRole), "a.txt");
    QCOMPARE(set.value(file, 1, Qt::ToolTipRole).toString(), QString());
    QCOMPARE(iconOf(set, file).name(), "unknown");
}

void EntryBasePropertySetTest::survivesRefinementOnThePool()
{
    TestTree tree({"a.png", "dir/.directory", "x.desktop", "text"});
    QVERIFY(QImage(16, 16, QImage::Format_RGB32).save(tree.path("a.png")));
    tree.add("x.desktop", "[Desktop Entry]\nType=Application\nName=X\nIcon=editor\nExec=x\n");
    const EntryList entries{tree.entry("a.png"), tree.entry("dir"), tree.entry("x.desktop"), tree.entry("text")};
    EntryBasePropertySet sets[4];
    for (int i = 0; i < 4; ++i)
        sets[i].prepare(entries[i]);
    for (int round = 0; round < 50; ++round) {
        QFuture<void> worker = QtConcurrent::run([&] {
            for (int i = 0; i < 4; ++i)
                sets[i].refineData(entries[i]);
        });
        for (int i = 0; !worker.isFinished() || i < 8; ++i) {
            const int which = i % 4;
            iconOf(sets[which], entries[which]);
            sets[which].value(entries[which], 1, sortKeyRole);
            if (i % 8 == round % 8)
                sets[which].prepare(entries[which]);
        }
        worker.waitForFinished();
    }
    for (int i = 0; i < 4; ++i)
        sets[i].refineData(entries[i]);
    QCOMPARE(nameOf(sets[2], entries[2]), "X");
    QCOMPARE(iconOf(sets[3], entries[3]).name(), "text-plain");
    QVERIFY(!iconOf(sets[0], entries[0]).isNull());
}

QTEST_MAIN(EntryBasePropertySetTest)
#include "entrybasepropertysettest.moc"
