// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskplatform/archivemountsmanagerproxy.h>
#include <veskplatform/standardpaths.h>
#include <veskplatform/vfsplacebase.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>
#include <QUrl>

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

Entry named(const EntryList &entries, const QString &name)
{
    for (const Entry &entry : entries) {
        if (entry.fileName() == name)
            return entry;
    }
    return {};
}

/// The default order of names, one character after the other.
bool namesBefore(const QString &a, const QString &b)
{
    const auto number = [](const QString &text, int *at) { // runs of digits, without leading zeros
        const int start = *at;
        while (*at < text.size() && text.at(*at) >= QLatin1Char('0') && text.at(*at) <= QLatin1Char('9'))
            ++*at;
        QString digits = text.mid(start, *at - start);
        while (digits.startsWith(QLatin1Char('0')))
            digits.remove(0, 1);
        return qMakePair(*at - start, digits);
    };
    int i = 0;
    int j = 0;
    while (i < a.size() && j < b.size()) {
        int afterA = i;
        int afterB = j;
        const auto [lengthA, digitsA] = number(a, &afterA);
        const auto [lengthB, digitsB] = number(b, &afterB);
        if (lengthA > 0 && lengthB > 0) {
            if (digitsA.size() != digitsB.size() || digitsA != digitsB)
                return digitsA.size() != digitsB.size() ? digitsA.size() < digitsB.size() : digitsA < digitsB;
            i = afterA;
            j = afterB;
        } else if (a.at(i) != b.at(j)) {
            return a.at(i) < b.at(j);
        } else {
            ++i;
            ++j;
        }
    }
    return i < a.size() || j < b.size() ? j < b.size() : a < b;
}
} // namespace

class LocalVfsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesEveryFileOneToOne_data();
    void namesEveryFileOneToOne();
    void keepsLookalikeNamesApart();
    void refusesTextsThatNameNoFile_data();
    void refusesTextsThatNameNoFile();
    void takesPathsAsTheSystemDoes_data();
    void takesPathsAsTheSystemDoes();
    void knowsWhatItListed_data();
    void knowsWhatItListed();
    void filtersChildren();
    void deliversTheDefaultOrderBackwards();
    void stopsWhenCancelled();
    void climbsToTheComputer();
    void showsPlaces();
    void readsFavorites();
    void convertsUrls();
    void staysOffSlowDisksOnly();
    void answersManyThreads();
};

void LocalVfsTest::namesEveryFileOneToOne_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isText");
    QTest::newRow("ASCII") << QByteArray("plain.txt") << true;
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80") << true;
    QTest::newRow("Latin-1") << QByteArray("caf\xe9") << false;
    QTest::newRow("byte in the middle") << QByteArray("a\xff\x80z") << false;
    QTest::newRow("longer form of a slash") << QByteArray("a\xc0\xaf"
                                                          "b")
                                            << false;
    QTest::newRow("half of a surrogate pair") << QByteArray("\xed\xa0\x80") << false;
    QTest::newRow("cut short") << QByteArray("\xf0\x9f\x98") << false;
    QTest::newRow("beyond Unicode") << QByteArray("\xf5\x80\x80\x80") << false;
    QTest::newRow("a code point that stands for a byte") << QByteArray("\xf4\x8f\xbf\xbf") << false;
    QTest::newRow("its neighbour") << QByteArray("\xf4\x8f\xbd\xbf") << true;
    QTest::newRow("line break and control characters") << QByteArray("a\nb\r\x01\x7f\t") << true;
    QTest::newRow("looks encoded") << QByteArray("100%FF%2F#?&;:@") << true;
    QTest::newRow("blanks around") << QByteArray(" a ") << true;
    QTest::newRow("as long as can be") << QByteArray(255, 'n') << true;
    QTest::newRow("as long as can be, no text") << QByteArray(255, '\xbf') << false;
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
    QCOMPARE(VFS::ptr()->sibling(tree.entry(), entry.fileName()), Entry());
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

void LocalVfsTest::refusesTextsThatNameNoFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("NUL behind a real name") << QStringLiteral("a") + QChar(0) + "b";
    QTest::newRow("lone high surrogate") << QStringLiteral("a") + QChar(0xD800);
    QTest::newRow("lone low surrogate") << QStringLiteral("a") + QChar(0xDC00) + "b";
    QTest::newRow("too long") << QString(300, 'a');
    QTest::newRow("missing") << "missing";
    QTest::newRow("below a file") << "a/x";
    QTest::newRow("behind a missing directory") << "missing/../a";
}

void LocalVfsTest::refusesTextsThatNameNoFile()
{
    QFETCH(QString, name);
    TestTree tree({"a", "a?", "a?b", "ab"});
    QVERIFY(tree.entry(name).isNull());
    QVERIFY(VFS::ptr()->sibling(tree.entry("a"), name).isNull());
    QVERIFY(VFS::ptr()->entriesFromUrls({QUrl::fromLocalFile(tree.path(name))}).isEmpty());
}

void LocalVfsTest::takesPathsAsTheSystemDoes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("slashes and dots") << "//d///./x/"
                                      << "d/x";
    QTest::newRow("up from a directory") << "d/../a"
                                         << "a";
    QTest::newRow("up from a link") << "link/../a"
                                    << "other/a"; // not the one beside the link
    QTest::newRow("to the link itself") << "link/"
                                        << "link";
    QTest::newRow("dots in names") << "d/..x"
                                   << "d/..x";
}

void LocalVfsTest::takesPathsAsTheSystemDoes()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    TestTree tree({"d/x", "d/..x", "a", "other/a", "other/deep/x"});
    tree.link("link", "other/deep");
    QCOMPARE(tree.entry(path).path(), tree.path(name));
}

void LocalVfsTest::knowsWhatItListed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("traits"); // d directory, l link, h hidden, x executable
    QTest::newRow("file") << "file" << int(Entry::File) << "";
    QTest::newRow("hidden directory") << ".dir" << int(Entry::Dir) << "dhx";
    QTest::newRow("program") << "program" << int(Entry::File) << "x";
    QTest::newRow("archive") << "a.ZIP" << int(Entry::Archive) << "";
    QTest::newRow("packed tar") << "a.tar.new" << int(Entry::Archive) << "";
    QTest::newRow("only an ending") << ".zip" << int(Entry::File) << "h";
    QTest::newRow("ending of another word") << "gzip" << int(Entry::File) << "";
    QTest::newRow("directory named like an archive") << "d.zip" << int(Entry::Dir) << "dx";
    QTest::newRow("link to a file") << "l-file" << int(Entry::FileLink) << "l";
    QTest::newRow("link to a directory") << "l-dir" << int(Entry::DirLink) << "dlx";
    QTest::newRow("link to an archive") << "l.zip" << int(Entry::ArchiveLink) << "l";
    QTest::newRow("broken link") << "broken" << int(Entry::FileLink) << "l";
    QTest::newRow("endless link") << "endless" << int(Entry::FileLink) << "l";
    QTest::newRow("pipe") << "pipe.zip" << int(Entry::File) << "";
}

void LocalVfsTest::knowsWhatItListed()
{
    QFETCH(QString, name);
    TestTree tree({"file", ".dir/", "program", "a.ZIP", "a.tar.new", ".zip", "gzip", "d.zip/"});
    chmod(tree.bytes("program").constData(), 0755);
    tree.link("l-file", "file");
    tree.link("l-dir", tree.bytes(".dir"));
    tree.link("l.zip", "a.ZIP");
    tree.link("broken", "nowhere");
    tree.link("endless", "endless");
    mkfifo(tree.bytes("pipe.zip").constData(), 0644);
    const Entry fromListing = named(listed(tree.entry()), name);
    for (const Entry &entry : {fromListing, tree.entry(name)}) {
        QTEST(entry.type(), "type");
        const QString traits = QString(entry.isDir() ? "d" : "") + (entry.isSymLink() ? "l" : "")
            + (entry.isHidden() ? "h" : "") + (entry.isExecutable() ? "x" : "");
        QTEST(traits, "traits");
        QVERIFY(entry.isExists());
        QCOMPARE(entry.isFile(), !entry.isDir());
        QVERIFY(!entry.isArchiveMountPoint() && !entry.isPlace());
        QCOMPARE(VFS::ptr()->mayContainContainers(entry), entry.isDir());
        if (name == QLatin1String("broken"))
            QCOMPARE(entry.symLinkTarget(), tree.path("nowhere"));
        if (name == QLatin1String("l-dir"))
            QCOMPARE(VFS::ptr()->symLinkTargetEntry(entry), tree.entry(".dir"));
    }
    QCOMPARE(EntryList({tree.entry("broken"), tree.entry("l-file")}).brokenSymlinks(), EntryList(tree.entry("broken")));
}

void LocalVfsTest::filtersChildren()
{
    TestTree tree({"file", "a.zip", "dir/sub/", "flat/file"});
    tree.link("l-dir", "dir");
    tree.link("l-file", "file");
    QCOMPARE(fileNames(listed(tree.entry(), VFS::ContainersOnly)), QStringList({"l-dir", "flat", "dir"}));
    QCOMPARE(named(listed(tree.entry(), VFS::ArchivesAsFiles), "a.zip").type(), int(Entry::File));
    QCOMPARE(listed(tree.entry(), VFS::RecursiveListing | VFS::NoArchiveDescent).size(), 6);
    QVERIFY(VFS::ptr()->containsContainers(tree.entry("dir")));
    QVERIFY(!VFS::ptr()->containsContainers(tree.entry("flat")));
    QVERIFY(listed(tree.entry("file")).isEmpty());
}

void LocalVfsTest::deliversTheDefaultOrderBackwards()
{
    TestTree tree({"b.zip", "z dir/", "a dir/"});
    QRandomGenerator random(1);
    const QStringList parts = {"1", "01", "10", "9",   "007",    "A", "a",     "file", ".", "-", "é",
                               "ﬁ", "😀",  "00", "999", "123456", "Z", " last", "b",    "_", "0", "~"};
    QSet<QString> names;
    while (names.size() < 2200) { // more than one thread takes at once
        QString name;
        for (int i = random.bounded(1, 7); i > 0; --i)
            name += parts.at(random.bounded(parts.size()));
        if (name != QLatin1String(".") && name != QLatin1String(".."))
            names.insert(name);
    }
    for (const QString &name : qAsConst(names))
        tree.add(name.toUtf8(), "");
    QStringList expected = names.values();
    std::sort(expected.begin(), expected.end(), namesBefore);
    expected = QStringList({"a dir", "z dir", "b.zip"}) + expected;
    std::reverse(expected.begin(), expected.end());
    const QStringList delivered = fileNames(listed(tree.entry()));
    QCOMPARE(delivered, expected);
}

void LocalVfsTest::stopsWhenCancelled()
{
    TestTree tree({"a", "b"});
    QAtomicInt cancel(1);
    QVERIFY(VFS::ptr()->childs(tree.entry(), VFS::PlainListing, &cancel).isEmpty());
}

void LocalVfsTest::climbsToTheComputer()
{
    TestTree tree({"d/x"});
    const EntryList chain = VFS::ptr()->pathEntryList(tree.entry("d/x"));
    QCOMPARE(chain.first(), VFS::ptr()->rootEntry());
    QVERIFY(chain.first().isRoot() && chain.first().isComputerPlace());
    QVERIFY(VFS::ptr()->parent(chain.first()).isNull());
    QCOMPARE(chain.at(1).path(), QStringLiteral("/"));
    QVERIFY(chain.at(1).isFSRoot() && !chain.at(1).isPlace());
    QCOMPARE(chain.mid(chain.size() - 3), QList<Entry>({tree.entry(), tree.entry("d"), tree.entry("d/x")}));
    QVERIFY(chain.at(chain.size() - 2).isDir()); // looked at only now
    QCOMPARE(VFS::ptr()->pathEntryList(tree.entry("d/x"), tree.entry()).size(), 3);
    QVERIFY(VFS::ptr()->pathEntryList(tree.entry(), tree.entry("d")).isEmpty());
    QVERIFY(listed(VFS::ptr()->rootEntry()).contains(chain.at(1)));
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
        QCOMPARE(vfs.entry(place.path()), place);
        QCOMPARE(vfs.entry(vfs.placeUrl(place).toString()), place);
        QCOMPARE(vfs.localPath(place.path()), place.localPath());
        QCOMPARE(vfs.parent(place), vfs.placesEntry());
        QCOMPARE(vfs.placeBase()->placeOrderIndex(place, vfs.placesEntry()), i);
    }
    QVERIFY(vfs.homeEntry().isHomeDirPlace() && !vfs.homeEntry().isPlace());
    QVERIFY(QFile(vfs.homeEntry().localPath() + "/file").open(QIODevice::WriteOnly));
    QVERIFY(listed(places.at(1)).contains(vfs.sibling(vfs.entry(vfs.homeEntry().path() + "/file"), "file")));
    QVERIFY(QDir().mkpath(StandardPaths::trashDirPath()));
    QVERIFY(
        !vfs.entry(StandardPaths::trashDirPath()).isTrashDirPlace()); // a plain directory; the place is another node
    QVERIFY(listed(vfs.storageDevicesEntry()).isEmpty() && listed(vfs.networkEntry()).isEmpty());
    QVERIFY(vfs.archiveMountsManager()->mountPath(places.first().localPath()).isEmpty());
    QVERIFY(vfs.entry("places:/none").isNull() && vfs.entry("relative").isNull() && vfs.entry(QString()).isNull());
}

void LocalVfsTest::readsFavorites()
{
    const QString directory = QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + "/gtk-3.0";
    QVERIFY(QDir().mkpath(directory));
    QFile file(directory + "/bookmarks");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("file:///usr/share My programs\nsftp://host/dir Remote\n\nnonsense\nfile:///a%20b/%ff\n"
               "file:///usr/share again\nfile:///\n");
    file.close();
    const VFS &vfs = *VFS::ptr();
    const EntryList favorites = listed(vfs.favoritesEntry());
    QCOMPARE(favorites.size(), 3);
    QCOMPARE(vfs.favoritePlace(favorites.at(0)).name(), QStringLiteral("My programs"));
    QCOMPARE(favorites.at(0).localPath(), QStringLiteral("/usr/share"));
    QVERIFY(favorites.at(0).isFavoritePlace() && favorites.at(0).isPlace());
    QCOMPARE(vfs.favoritePlace(favorites.at(2)).name(), QStringLiteral("/"));
    for (const Entry &favorite : favorites) {
        QCOMPARE(vfs.entry(favorite.path()), favorite);
        QCOMPARE(vfs.parent(favorite), vfs.favoritesEntry());
    }
    QVERIFY(!vfs.favoritePlace(vfs.homeEntry()).isValid());
}

void LocalVfsTest::convertsUrls()
{
    TestTree tree({"a b", "c"});
    const VFS &vfs = *VFS::ptr();
    const Entry home = vfs.entry("places:/home");
    const EntryList entries({tree.entry("c"), tree.entry("a b"), home});
    const QList<QUrl> urls = vfs.urlsFromEntries(entries);
    QCOMPARE(urls,
             QList<QUrl>({QUrl::fromLocalFile(tree.path("c")), QUrl::fromLocalFile(tree.path("a b")),
                          QUrl::fromLocalFile(home.localPath())}));
    QCOMPARE(vfs.entriesFromUrls(urls), EntryList({entries.at(0), entries.at(1), vfs.homeEntry()}));
    QCOMPARE(vfs.localPath("file://localhost" + tree.path("c")), tree.path("c"));
    QVERIFY(vfs.localPath("file://elsewhere" + tree.path("c")).isEmpty());
    QVERIFY(vfs.localPath("http://localhost" + tree.path("c")).isEmpty());
    QVERIFY(vfs.entriesFromUrls({QUrl(), QUrl("file:///none/such"), QUrl("mailto:x")}).isEmpty());
}

void LocalVfsTest::staysOffSlowDisksOnly()
{
    TestTree tree({"x"});
    const Entry entry = tree.entry("x");
    QVERIFY(!VFS::ptr()->isOnSlowFileSystem(entry.path(), entry.localPath()));
    QVERIFY(!VFS::ptr()->isOnNonHomeNetworkFileSystem(entry));
    QVERIFY(!VFS::ptr()->isOnSlowFileSystem("/none/such", QString()));
}

void LocalVfsTest::answersManyThreads()
{
    TestTree tree({"d/x", "d/y.zip", "d/z/"});
    const Entry shared = VFS::ptr()->parent(tree.entry("d/x")); // not looked at yet
    std::atomic<int> wrong{0};
    const auto work = [&] {
        for (int i = 0; i < 50; ++i) {
            const EntryList children = VFS::ptr()->childs(shared, VFS::PlainListing, nullptr);
            if (children.size() != 3 || !shared.isDir() || VFS::ptr()->pathEntryList(children.first()).size() < 4
                || VFS::ptr()->entry("places:/home").isNull()
                || VFS::ptr()->isOnSlowFileSystem(children.first().path(), QString()))
                ++wrong;
        }
    };
    std::thread threads[] = {std::thread(work), std::thread(work), std::thread(work)};
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(LocalVfsTest)
#include "localvfstest.moc"
