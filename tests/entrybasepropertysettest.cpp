// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakevfs.h"
#include "testtree.h"

#include <veskfm/entrybasepropertyset.h>
#include <veskfm/entryviewparameters.h>
#include <veskplatform/standardpaths.h>

#include <QIcon>
#include <QtConcurrentRun>
#include <QtTest>

#include <atomic>
#include <thread>

#include <sys/stat.h>

using namespace VeskFM;

namespace
{

constexpr int sortKeyRole = 256;

QIcon iconOf(const EntryBasePropertySet &set, const Entry &entry)
{
    return set.value(entry, 0, Qt::DecorationRole).value<QIcon>();
}

QString nameOf(const EntryBasePropertySet &set, const Entry &entry)
{
    return set.value(entry, 0, Qt::DisplayRole).toString();
}

/// Both of them, as a view shows them.
QString look(const EntryBasePropertySet &set, const Entry &entry)
{
    return nameOf(set, entry) + '|' + iconOf(set, entry).name();
}

} // namespace

class EntryBasePropertySetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void namesAndDrawsPlaces();
    void namesAndDrawsDesktopFiles();
    void readsDirectoryFiles();
    void refinesFiles();
    void decidesOnThumbnails();
    void describesTypes();
    void survivesRefinementOnAnotherThread();
    void publishesNothingOutdated();

private:
    TestTree m_theme;
};

/// Makes a theme of every icon that is named here, one-coloured squares, and nothing else.
void EntryBasePropertySetTest::initTestCase()
{
    m_theme.add("themes/plain/index.theme", "[Icon Theme]\nName=plain\nDirectories=32\n[32]\nSize=32\n");
    m_theme.add("themes/plain/32/");
    QImage square(32, 32, QImage::Format_RGB32);
    square.fill(Qt::blue);
    for (const char *name : {"folder", "unknown", "user-home", "user-trash", "drive-harddisk", "media-optical",
                             "computer", "stick", "dialog-cancel", "application-x-desktop", "editor", "special",
                             "text-plain", "image-png", "system-run", "folder-remote", "application-octet-stream"})
        QVERIFY(square.save(m_theme.path(QStringLiteral("themes/plain/32/%1.png").arg(name))));
    square.fill(Qt::red);
    QVERIFY(square.save(m_theme.path("themes/plain/32/emblem-mounted.png")));
    QIcon::setThemeSearchPaths({m_theme.path("themes")});
    QIcon::setThemeName("plain");
}

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
    using T = EntryTrait;
    FakeVfs vfs;
    vfs.favorite = FavoritePlace("My things");
    const auto lookOf = [&vfs](const QVector<T> &traits, const QString &localPath, const StoragePlace &storage = {}) {
        auto *data = new FakeEntryData("x:/node", traits + QVector<T>{T::Exists});
        data->local = localPath;
        vfs.storage = storage;
        const Entry entry(data);
        EntryBasePropertySet set;
        set.prepare(entry);
        const QString prepared = look(set, entry);
        set.refineData(entry);
        return look(set, entry) == prepared ? prepared : QString("changed");
    };
    QCOMPARE(lookOf({T::Place, T::HomeDirPlace, T::ComputerPlace}, ""), "node|computer"); // the first match wins
    QCOMPARE(lookOf({T::Place, T::HomeDirPlace, T::DirPlace}, "/h"), "node|user-home");
    QCOMPARE(lookOf({T::Place, T::DirPlace}, StandardPaths::trashDirPath()), "node|user-trash");
    QCOMPARE(lookOf({T::Place, T::SFtpSharePlace}, ""), "node|folder-remote");
    QCOMPARE(lookOf({T::Place, T::FavoritePlace, T::DirPlace}, "/f"), "My things|folder");
    QCOMPARE(lookOf({T::FSRoot, T::Dir}, "/"), "/|folder");
    const StoragePlace disk(4, "", "L", false);
    QCOMPARE(lookOf({T::Place, T::StoragePlace}, "/mnt/%1", disk), "node (/mnt/%1)|drive-harddisk");
    QCOMPARE(lookOf({T::Place, T::StoragePlace}, "", StoragePlace(3, "stick", "L", false)), "node|stick");
    QCOMPARE(lookOf({T::Place, T::StoragePlace}, "", StoragePlace(9, "", "L", false)), "node|unknown");
    QCOMPARE(lookOf({T::Place, T::StoragePlace, T::CdromDriveStoragePlace}, "/m", StoragePlace(2, "", "L%1", false)),
             "L%1 (/m)|media-optical");

    const Entry entry(new FakeEntryData("x:/node", {T::Exists, T::Place, T::StoragePlace}));
    for (const bool mounted : {false, true}) {
        vfs.storage = StoragePlace(4, "", "L", mounted);
        EntryBasePropertySet set;
        set.prepare(entry);
        const QImage image = iconOf(set, entry).pixmap(32).toImage();
        QCOMPARE(image.pixelColor(30, 30), QColor(mounted ? Qt::red : Qt::blue)); // the emblem
        QCOMPARE(image.pixelColor(1, 1), QColor(Qt::blue));
    }
}

void EntryBasePropertySetTest::namesAndDrawsDesktopFiles()
{
    const auto lookOf = [](const QByteArray &content) {
        TestTree tree; // anew, since files that were just read are remembered
        const Entry entry = tree.add("a.desktop", content);
        EntryBasePropertySet set;
        set.prepare(entry);
        const QString prepared = look(set, entry);
        set.refineData(entry);
        return (look(set, entry) == prepared ? prepared : QString("changed")) + '|'
            + set.value(entry, 0, Qt::ToolTipRole).toString();
    };
    const QByteArray application("[Desktop Entry]\nType=Application\nExec=true\n");
    QCOMPARE(lookOf(application + "Name= Ed \nComment= Edits \nIcon=editor\n"), "Ed|editor|Ed\nEdits");
    QCOMPARE(lookOf(application + "Name=E\nIcon=missing\n"), "E|application-x-desktop|E");
    QCOMPARE(lookOf(application), "a.desktop|application-x-desktop|a.desktop");
    QCOMPARE(lookOf("[Desktop Entry]\nType=Link\nURL=file:/\nName=L\nIcon=missing\n"), "L||L"); // keeps its icon
    QCOMPARE(lookOf("hello\n"), "a.desktop|unknown|a.desktop");
}

void EntryBasePropertySetTest::readsDirectoryFiles()
{
    TestTree tree;
    FakeVfs vfs;
    tree.add("dir/.directory", "[Desktop Entry]\nType=Directory\nName=Special\nIcon=special\n");
    const Entry entry = tree.entry("dir");
    EntryBasePropertySet set;
    set.prepare(entry);
    QCOMPARE(look(set, entry), "dir|folder"); // a listing reads no file of a directory's
    set.refineData(entry);
    QCOMPARE(look(set, entry), "Special|special");
    for (int i = 0; i < 8; ++i) {
        const bool names = i & 1;
        const bool icons = i & 2;
        vfs.slow = i & 4;
        EntryViewParameters::ptr()->setUseMetaInfoForDirNames(names);
        EntryViewParameters::ptr()->setUseMetaInfoForDirIcons(icons);
        set.updatePresentation(entry, true);
        QCOMPARE(nameOf(set, entry), names && !vfs.slow ? "Special" : "dir");
        QCOMPARE(iconOf(set, entry).name(), icons && !vfs.slow ? "special" : "folder");
    }
    vfs.slow = false;
    set.updatePresentation(entry, false); // nothing refined, nothing to redo
    QCOMPARE(look(set, entry), "dir|folder");
    vfs.home = tree.entry(); // what lies in it is read at once
    set.prepare(entry);
    QCOMPARE(look(set, entry), "Special|special");
}

void EntryBasePropertySetTest::refinesFiles()
{
    TestTree tree({"text"});
    FakeVfs vfs;
    tree.add("program", QByteArray("\x01\x02\x00\xfe\x03\x00\x00", 7));
    QCOMPARE(chmod(tree.bytes("program").constData(), 0755), 0);
    tree.link("dead", "nowhere");
    tree.link("endless", "endless");
    tree.link("link", "text");
    tree.add("broken.png", "\x89PNG\r\n\x1a\nno more");
    tree.add("\xff.png", "\x89PNG\r\n\x1a\nno more");
    QCOMPARE(mkfifo(tree.bytes("fifo.desktop").constData(), 0600), 0); // nobody will write into it
    QStringList refined;
    for (const Entry &entry : VFS::ptr()->childs(tree.entry(), VFS::PlainListing, nullptr)) {
        EntryBasePropertySet set;
        set.prepare(entry);
        QCOMPARE(iconOf(set, entry).name(), "unknown");
        QVERIFY(set.value(entry, 1, Qt::ToolTipRole).toString().isEmpty());
        set.refineData(entry);
        refined += entry.fileName().toLatin1() + '|' + iconOf(set, entry).name() + '|'
            + set.value(entry, 1, Qt::ToolTipRole).toString();
    }
    refined.sort();
    QCOMPARE(refined,
             QStringList({"??.png|image-png|image/png", "broken.png|image-png|image/png", "dead|dialog-cancel|",
                          "endless|dialog-cancel|", "fifo.desktop|unknown|", "link|text-plain|",
                          "program|system-run|application/octet-stream", "text|text-plain|text/plain"}));
    vfs.slow = true; // by the name alone
    EntryBasePropertySet set;
    set.prepare(tree.entry("text"));
    set.refineData(tree.entry("text"));
    QCOMPARE(look(set, tree.entry("text")), "text|application-octet-stream");
}

void EntryBasePropertySetTest::decidesOnThumbnails()
{
    TestTree tree;
    FakeVfs vfs;
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QVERIFY(picture.save(tree.path("a.png")));
    auto *data = new FakeEntryData(tree.path("a.png"), {EntryTrait::Exists, EntryTrait::File});
    data->local = data->path();
    data->size = 2 << 20; // for the limit only the entry's word counts
    const Entry entry(data);
    EntryViewParameters *parameters = EntryViewParameters::ptr();
    const auto isShown = [&](int limitMB = 0) {
        parameters->setMaxImageFileSizeToShowThumbnailMB(limitMB);
        EntryBasePropertySet set;
        set.prepare(entry);
        set.refineData(entry);
        const QIcon icon = iconOf(set, entry); // made once, so that views may cache what they scaled
        return icon.name().isEmpty() && icon.pixmap(64).toImage().pixelColor(5, 5) == Qt::green
            && iconOf(set, entry).cacheKey() == icon.cacheKey();
    };
    QVERIFY(isShown() && isShown(3) && !isShown(1));
    QVERIFY(isShown(4096)); // overflows to no limit
    vfs.network = true;
    QVERIFY(!isShown());
    parameters->setShowThumbnailsInNetwork(true);
    parameters->setShowThumbnails(false);
    QVERIFY(isShown());
    vfs.network = false;
    QVERIFY(!isShown());
    parameters->setShowThumbnails(true);
    parameters->setShownThumbnailGroups({});
    QVERIFY(!isShown());
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
    QCOMPARE(look(set, file), "a.txt|unknown");
    QCOMPARE(set.value(file, 0, Qt::ToolTipRole), "a.txt");
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

void EntryBasePropertySetTest::survivesRefinementOnAnotherThread()
{
    TestTree tree({"a.png", "text"});
    QVERIFY(QImage(16, 16, QImage::Format_RGB32).save(tree.path("a.png")));
    tree.add("x.desktop", "[Desktop Entry]\nType=Application\nName=X\nIcon=editor\nExec=x\n");
    for (const char *name : {"a.png", "text", "x.desktop"}) {
        const Entry entry = tree.entry(name);
        EntryBasePropertySet set;
        set.prepare(entry);
        for (int round = 0; round < 50; ++round) {
            std::atomic<bool> isDone{false};
            std::thread worker([&] {
                set.refineData(entry);
                isDone = true;
            });
            do {
                iconOf(set, entry);
                set.value(entry, 1, sortKeyRole);
                if (round % 2)
                    set.prepare(entry);
            } while (!isDone);
            worker.join();
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
    auto *data = new SlowEntryData(tree.path("a"), {EntryTrait::Exists, EntryTrait::File});
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
