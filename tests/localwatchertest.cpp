// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testarchive.h"
#include "testtree.h"

#include <veskplatform/archiveproblem.h>

#include <QtTest>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <thread>

using namespace VeskFM;

namespace
{
std::atomic<bool> watchLimitReached{false};
std::atomic<bool> queueOverflows{false};
std::atomic<int> inotifyDescriptor{-1};
std::atomic<bool> watchHangs{false}; // the next one, once the kernel has it
QSemaphore watchGoesOn;

/// Puts another directory in the place of @p path and has that noticed.
void replaceUnseen(const char *path)
{
    int unread = rmdir(path) == 0 && mkdir(path, 0755) == 0;
    while (unread > 0 && ioctl(inotifyDescriptor, FIONREAD, &unread) == 0)
        std::this_thread::yield();
}
} // namespace

// These three stand in front of the system's: what a full kernel answers cannot be had otherwise without disturbing
// other programs.
extern "C" Q_DECL_EXPORT int inotify_init1(int flags) noexcept
{
    return inotifyDescriptor = int(syscall(SYS_inotify_init1, flags));
}

extern "C" Q_DECL_EXPORT int inotify_add_watch(int fd, const char *path, uint32_t mask) noexcept
{
    if (watchLimitReached) {
        errno = ENOSPC;
        return -1;
    }
    const int id = int(syscall(SYS_inotify_add_watch, fd, path, mask));
    if (watchHangs.exchange(false)) {
        replaceUnseen(path);
        watchGoesOn.acquire();
    }
    return id;
}

extern "C" Q_DECL_EXPORT ssize_t read(int fd, void *buffer, size_t size)
{
    const ssize_t got = syscall(SYS_read, fd, buffer, size);
    if (got <= 0 || fd != inotifyDescriptor || !queueOverflows.exchange(false))
        return got;
    inotify_event lost = {};
    lost.wd = -1;
    lost.mask = IN_Q_OVERFLOW;
    memcpy(buffer, &lost, sizeof lost); // instead of what really happened
    return sizeof lost;
}

namespace
{
/// What the watcher told, one line for each signal: its sign and the file's name, in the order of arrival.
class EventLog : public QObject
{
public:
    explicit EventLog(const QString &directory)
    {
        const auto note = [=](const char *sign) {
            return [=](const Entry &entry) {
                const QString path = entry.path();
                if (path.startsWith(QLatin1Char('/')) && !path.startsWith(directory))
                    return; // what another test left behind
                entries.append(entry);
                lines.append(QLatin1String(sign) + path.mid(path.lastIndexOf(QLatin1Char('/')) + 1));
            };
        };
        connect(watcher(), &EntryWatcher::entryCreated, this, note("+"));
        connect(watcher(), &EntryWatcher::entryDeleted, this, note("-"));
        connect(watcher(), &EntryWatcher::entryChanged, this, note("~"));
        connect(watcher(), &EntryWatcher::entryAttributesChanged, this, note("="));
        connect(watcher(), &EntryWatcher::entryReset, this, note("!"));
    }

    /// Waits until exactly @p expected has been told, and starts anew.
    bool tells(const QStringList &expected)
    {
        const bool told = QTest::qWaitFor([&] { return lines == expected; });
        if (!told)
            qWarning() << "told instead of" << expected << ":" << lines;
        lines.clear();
        return told;
    }
    QStringList lines;
    EntryList entries;
};

EntryList list(const Entry &entry, VFS::EntryChildFilters filters = VFS::PlainListing)
{
    EntryList children;
    QEventLoop loop; // receives it queued: signals of the watcher come from other threads
    QObject::connect(watcher(), &EntryWatcher::dirListed, &loop,
                     [&](const Entry &listed, VFS::EntryChildFilters listedFilters, const EntryList &found) {
                         if (listed == entry && listedFilters == filters) {
                             children = found;
                             loop.quit();
                         }
                     });
    QTimer::singleShot(5000, &loop, [] { qFatal("no listing"); });
    watcher()->listDir(entry, filters);
    loop.exec();
    return children;
}

/// Lists a directory, which is watched for as long as somebody keeps what is returned.
Entry shown(const Entry &directory, VFS::EntryChildFilters filters = VFS::PlainListing)
{
    list(directory, filters);
    return directory;
}
} // namespace

class LocalWatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersOnceWhateverIsAsked();
    void tellsEachChangeOnce();
    void losesNothingWhileListing();
    void keepsNobodyWaitingForADirectoryThatHangs();
    void followsOneDirectoryByItsPaths();
    void dropsARenamedDirectory();
    void tellsOnceThatADirectoryVanished();
    void resetsPlaces();
    void resetsEverythingAfterAnOverflow();
    void tellsABadEntryThatIsGone();
    void letsGoOfDirectoriesThatNobodyShows();
    void followsArchives();
    void pollsBeyondTheLimitOfWatches();
};

void LocalWatcherTest::answersOnceWhateverIsAsked()
{
    TestTree tree({"file", "missing", "locked/"});
    tree.link("broken", "nothing");
    tree.link("endless", "endless");
    const Entry missing = tree.entry("missing");
    tree.remove("missing");
    chmod(tree.bytes("locked").constData(), 0);
    for (const Entry &entry :
         {missing, tree.entry("file"), tree.entry("locked"), tree.entry("broken"), tree.entry("endless")}) {
        QObject context;
        int answers = 0;
        connect(watcher(), &EntryWatcher::dirListed, &context,
                [&](const Entry &listed) { answers += listed == entry; });
        QVERIFY2(list(entry).isEmpty(), qPrintable(entry.path()));
        list(tree.entry()); // a second answer would have come before this one
        QCOMPARE(answers, 1);
    }
}

void LocalWatcherTest::tellsEachChangeOnce()
{
    TestTree tree({"old"});
    const Entry top = shown(tree.entry());
    EventLog log(tree.path());
    tree.add("new", "some text");
    QVERIFY(log.tells({"+new"})); // written and closed as well, but that is how it came to be
    QCOMPARE(log.entries.last().fileSize(), 9);
    tree.write("old", "longer than it was");
    QVERIFY(log.tells({"~old"}));
    QCOMPARE(log.entries.last().fileSize(), 18);
    chmod(tree.bytes("old").constData(), 0755);
    QVERIFY(log.tells({"=old"}));
    QVERIFY(log.entries.last().isExecutable());
    tree.rename("old", "renamed");
    QVERIFY(log.tells({"-old", "+renamed"}));
    tree.remove("renamed");
    tree.link("renamed", "new"); // another kind of node under the same name
    QVERIFY(log.tells({"-renamed", "+renamed"}));
    QCOMPARE(log.entries.last().type(), int(Entry::FileLink));
    tree.add("file");
    tree.rename("file", "renamed"); // in its place, in one step
    QVERIFY(log.tells({"-file", "-renamed", "+renamed"}));
    tree.add("a.zip");
    QVERIFY(log.tells({"+a.zip"}));
    QCOMPARE(log.entries.last().type(), int(Entry::Archive));
    list(top, VFS::ArchivesAsFiles);
    tree.add("b.zip");
    QVERIFY(log.tells({"+b.zip"}));
    QCOMPARE(log.entries.last().type(), int(Entry::File)); // as the last listing wanted it
    QFile file(tree.path("new"));
    QVERIFY(file.open(QIODevice::Append | QIODevice::Unbuffered));
    for (int i = 0; i < 2000; ++i)
        file.write("some text\n");
    QTRY_COMPARE(log.entries.last().fileSize(), 20009);
    QVERIFY2(log.lines.size() < 20, qPrintable(log.lines.join(' '))); // joined
    QCOMPARE(log.lines.count("~new"), log.lines.size());
    file.close();
    log.lines.clear();
    tree.add("\xff\n");
    QTRY_COMPARE(log.lines.filter("+").size(), 1);
    QCOMPARE(VFS::ptr()->entriesFromUrls(VFS::ptr()->urlsFromEntries({log.entries.last()})),
             EntryList({log.entries.last()}));
}

void LocalWatcherTest::losesNothingWhileListing()
{
    TestTree tree;
    for (int i = 0; i < 500; ++i)
        tree.add(QByteArray::number(i));
    const Entry top = tree.entry();
    EventLog log(tree.path());
    std::atomic<bool> stop{false};
    std::thread vandal([&] { // works on names that are there, and on some that are not
        QRandomGenerator random(20240611);
        for (int i = 0; i < 20000 && !stop; ++i) {
            const QByteArray from = tree.bytes(QByteArray::number(random.bounded(600)));
            const QByteArray to = tree.bytes(QByteArray::number(random.bounded(600)));
            if (const int what = random.bounded(3))
                what == 1 ? ::unlink(from.constData()) : ::close(::creat(from.constData(), 0644));
            else
                ::rename(from.constData(), to.constData());
        }
    });
    connect(watcher(), &EntryWatcher::dirListed, &log, [&log](auto, auto, const EntryList &children) {
        log.lines = fileNames(children).replaceInStrings(QRegularExpression("^"), "+"); // and then what comes after it
    });
    for (int i = 0; i < 5; ++i)
        list(top);
    stop = true;
    vandal.join();
    const auto namesInAView = [&log] {
        QStringList names;
        for (const QString &line : qAsConst(log.lines)) {
            names.removeAll(line.mid(1));
            if (!line.startsWith(QLatin1Char('-')))
                names.append(line.mid(1));
        }
        names.sort();
        return names;
    };
    QStringList onDisk = fileNames(VFS::ptr()->childs(top, VFS::PlainListing, nullptr));
    onDisk.sort();
    QTRY_COMPARE_WITH_TIMEOUT(namesInAView(), onDisk, 20000);
}

void LocalWatcherTest::keepsNobodyWaitingForADirectoryThatHangs()
{
    TestTree tree({"hanging/", "other/"});
    EventLog log(tree.path());
    watchHangs = true;
    watcher()->listDir(tree.entry("hanging"), VFS::PlainListing);
    QTRY_VERIFY(!watchHangs);
    list(tree.entry("other"));
    tree.add("other/a");
    QVERIFY(log.tells({"+a"}));
    bool isListed = false;
    connect(watcher(), &EntryWatcher::dirListed, &log, [&isListed] { isListed = true; });
    watchGoesOn.release();
    QTRY_VERIFY(isListed);
    tree.add("hanging/b"); // of the directory that is there now
    QVERIFY(log.tells({"+b"}));
}

void LocalWatcherTest::followsOneDirectoryByItsPaths()
{
    TestTree tree({"\xff/a", "?/a"});
    tree.link("link", "\xff");
    const EntryList directories = VFS::ptr()->childs(tree.entry(), VFS::PlainListing, nullptr);
    for (const Entry &directory : directories)
        QCOMPARE(fileNames(list(directory)), QStringList({"a"}));
    EventLog log(tree.path());
    tree.write("\xff/a", "other content");
    QVERIFY(log.tells({"~a", "~a"}));
    for (const Entry &entry : qAsConst(log.entries))
        QCOMPARE(entry.fileSize(), 13);
    QVERIFY(log.entries.contains(tree.entry("link/a")) && log.entries.first() != log.entries.last());
}

void LocalWatcherTest::dropsARenamedDirectory()
{
    TestTree tree({"d/sub/x", "above/deep/x"});
    const EntryList directories({shown(tree.entry("d")), shown(tree.entry("d/sub")), shown(tree.entry("above/deep"))});
    EventLog log(tree.path());
    tree.rename("d", "e");
    QTRY_COMPARE(log.lines.size(), 2);
    QVERIFY(log.lines.contains("-d") && log.lines.contains("-sub"));
    tree.rename("above", "other"); // which nobody watches
    tree.add("other/deep/y");
    QTRY_VERIFY(log.lines.contains("-deep") && !log.lines.contains("+y"));
    log.lines.clear();
    const Entry moved = shown(tree.entry("e/sub"));
    tree.add("e/sub/z");
    QVERIFY(log.tells({"+z"}));
    QCOMPARE(log.entries.last().path(), tree.path("e/sub/z"));
}

void LocalWatcherTest::tellsOnceThatADirectoryVanished()
{
    TestTree tree({"alone/x", "seen/below/x"});
    const EntryList directories(
        {shown(tree.entry("alone")), shown(tree.entry("seen")), shown(tree.entry("seen/below"))});
    EventLog log(tree.path());
    tree.remove("alone");
    tree.remove("seen/below");
    QTRY_VERIFY(log.lines.contains("-alone") && log.lines.contains("-below"));
    tree.add("seen/last"); // behind everything that could still come
    QTRY_VERIFY(log.lines.contains("+last"));
    QCOMPARE(log.lines.filter("alone") + log.lines.filter("below"), QStringList({"-alone", "-below"}));
}

void LocalWatcherTest::resetsPlaces()
{
    const Entry place = shown(VFS::ptr()->entry("places:/home"));
    EventLog log(place.localPath());
    QFile created(place.localPath() + "/created");
    QVERIFY(created.open(QIODevice::WriteOnly));
    QTRY_VERIFY(log.lines.contains("!home"));
    QVERIFY(fileNames(list(place)).contains("created"));
}

void LocalWatcherTest::resetsEverythingAfterAnOverflow()
{
    TestTree tree({"a/x", "b/x"});
    const EntryList directories({shown(tree.entry("a")), shown(tree.entry("b"))});
    EventLog log(tree.path());
    queueOverflows = true;
    tree.add("a/y");
    QTRY_VERIFY(log.lines.contains("!a") && log.lines.contains("!b"));
}

void LocalWatcherTest::tellsABadEntryThatIsGone()
{
    TestTree tree({"there", "gone"});
    const Entry there = tree.entry("there");
    const Entry gone = tree.entry("gone");
    tree.remove("gone");
    EventLog log(tree.path());
    for (const Entry &bad : {there, gone, gone})
        watcher()->addBadEntry(bad);
    QVERIFY(log.tells({"-gone"}));
    list(tree.entry()); // time for more to come
    QVERIFY(log.lines.isEmpty());
}

void LocalWatcherTest::letsGoOfDirectoriesThatNobodyShows()
{
    TestTree tree({"shown/x"});
    const Entry directory = shown(tree.entry("shown"));
    for (int i = 0; i < 300; ++i)
        list(tree.add("d" + QByteArray::number(i) + '/'));
    EventLog log(tree.path());
    tree.add("d0/x");
    tree.add("shown/y");
    QVERIFY(log.tells({"+y"}));
}

void LocalWatcherTest::followsArchives()
{
    TestTree tree({"other/"});
    packArchive(tree.path("a.zip"), {{"d/before", "x"}});
    packArchive(tree.path("other/a.zip"), {{"d/after", "x"}});
    const Entry directory = tree.entry("a.zip/d");
    const Entry before = list(directory).value(0);
    QCOMPARE(before.path(), tree.path("a.zip/d/before"));
    EventLog log(tree.path());
    tree.rename("other/a.zip", "a.zip");
    QVERIFY(log.tells({"-a.zip", "+a.zip", "!d"}));
    QCOMPARE(fileNames(list(directory)), QStringList("after"));
    QVERIFY(!VFS::ptr()->isEntryExists(before) && before.isFile());
    tree.remove("a.zip");
    QVERIFY(log.tells({"-a.zip", "!d"}));
    QVERIFY(list(directory).isEmpty() && archiveProblem(before).contains("a.zip cannot be read"));
}

void LocalWatcherTest::pollsBeyondTheLimitOfWatches()
{
    TestTree tree({"a/", "b/"});
    watchLimitReached = true;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("limit of watched directories")); // once, for two
    const EntryList directories({shown(tree.entry("a")), shown(tree.entry("b"))});
    EventLog log(tree.path());
    tree.add("b/x");
    QVERIFY(log.tells({"!b"}));
    watchLimitReached = false;
    list(directories.last());
    tree.add("b/y");
    QVERIFY(log.tells({"+y"}));
}

QTEST_GUILESS_MAIN(LocalWatcherTest)
#include "localwatchertest.moc"
