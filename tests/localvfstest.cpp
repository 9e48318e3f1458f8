// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskplatform/vfsplacebase.h>

#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <thread>

using namespace VeskFM;

namespace
{
EntryList listed(const Entry &entry, VFS::EntryChildFilters filters = VFS::PlainListing)
{
    return VFS::ptr()->childs(entry, filters, nullptr);
}

/// Name, kind, and what else an entry says of itself: d directory, l link, h hidden, x executable.
QString description(const Entry &entry)
{
    static const QHash<int, QString> kinds{{Entry::File, "file"},        {Entry::Dir, "dir"},
                                           {Entry::Archive, "archive"},  {Entry::FileLink, "file link"},
                                           {Entry::DirLink, "dir link"}, {Entry::ArchiveLink, "archive link"}};
    return entry.fileName() + ": " + kinds.value(entry.type()) + ' ' + (entry.isDir() ? "d" : "")
        + (entry.isSymLink() ? "l" : "") + (entry.isHidden() ? "h" : "") + (entry.isExecutable() ? "x" : "");
}
} // namespace

class LocalVfsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesEveryFileOneToOne_data();
    void namesEveryFileOneToOne();
    void keepsLookalikeNamesApart();
    void takesPathsAsTheSystemDoes();
    void knowsWhatItListed();
    void tellsTheSameInAWalk();
    void filtersChildren();
    void deliversTheDefaultOrderBackwards();
    void climbsToTheComputer();
    void showsPlaces();
    void tellsLeaves();
    void convertsUrls();
    void answersManyThreads();
};

void LocalVfsTest::namesEveryFileOneToOne_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isText");
    const auto row = [](const char *why, const QByteArray &name, bool isText) { QTest::newRow(why) << name << isText; };
    row("UTF-8", "\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80", true);
    row("Latin-1", "caf\xe9", false);
    row("byte in the middle", "a\xff\x80z", false);
    row("longer form of a slash", QByteArray("a\xc0\xaf").append('b'), false);
    row("half of a surrogate pair", "\xed\xa0\x80", false);
    row("cut short", "\xf0\x9f\x98", false);
    row("beyond Unicode", "\xf5\x80\x80\x80", false);
    row("a code point that stands for a byte", "\xf4\x8f\xbf\xbf", false);
    row("its neighbour", "\xf4\x8f\xbd\xbf", true);
    row("line break and control characters", "a\nb\r\x01\x7f\t", true);
    row("looks encoded", " 100%FF%2F#?&;:@ ", true);
    row("as long as can be", QByteArray(255, 'n'), true);
    row("as long as can be, no text", QByteArray(255, '\xbf'), false);
}

void LocalVfsTest::namesEveryFileOneToOne()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, isText);
    TestTree tree;
    tree.add(name, "content");
    const EntryList children = listed(tree.entry());
    QCOMPARE(children.size(), 1);
    const Entry entry = children.first();
    QCOMPARE(VFS::ptr()->entry(entry.path()), entry);
    QCOMPARE(entry.fileSize(), 7);
    QCOMPARE(VFS::ptr()->sibling(entry, entry.fileName()), entry);
    QCOMPARE(VFS::ptr()->parent(entry), tree.entry());
    const QList<QUrl> urls = VFS::ptr()->urlsFromEntries(children);
    QCOMPARE(QByteArray::fromPercentEncoding(urls.first().toEncoded()), "file://" + tree.bytes(name));
    QCOMPARE(VFS::ptr()->entriesFromUrls(urls), children);
    QCOMPARE(VFS::ptr()->entriesFromUrls({QUrl::fromEncoded(urls.first().toEncoded())}), children);
    QCOMPARE(!entry.localPath().isEmpty(), isText);
    if (isText) {
        QFile file(entry.localPath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("content"));
        QCOMPARE(VFS::ptr()->localPath(urls.first().toString()), entry.localPath());
    }
    tree.remove(name);
    QVERIFY(!VFS::ptr()->isEntryExists(entry));
    QVERIFY(VFS::ptr()->entry(entry.path()).isNull());
}

void LocalVfsTest::keepsLookalikeNamesApart()
{
    TestTree tree({"\xff", "\xf4\x8f\xbf\xbf", "\xef\xbf\xbd", "?", "%FF", "\xff\xff/\xfe"});
    QSet<QString> paths;
    const EntryList children = listed(tree.entry());
    for (const Entry &entry : children)
        paths.insert(entry.path());
    QCOMPARE(paths.size(), 6);
    const Entry odd = children.dirs().first();
    QCOMPARE(listed(odd).size(), 1); // listed by its exact bytes
    QVERIFY(listed(odd).first().localPath().isEmpty());
}

void LocalVfsTest::takesPathsAsTheSystemDoes()
{
    TestTree tree({"d/x", "d/..x", "a", "a?", "a?b", "ab", "other/a", "other/deep/x"});
    tree.link("link", "other/deep");
    QCOMPARE(tree.entry("//d///./x/").path(), tree.path("d/x"));
    QCOMPARE(tree.entry("d/../a").path(), tree.path("a"));
    QCOMPARE(tree.entry("link/../a").path(), tree.path("other/a")); // not the one beside the link
    QCOMPARE(tree.entry("link/").path(), tree.path("link"));
    QCOMPARE(tree.entry("d/..x").path(), tree.path("d/..x"));
    for (const QString &name :
         {QString("a") + QChar(0) + "b", QString("a") + QChar(0xD800), QString("a") + QChar(0xDC00) + "b",
          QString(300, 'a'), QString("missing"), QString("a/x"), QString("missing/../a")}) {
        QVERIFY2(tree.entry(name).isNull() && VFS::ptr()->sibling(tree.entry("a"), name).isNull(), qPrintable(name));
        QVERIFY(VFS::ptr()->entriesFromUrls({QUrl::fromLocalFile(tree.path(name))}).isEmpty());
    }
}

void LocalVfsTest::knowsWhatItListed()
{
    TestTree tree({"file", ".dir/", "program", "a.ZIP", "a.tar.xz", "a.rar", ".zip", "gzip", "d.zip/"});
    chmod(tree.bytes("program").constData(), 0755);
    tree.link("l-file", "file");
    tree.link("l-dir", tree.bytes(".dir"));
    tree.link("l.zip", "a.ZIP");
    tree.link("broken", "nowhere");
    tree.link("endless", "endless");
    tree.write("gzip", "");
    tree.link("empty.zip", "gzip");
    mkfifo(tree.bytes("pipe.zip").constData(), 0644);
    QStringList descriptions;
    for (const Entry &entry : listed(tree.entry())) {
        descriptions += description(entry);
        QCOMPARE(description(tree.entry(entry.fileName())), descriptions.last());
        QVERIFY(entry.isExists() && !entry.isPlace());
        QCOMPARE(entry.isArchiveMountPoint(), descriptions.last().contains(": archive"));
    }
    descriptions.sort();
    QCOMPARE(descriptions,
             QStringList({".dir: dir dhx", ".zip: file h", "a.ZIP: archive ", "a.rar: file ", "a.tar.xz: archive ",
                          "broken: file link l", "d.zip: dir dx", "empty.zip: file link l", "endless: file link l",
                          "file: file ", "gzip: file ", "l-dir: dir link dlx", "l-file: file link l",
                          "l.zip: archive link l", "pipe.zip: file ", "program: file x"}));
    QCOMPARE(tree.entry("broken").symLinkTarget(), tree.path("nowhere"));
    QCOMPARE(VFS::ptr()->symLinkTargetEntry(tree.entry("l-dir")), tree.entry(".dir"));
    QCOMPARE(EntryList({tree.entry("broken"), tree.entry("l-file")}).brokenSymlinks(), EntryList(tree.entry("broken")));
}

void LocalVfsTest::tellsTheSameInAWalk()
{
    TestTree tree({"file", ".dir/x", "a.zip", "caf\xe9", "\xc3\xa9", "names only/n.zip", "names only/d/", "closed/f"});
    chmod(tree.bytes("file").constData(), 0755);
    mkfifo(tree.bytes("pipe.zip").constData(), 0644);
    tree.link("l-dir", tree.bytes(".dir"));
    tree.link("l.zip", "a.zip");
    tree.link("l-\xff", "caf\xe9");
    tree.link("broken", "nowhere");
    tree.link("names only/l", "n.zip");
    chmod(tree.bytes("names only").constData(), 0444); // who is not root learns names, and nothing behind them
    chmod(tree.bytes("closed").constData(), 0);
    const auto facts = [](const Entry &entry) {
        return QStringList({description(entry), entry.path(), entry.localPath(), entry.lastPathSection(),
                            entry.symLinkTarget(), QString::number(entry.fileSize()), QString::number(entry.isExists()),
                            QString::number(entry.isFile()), entry.archiveMountPointOrLocalPath()});
    };
    for (const Entry &directory : {tree.entry(), tree.entry("names only"), tree.entry("closed"), tree.entry("file")}) {
        for (const VFS::EntryChildFilter filter : {VFS::PlainListing, VFS::ArchivesAsFiles}) {
            QSet<QStringList> eager;
            for (const Entry &entry : listed(directory, filter))
                eager += facts(entry);
            QSet<QStringList> walked;
            for (const Entry &entry : listed(directory, VFS::RecursiveListing | filter))
                walked += facts(entry);
            QCOMPARE(walked, eager);
        }
    }
    chmod(tree.bytes("names only").constData(), 0755);
    chmod(tree.bytes("closed").constData(), 0755);
    const EntryList late = listed(tree.entry("names only"), VFS::RecursiveListing);
    tree.remove("names only");
    QCOMPARE(late.size(), 3);
    QVERIFY(std::none_of(late.begin(), late.end(), [](const Entry &entry) { return entry.isExists(); }));
}

void LocalVfsTest::filtersChildren()
{
    TestTree tree({"file", "dir/sub/", "flat/a.zip"});
    tree.link("l-dir", "dir");
    tree.link("l-file", "file");
    QCOMPARE(fileNames(listed(tree.entry(), VFS::ContainersOnly)), QStringList({"l-dir", "flat", "dir"}));
    QCOMPARE(fileNames(listed(tree.entry("flat"), VFS::ContainersOnly)), QStringList("a.zip"));
    QVERIFY(listed(tree.entry("flat"), VFS::ContainersOnly | VFS::ArchivesAsFiles).isEmpty());
    QCOMPARE(listed(tree.entry("flat"), VFS::ArchivesAsFiles).first().type(), int(Entry::File));
    QCOMPARE(listed(tree.entry(), VFS::RecursiveListing | VFS::NoArchiveDescent).size(), 5);
    QVERIFY(VFS::ptr()->containsContainers(tree.entry("dir")) && VFS::ptr()->containsContainers(tree.entry("flat")));
    QVERIFY(listed(tree.entry("file")).isEmpty());
    QAtomicInt cancel(1);
    QVERIFY(VFS::ptr()->childs(tree.entry(), VFS::PlainListing, &cancel).isEmpty());
}

void LocalVfsTest::deliversTheDefaultOrderBackwards()
{
    TestTree tree({"b.zip", "z dir/", "a dir/"});
    QStringList expected({"a dir", "z dir", "b.zip",  " last", "-",    "0",  "00",  "01", "1",   "1-2", "1-10",
                          "1a",    "01b",   "007",    "9",     "10",   "A",  "Z",   "_",  "a",   "a-1", "a.txt",
                          "a01",   "a1",    "a1.txt", "a1a",   "a01b", "a9", "a10", "b",  "file"});
    for (int i = 0; i < 2200; ++i) // more than one thread takes at once
        expected += "number " + QString::number(i);
    expected += {"~", "é", "😀", "ﬁ"};
    for (const QString &name : expected.mid(3))
        tree.add(name.toUtf8());
    std::reverse(expected.begin(), expected.end());
    const QStringList delivered = fileNames(listed(tree.entry()));
    QCOMPARE(delivered, expected);
}

void LocalVfsTest::climbsToTheComputer()
{
    TestTree tree({"d/x"});
    const EntryList chain = VFS::ptr()->pathEntryList(tree.entry("d/x"));
    QCOMPARE(chain.first(), VFS::ptr()->rootEntry());
    QVERIFY(chain.first().isComputerPlace() && VFS::ptr()->parent(chain.first()).isNull());
    QVERIFY(chain.at(1).isFSRoot() && !chain.at(1).isPlace());
    QCOMPARE(chain.mid(chain.size() - 3), QList<Entry>({tree.entry(), tree.entry("d"), tree.entry("d/x")}));
    QVERIFY(chain.at(chain.size() - 2).isDir()); // looked at only now
    QCOMPARE(VFS::ptr()->pathEntryList(tree.entry("d/x"), tree.entry()).size(), 3);
    QVERIFY(VFS::ptr()->pathEntryList(tree.entry(), tree.entry("d")).isEmpty());
}

void LocalVfsTest::showsPlaces()
{
    const VFS &vfs = *VFS::ptr();
    const EntryList places = vfs.placeBase()->childEntries(vfs.placesEntry());
    QCOMPARE(listed(vfs.placesEntry()), places);
    QCOMPARE(places.size(), 3);
    QVERIFY(places.at(0).isFileSystemRootPlace() && places.at(1).isHomeDirPlace() && places.at(2).isTrashDirPlace());
    for (int i = 0; i < places.size(); ++i) {
        const Entry &place = places.at(i);
        QVERIFY(place.isPlace() && place.isDirPlace() && place.type() == Entry::VirtualDir);
        QCOMPARE(vfs.entry(vfs.placeUrl(place).toString()), place);
        QCOMPARE(vfs.localPath(place.path()), place.localPath());
        QCOMPARE(vfs.parent(place), vfs.placesEntry());
        QCOMPARE(vfs.placeBase()->placeOrderIndex(place, vfs.placesEntry()), i);
    }
    QVERIFY(vfs.homeEntry().isHomeDirPlace() && !vfs.homeEntry().isPlace());
    QVERIFY(QFile(vfs.homeEntry().localPath() + "/file").open(QIODevice::WriteOnly));
    QVERIFY(listed(places.at(1)).contains(vfs.sibling(vfs.entry(vfs.homeEntry().path() + "/file"), "file")));
    QVERIFY(vfs.entry("places:/none").isNull() && vfs.entry("relative").isNull() && vfs.entry(QString()).isNull());
}

void LocalVfsTest::tellsLeaves()
{
    TestTree tree({"leaf/file", "leaf/.hidden", "dirs/file", "dirs/b/", "archives/b.zip", "links/file"});
    tree.link("leaf/l", "file");
    tree.link("leaf/broken", "none");
    tree.link("leaf/endless", "endless");
    tree.link("links/to a directory", "../leaf");
    QVERIFY(!VFS::ptr()->mayContainContainers(tree.entry("leaf")));
    for (const char *name : {"dirs", "archives", "links"})
        QVERIFY2(VFS::ptr()->mayContainContainers(tree.entry(name)), name);
}

void LocalVfsTest::convertsUrls()
{
    TestTree tree({"a b", "c"});
    const VFS &vfs = *VFS::ptr();
    const Entry home = vfs.entry("places:/home");
    const EntryList entries({tree.entry("c"), tree.entry("a b"), home});
    const QList<QUrl> urls = vfs.urlsFromEntries(entries);
    QCOMPARE(urls.last(), QUrl::fromLocalFile(home.localPath()));
    QCOMPARE(vfs.entriesFromUrls(urls), EntryList({entries.at(0), entries.at(1), vfs.homeEntry()}));
    QCOMPARE(vfs.localPath("file://localhost" + tree.path("c")), tree.path("c"));
    QVERIFY(vfs.localPath("file://elsewhere" + tree.path("c")).isEmpty());
    QVERIFY(vfs.localPath("http://localhost" + tree.path("c")).isEmpty());
    QVERIFY(vfs.entriesFromUrls({QUrl(), QUrl("file:///none/such"), QUrl("mailto:x")}).isEmpty());
}

void LocalVfsTest::answersManyThreads()
{
    TestTree tree({"d/x", "d/y.zip", "d/z/"});
    const Entry shared = VFS::ptr()->parent(tree.entry("d/x")); // not looked at yet
    const Entry walked = listed(tree.entry(), VFS::RecursiveListing).first();
    std::atomic<int> wrong{0};
    const auto work = [&] {
        for (int i = 0; i < 50; ++i) {
            const EntryList children = VFS::ptr()->childs(shared, VFS::PlainListing, nullptr);
            wrong += children.size() != 3 || !shared.isDir() || !walked.isExecutable()
                || VFS::ptr()->pathEntryList(children.first()).size() < 4
                || VFS::ptr()->isOnSlowFileSystem(children.first().path(), QString());
        }
    };
    std::thread threads[] = {std::thread(work), std::thread(work), std::thread(work)};
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(LocalVfsTest)
#include "localvfstest.moc"
