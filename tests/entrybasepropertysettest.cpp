// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakevfs.h"
#include "testtree.h"

#include <veskfm/entrybasepropertyset.h>
#include <veskfm/entryviewparameters.h>
#include <veskplatform/standardpaths.h>

#include <QIcon>
#include <QImage>
#include <QSemaphore>
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
    tree.add("themes/plain/index.theme", "[Icon Theme]\nName=plain\nDirectories=32\n[32]\nSize=32\n");
    tree.add("themes/plain/32/");
    QImage square(32, 32, QImage::Format_RGB32);
    square.fill(Qt::blue);
    for (const char *name :
         {"folder", "unknown", "user-home", "user-trash", "drive-harddisk", "media-optical", "computer",
          "drive-removable-media-usb-pendrive", "stick", "dialog-cancel", "application-x-desktop", "editor", "special",
          "text-plain", "image-png", "system-run", "folder-remote", "application-octet-stream"})
        QVERIFY(square.save(tree.path(QStringLiteral("themes/plain/32/%1.png").arg(name))));
    square.fill(Qt::red);
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

using T = EntryTrait;
const char trashDir[] = "the trash"; // stands for its path
const struct
{
    const char *why;
    QVector<EntryTrait> traits;
    QString local;
    int storageType;
    QString storageIcon, name, icon;
} places[] = {
    {"first match wins", {T::Place, T::HomeDirPlace, T::ComputerPlace}, "", 0, "", "node", "computer"},
    {"home stays home", {T::Place, T::HomeDirPlace, T::DirPlace}, "/h", 0, "", "node", "user-home"},
    {"trash by its path", {T::Place, T::DirPlace}, trashDir, 0, "", "node", "user-trash"},
    {"share", {T::Place, T::SFtpSharePlace}, "", 0, "", "node", "folder-remote"},
    {"disk", {T::Place, T::StoragePlace}, "/mnt/%1", 4, "", "node (/mnt/%1)", "drive-harddisk"},
    {"stick", {T::Place, T::StoragePlace}, "", 3, "", "node", "drive-removable-media-usb-pendrive"},
    {"stick with an icon", {T::Place, T::StoragePlace}, "", 3, "stick", "node", "stick"},
    {"disc keeps %1", {T::Place, T::StoragePlace, T::CdromDriveStoragePlace}, "/m", 2, "", "L%1 (/m)", "media-optical"},
    {"unknown storage", {T::Place, T::StoragePlace}, "", 9, "", "node", "unknown"},
    {"unknown storage, dir", {T::Place, T::StoragePlace, T::DirPlace}, "", 9, "", "node", "folder"},
    {"favourite", {T::Place, T::FavoritePlace, T::DirPlace}, "/f", 0, "", "My things", "folder"},
    {"file system root", {T::FSRoot, T::Dir}, "/", 0, "", "/", "folder"},
};

const QByteArray appHead("[Desktop Entry]\nType=Application\nExec=true\n");
const QByteArray linkHead("[Desktop Entry]\nType=Link\nURL=file:/\n");
const struct
{
    const char *why;
    QByteArray content;
    QString name, toolTip, icon;
} desktopFiles[] = {
    {"all there", appHead + "Name= Ed \nComment= Edits \nIcon=editor\n", "Ed", "Ed\nEdits", "editor"},
    {"theme lacks the icon", appHead + "Name=E\nIcon=missing\n", "E", "E", "application-x-desktop"},
    {"no icon, no name", appHead, "a.desktop", "a.desktop", "application-x-desktop"},
    {"link keeps its icon", linkHead + "Name=L\nIcon=missing\n", "L", "L", ""},
    {"no desktop entry", "hello\n", "a.desktop", "a.desktop", "unknown"},
};

const struct
{
    const char *why;
    bool names, icons, slow;
    QString name, icon;
} directories[] = {
    {"both", true, true, false, "Special", "special"}, {"names", true, false, false, "Special", "folder"},
    {"icons", false, true, false, "dir", "special"},   {"neither", false, false, false, "dir", "folder"},
    {"slow", true, true, true, "dir", "folder"},
};

const char octets[] = "application/octet-stream";
const struct
{
    const char *why;
    QByteArray name;
    bool slow;
    QString icon, mimeType;
} files[] = {
    {"by content", "text", false, "text-plain", "text/plain"},
    {"by name when slow", "text", true, "application-octet-stream", octets},
    {"program", "program", false, "system-run", octets},
    {"dead link", "dead", false, "dialog-cancel", ""},
    {"endless link", "endless", false, "dialog-cancel", ""},
    {"link", "link", false, "text-plain", ""},
    {"broken picture", "broken.png", false, "image-png", "image/png"},
    {"no UTF-8", "\xff.png", false, "image-png", "image/png"},
    {"waits for no writer", "fifo.desktop", false, "unknown", ""},
};

const struct
{
    const char *why;
    bool here, inNetwork, isNetwork;
    int limitMB;
    QStringList groups;
    bool shown;
} thumbnails[] = {
    {"usual", true, false, false, 0, {"image"}, true},
    {"off", false, false, false, 0, {"image"}, false},
    {"not in the network", true, false, true, 0, {"image"}, false},
    {"only in the network", false, true, false, 0, {"image"}, false},
    {"in the network", false, true, true, 0, {"image"}, true},
    {"no group", true, false, false, 0, {}, false},
    {"above the limit", true, false, false, 1, {"image"}, false},
    {"below the limit", true, false, false, 3, {"image"}, true},
    {"4096 MB overflow to no limit", true, false, false, 4096, {"image"}, true},
};

template <class Row, size_t count> void addRows(const Row (&rows)[count])
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < count; ++i)
        QTest::newRow(rows[i].why) << int(i);
}

int rowNumber()
{
    return *static_cast<int *>(QTest::qData("row", QMetaType::Int));
}

} // namespace

class EntryBasePropertySetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeTheme(m_theme); }
    void init();
    void namesAndDrawsPlaces_data() { addRows(places); }
    void namesAndDrawsPlaces();
    void namesAndDrawsDesktopFiles_data() { addRows(desktopFiles); }
    void namesAndDrawsDesktopFiles();
    void readsDirectoryFiles_data() { addRows(directories); }
    void readsDirectoryFiles();
    void refinesFiles_data() { addRows(files); }
    void refinesFiles();
    void decidesOnThumbnails_data() { addRows(thumbnails); }
    void decidesOnThumbnails();
    void describesTypes();
    void survivesRefinementOnThePool();
    void publishesNothingOutdated();

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

void EntryBasePropertySetTest::namesAndDrawsPlaces()
{
    const auto &row = places[rowNumber()];
    FakeVfs vfs;
    vfs.storage = StoragePlace(row.storageType, row.storageIcon, "L%1", false);
    vfs.favorite = FavoritePlace("My things");
    auto *data = new FakeEntryData("x:/node", row.traits + QVector<EntryTrait>{T::Exists});
    data->local = row.local == trashDir ? StandardPaths::trashDirPath() : row.local;
    const Entry entry(data);
    EntryBasePropertySet set;
    for (bool refined : {false, true}) {
        refined ? set.refineData(entry) : set.prepare(entry);
        QCOMPARE(nameOf(set, entry), row.name);
        QCOMPARE(iconOf(set, entry).name(), row.icon);
    }
    const QImage before = iconOf(set, entry).pixmap(32).toImage();
    vfs.storage = StoragePlace(row.storageType, row.storageIcon, "L%1", true);
    set.prepare(entry);
    const QImage mounted = iconOf(set, entry).pixmap(32).toImage();
    QCOMPARE(mounted.pixelColor(30, 30) != before.pixelColor(30, 30), row.storageType != 0); // the emblem
    QCOMPARE(mounted.pixelColor(1, 1), before.pixelColor(1, 1));
}

void EntryBasePropertySetTest::namesAndDrawsDesktopFiles()
{
    const auto &row = desktopFiles[rowNumber()];
    TestTree tree;
    const Entry entry = tree.add("a.desktop", row.content);
    EntryBasePropertySet set;
    for (bool refined : {false, true}) {
        refined ? set.refineData(entry) : set.prepare(entry);
        QCOMPARE(nameOf(set, entry), row.name);
        QCOMPARE(set.value(entry, 0, Qt::ToolTipRole).toString(), row.toolTip);
        QCOMPARE(iconOf(set, entry).name(), row.icon);
    }
}

void EntryBasePropertySetTest::readsDirectoryFiles()
{
    const auto &row = directories[rowNumber()];
    TestTree tree;
    FakeVfs vfs;
    tree.add("dir/.directory", "[Desktop Entry]\nType=Directory\nName=Special\nIcon=special\n");
    const Entry entry = tree.entry("dir");
    EntryBasePropertySet set;
    set.prepare(entry);
    QCOMPARE(iconOf(set, entry).name(), "folder"); // a listing reads no file of a directory's
    set.refineData(entry);
    QCOMPARE(iconOf(set, entry).name(), "special");

    vfs.slow = row.slow;
    EntryViewParameters::ptr()->setUseMetaInfoForDirNames(row.names);
    EntryViewParameters::ptr()->setUseMetaInfoForDirIcons(row.icons);
    set.updatePresentation(entry, false);
    QCOMPARE(nameOf(set, entry), "Special"); // nothing refined, nothing to redo
    set.updatePresentation(entry, true);
    QCOMPARE(nameOf(set, entry), row.name);
    QCOMPARE(iconOf(set, entry).name(), row.icon);
    QCOMPARE(set.value(entry, 1, Qt::ToolTipRole), "inode/directory");
    vfs.home = tree.entry(); // what lies in it is read at once
    set.prepare(entry);
    QCOMPARE(nameOf(set, entry), row.name);
    QCOMPARE(iconOf(set, entry).name(), row.icon);
}

void EntryBasePropertySetTest::refinesFiles()
{
    const auto &row = files[rowNumber()];
    TestTree tree;
    FakeVfs vfs;
    tree.add("text", "some text\n");
    tree.add("program", QByteArray("\x01\x02\x00\xfe\x03\x00\x00", 7));
    QCOMPARE(chmod(tree.bytes("program").constData(), 0755), 0);
    tree.link("dead", "nowhere");
    tree.link("endless", "endless");
    tree.link("link", "text");
    tree.add("broken.png", "\x89PNG\r\n\x1a\nno more");
    if (row.name == "\xff.png") // only then: the tree cannot remove it itself
        tree.add("\xff.png", "\x89PNG\r\n\x1a\nno more");
    QCOMPARE(mkfifo(tree.bytes("fifo.desktop").constData(), 0600), 0);
    Entry entry;
    for (const Entry &child : VFS::ptr()->childs(tree.entry(), VFS::PlainListing, nullptr)) {
        if (VFS::ptr()->urlsFromEntries(EntryList(child)).value(0).toEncoded().endsWith(row.name.toPercentEncoding()))
            entry = child;
    }
    QVERIFY(!entry.isNull());
    EntryBasePropertySet set;
    set.prepare(entry);
    QCOMPARE(iconOf(set, entry).name(), "unknown");
    QVERIFY(set.value(entry, 1, Qt::ToolTipRole).toString().isEmpty());
    vfs.slow = row.slow;
    set.refineData(entry);
    QCOMPARE(iconOf(set, entry).name(), row.icon);
    QCOMPARE(set.value(entry, 1, Qt::ToolTipRole).toString(), row.mimeType);
}

void EntryBasePropertySetTest::decidesOnThumbnails()
{
    const auto &row = thumbnails[rowNumber()];
    TestTree tree({"a.png"});
    FakeVfs vfs;
    vfs.network = row.isNetwork;
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QVERIFY(picture.save(tree.path("a.png")));
    auto *data = new FakeEntryData(tree.path("a.png"), {T::Exists, T::File});
    data->local = data->path();
    data->size = 2 << 20; // for the limit only the entry's word counts
    const Entry entry(data);
    EntryViewParameters *parameters = EntryViewParameters::ptr();
    parameters->setShowThumbnails(row.here);
    parameters->setShowThumbnailsInNetwork(row.inNetwork);
    parameters->setMaxImageFileSizeToShowThumbnailMB(row.limitMB);
    parameters->setShownThumbnailGroups(row.groups);
    EntryBasePropertySet set;
    set.prepare(entry);
    set.refineData(entry);
    const QIcon icon = iconOf(set, entry);
    QCOMPARE(icon.name(), row.shown ? QString() : QString("image-png"));
    if (row.shown) {
        QCOMPARE(icon.pixmap(64).toImage().pixelColor(5, 5), QColor(Qt::green));
        QCOMPARE(iconOf(set, entry).cacheKey(), icon.cacheKey()); // made once, so that views may cache what they scaled
    }
}

void EntryBasePropertySetTest::describesTypes()
{
    TestTree tree({"a.txt"});
    const Entry file = tree.entry("a.txt");
    const Entry link = tree.link("link", "a.txt");
    const Entry shortcut = tree.add("b.desktop", "[Desktop Entry]\nType=Link\nURL=/\nName=N\nComment=C\nIcon=editor\n");
    EntryBasePropertySet set;
    set.prepare(shortcut);
    iconOf(set, shortcut);
    set.prepare(file); // nothing of the former entry stays
    QCOMPARE(nameOf(set, file), "a.txt");
    QCOMPARE(set.value(file, 0, Qt::ToolTipRole), "a.txt");
    QCOMPARE(iconOf(set, file).name(), "unknown");
    QCOMPARE(set.value(file, 1, Qt::DisplayRole).toString(), QString()); // not known yet
    set.refineData(file);
    QCOMPARE(set.value(file, 1, Qt::DisplayRole), "plain text document");
    QCOMPARE(set.value(file, 1, sortKeyRole), "plain text document");
    QCOMPARE(set.value(file, 1, Qt::ToolTipRole), "text/plain");
    set.refineData(link);
    QCOMPARE(set.value(link, 1, Qt::DisplayRole), "symbolic link");
    QCOMPARE(set.value(link, 1, Qt::ToolTipRole), QString(""));
    QCOMPARE(EntryBasePropertySet::headerData(1, Qt::ToolTipRole), "MIME type");
}

void EntryBasePropertySetTest::survivesRefinementOnThePool()
{
    TestTree tree({"a.png", "text"});
    QVERIFY(QImage(16, 16, QImage::Format_RGB32).save(tree.path("a.png")));
    tree.add("x.desktop", "[Desktop Entry]\nType=Application\nName=X\nIcon=editor\nExec=x\n");
    for (const char *name : {"a.png", "text", "x.desktop"}) {
        const Entry entry = tree.entry(name);
        EntryBasePropertySet set;
        set.prepare(entry);
        for (int round = 0; round < 50; ++round) {
            QFuture<void> worker = QtConcurrent::run([&] { set.refineData(entry); });
            do {
                iconOf(set, entry);
                set.value(entry, 1, sortKeyRole);
                if (round % 2)
                    set.prepare(entry);
            } while (!worker.isFinished());
        }
        set.refineData(entry);
        QCOMPARE(nameOf(set, entry), name == QLatin1String("x.desktop") ? "X" : name);
        QVERIFY(!iconOf(set, entry).isNull() && iconOf(set, entry).name() != "unknown");
    }
}

/// Says how large it is, which a refinement asks after the type, only when it is told to.
class SlowEntryData : public FakeEntryData
{
public:
    using FakeEntryData::FakeEntryData;
    qint64 fileSize() const override
    {
        asked.release();
        answer.acquire();
        return 2 << 20;
    }
    mutable QSemaphore asked;
    mutable QSemaphore answer;
};

void EntryBasePropertySetTest::publishesNothingOutdated()
{
    TestTree tree;
    tree.add("a", "\x89PNG\r\n\x1a\nno more");
    auto *data = new SlowEntryData(tree.path("a"), {T::Exists, T::File});
    data->local = data->path();
    const Entry entry(data);
    EntryViewParameters::ptr()->setMaxImageFileSizeToShowThumbnailMB(1);
    EntryBasePropertySet set;
    set.prepare(entry);
    QFuture<void> worker = QtConcurrent::run([&] { set.refineData(entry); });
    data->asked.acquire(); // it has found a picture
    tree.write("a", "now a text\n");
    set.prepare(entry);
    data->answer.release();
    worker.waitForFinished();
    QCOMPARE(set.value(entry, 1, Qt::ToolTipRole), "text/plain");
}

QTEST_MAIN(EntryBasePropertySetTest)
#include "entrybasepropertysettest.moc"
