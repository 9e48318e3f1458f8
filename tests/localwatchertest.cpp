// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <QEventLoop>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTimer>

#include <fcntl.h>
#include <sys/inotify.h>
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
    return int(syscall(SYS_inotify_add_watch, fd, path, mask));
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
        : m_directory(directory)
    {
        const auto note = [this](const char *sign) {
            return [this, sign](const Entry &entry) {
                const QString path = entry.path();
                if (path.startsWith(QLatin1Char('/')) && !path.startsWith(m_directory))
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
    QStringList lines;
    EntryList entries;

private:
    const QString m_directory;
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

/// The names that a view would show: a listing, and what was told since.
class ShadowView : public QObject
{
public:
    explicit ShadowView(const Entry &directory)
    {
        connect(watcher(), &EntryWatcher::dirListed, this, [=](const Entry &listed, auto, const EntryList &children) {
            if (listed != directory)
                return;
            for (const Entry &child : children)
                paths.insert(child.path());
            isListed = true;
        });
        const auto isChild = [=](const Entry &entry) {
            return isListed && VFS::parentDirPath(entry.path()) == directory.path();
        };
        connect(watcher(), &EntryWatcher::entryCreated, this, [=](const Entry &entry) {
            if (isChild(entry))
                paths.insert(entry.path());
        });
        connect(watcher(), &EntryWatcher::entryDeleted, this, [=](const Entry &entry) { paths.remove(entry.path()); });
    }
    QSet<QString> paths;
    bool isListed = false;
};
} // namespace

class LocalWatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersOnceWhateverIsAsked_data();
    void answersOnceWhateverIsAsked();
    void tellsEachChangeOnce();
    void tellsArchivesAsTheyWereListed();
    void joinsManyWritesIntoOneChange();
    void losesNothingWhileListing();
    void followsBothPathsOfOneDirectory();
    void followsADirectoryWhoseNameIsNoText();
    void dropsARenamedDirectory();
    void noticesThatADirectoryAboveWasRenamed();
    void tellsOnceThatADirectoryVanished();
    void resetsPlacesOfAChangedDirectory();
    void resetsFavoritesWhenTheBookmarksChange();
    void resetsEverythingAfterAnOverflow();
    void tellsABadEntryThatIsGone();
    void letsGoOfDirectoriesThatNobodyShows();
    void pollsBeyondTheLimitOfWatches();
};

void LocalWatcherTest::answersOnceWhateverIsAsked_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing";
    QTest::newRow("a file") << "file";
    QTest::newRow("unreadable") << "locked";
    QTest::newRow("broken link") << "broken";
    QTest::newRow("endless link") << "endless";
}

void LocalWatcherTest::answersOnceWhateverIsAsked()
{
    QFETCH(QString, name);
    TestTree tree({"file", "missing", "locked/", "locked/x"});
    tree.link("broken", "nothing");
    tree.link("endless", "endless");
    const Entry entry = tree.entry(name);
    tree.remove("missing");
    chmod(tree.bytes("locked").constData(), 0);
    int answers = 0;
    connect(watcher(), &EntryWatcher::dirListed, this, [&](const Entry &listed) { answers += listed == entry; });
    const EntryList children = list(entry);
    list(tree.entry()); // a second answer would have come before this one
    QCOMPARE(answers, 1);
    disconnect(watcher(), nullptr, this, nullptr);
    if (name != QLatin1String("locked") || geteuid() != 0)
        QVERIFY(children.isEmpty());
    chmod(tree.bytes("locked").constData(), 0755);
}

void LocalWatcherTest::tellsEachChangeOnce()
{
    TestTree tree({"old"});
    const Entry top = tree.entry();
    list(top);
    EventLog log(tree.path());
    tree.add("new", "some text");
    QTRY_COMPARE(log.lines, QStringList({"+new"})); // written and closed as well, but that is how it came to be
    QCOMPARE(log.entries.last().fileSize(), 9);
    log.lines.clear();
    tree.write("old", "longer than it was");
    QTRY_COMPARE(log.lines, QStringList({"~old"}));
    QCOMPARE(log.entries.last().fileSize(), 18);
    log.lines.clear();
    chmod(tree.bytes("old").constData(), 0755);
    QTRY_COMPARE(log.lines, QStringList({"=old"}));
    QVERIFY(log.entries.last().isExecutable());
    log.lines.clear();
    tree.rename("old", "renamed");
    QTRY_COMPARE(log.lines, QStringList({"-old", "+renamed"}));
    log.lines.clear();
    tree.remove("renamed");
    tree.link("renamed", "new"); // another kind of node under the same name
    QTRY_COMPARE(log.lines, QStringList({"-renamed", "+renamed"}));
    QCOMPARE(log.entries.last().type(), int(Entry::FileLink));
    log.lines.clear();
    tree.add("\xff\n");
    QTRY_COMPARE(log.lines.size(), 1);
    QCOMPARE(VFS::ptr()->entriesFromUrls(VFS::ptr()->urlsFromEntries({log.entries.last()})),
             EntryList({log.entries.last()}));
}

void LocalWatcherTest::tellsArchivesAsTheyWereListed()
{
    TestTree tree;
    const Entry top = tree.entry();
    list(top, VFS::ArchivesAsFiles);
    EventLog log(tree.path());
    tree.add("a.zip");
    QTRY_COMPARE(log.lines, QStringList({"+a.zip"}));
    QCOMPARE(log.entries.last().type(), int(Entry::File));
    list(top);
    tree.add("b.zip");
    QTRY_COMPARE(log.lines, QStringList({"+a.zip", "+b.zip"}));
    QCOMPARE(log.entries.last().type(), int(Entry::Archive));
}

void LocalWatcherTest::joinsManyWritesIntoOneChange()
{
    TestTree tree({"log"});
    const Entry top = tree.entry();
    list(top);
    EventLog log(tree.path());
    QFile file(tree.path("log"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (int i = 0; i < 2000; ++i)
        file.write("some text\n");
    file.close();
    QTRY_VERIFY(!log.entries.isEmpty() && log.entries.last().fileSize() == 20000);
    QVERIFY2(log.lines.size() < 20, qPrintable(QString::number(log.lines.size())));
    QCOMPARE(QSet<QString>(log.lines.begin(), log.lines.end()), QSet<QString>({"~log"}));
}

void LocalWatcherTest::losesNothingWhileListing()
{
    TestTree tree;
    for (int i = 0; i < 500; ++i)
        tree.add(QByteArray::number(i));
    const Entry top = tree.entry();
    ShadowView view(top);
    std::atomic<bool> stop{false};
    std::thread vandal([&] { // works on names that are there, and on some that are not
        QRandomGenerator random(20240611);
        for (int i = 0; i < 20000 && !stop; ++i) {
            const QByteArray from = tree.bytes(QByteArray::number(random.bounded(600)));
            const QByteArray to = tree.bytes(QByteArray::number(random.bounded(600)));
            switch (random.bounded(3)) {
            case 0:
                ::rename(from.constData(), to.constData());
                break;
            case 1:
                ::unlink(from.constData());
                break;
            default:
                ::close(::creat(from.constData(), 0644));
            }
        }
    });
    for (int i = 0; i < 5; ++i)
        list(top);
    stop = true;
    vandal.join();
    QSet<QString> onDisk;
    for (const Entry &child : VFS::ptr()->childs(top, VFS::PlainListing, nullptr))
        onDisk.insert(child.path());
    QTRY_COMPARE_WITH_TIMEOUT(view.paths, onDisk, 20000);
}

void LocalWatcherTest::followsBothPathsOfOneDirectory()
{
    TestTree tree({"real/a"});
    const Entry link = tree.link("link", "real");
    const Entry real = tree.entry("real");
    QCOMPARE(list(link).first().path(), tree.path("link/a"));
    list(real);
    EventLog log(tree.path());
    tree.add("real/b");
    QTRY_COMPARE(log.entries.size(), 2);
    QCOMPARE(QSet<QString>({log.entries.at(0).path(), log.entries.at(1).path()}),
             QSet<QString>({tree.path("link/b"), tree.path("real/b")}));
}

void LocalWatcherTest::followsADirectoryWhoseNameIsNoText()
{
    TestTree tree({"\xff/a", "?/a"});
    const Entry top = tree.entry();
    for (const Entry &directory : VFS::ptr()->childs(top, VFS::PlainListing, nullptr))
        QCOMPARE(fileNames(list(directory)), QStringList({"a"}));
    EventLog log(tree.path());
    tree.write("\xff/a", "other content");
    QTRY_COMPARE(log.lines, QStringList({"~a"}));
    QVERIFY(log.entries.last().localPath().isEmpty());
    QCOMPARE(log.entries.last().fileSize(), 13);
}

void LocalWatcherTest::dropsARenamedDirectory()
{
    TestTree tree({"d/sub/x"});
    const Entry directory = tree.entry("d");
    const Entry below = tree.entry("d/sub");
    list(directory);
    list(below);
    EventLog log(tree.path());
    tree.rename("d", "e");
    QTRY_COMPARE(QSet<QString>(log.lines.begin(), log.lines.end()), QSet<QString>({"-d", "-sub"}));
    log.lines.clear();
    tree.add("e/sub/y");
    const Entry moved = tree.entry("e/sub");
    list(moved);
    tree.add("e/sub/z");
    QTRY_COMPARE(log.lines, QStringList({"+z"}));
    QCOMPARE(log.entries.last().path(), tree.path("e/sub/z"));
}

void LocalWatcherTest::noticesThatADirectoryAboveWasRenamed()
{
    TestTree tree({"above/d/x"});
    const Entry directory = tree.entry("above/d");
    list(directory);
    EventLog log(tree.path());
    tree.rename("above", "other");
    tree.add("other/d/y");
    QTRY_VERIFY(log.lines.contains("-d"));
    QVERIFY(!log.lines.contains("+y"));
}

void LocalWatcherTest::tellsOnceThatADirectoryVanished()
{
    TestTree tree({"alone/x", "seen/below/x"});
    const Entry alone = tree.entry("alone");
    const Entry seen = tree.entry("seen");
    const Entry below = tree.entry("seen/below");
    list(alone);
    list(seen);
    list(below);
    EventLog log(tree.path());
    tree.remove("alone");
    tree.remove("seen/below");
    QTRY_COMPARE(log.lines.filter("alone") + log.lines.filter("below"), QStringList({"-alone", "-below"}));
    tree.add("seen/last"); // behind everything that could still come
    QTRY_VERIFY(log.lines.contains("+last"));
    QCOMPARE(log.lines.filter("alone") + log.lines.filter("below"), QStringList({"-alone", "-below"}));
}

void LocalWatcherTest::resetsPlacesOfAChangedDirectory()
{
    const Entry place = VFS::ptr()->entry("places:/home");
    QVERIFY(place.isHomeDirPlace());
    list(place);
    EventLog log(place.localPath());
    QFile file(place.localPath() + "/created");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QTRY_VERIFY(log.lines.contains("!home"));
    QCOMPARE(VFS::ptr()->pathEntryList(log.entries.first(), place).first(), place);
    QVERIFY(fileNames(list(place)).contains("created"));
}

void LocalWatcherTest::resetsFavoritesWhenTheBookmarksChange()
{
    const Entry favorites = VFS::ptr()->favoritesEntry();
    const QString directory = QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + "/gtk-3.0";
    QVERIFY(QDir().mkpath(directory));
    QVERIFY(list(favorites).isEmpty());
    EventLog log(directory);
    QFile file(directory + "/bookmarks");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("file:///usr Programs\n");
    file.close();
    QTRY_VERIFY(log.lines.contains("!"));
    QCOMPARE(fileNames(list(favorites)), QStringList({"Programs"}));
}

void LocalWatcherTest::resetsEverythingAfterAnOverflow()
{
    TestTree tree({"a/x", "b/x"});
    const Entry a = tree.entry("a");
    const Entry b = tree.entry("b");
    list(a);
    list(b);
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
    for (int i = 0; i < 3; ++i) {
        watcher()->addBadEntry(there);
        watcher()->addBadEntry(gone);
    }
    QTRY_COMPARE(log.lines, QStringList({"-gone"}));
    const Entry top = tree.entry();
    list(top); // time for more to come
    QCOMPARE(log.lines, QStringList({"-gone"}));
}

void LocalWatcherTest::letsGoOfDirectoriesThatNobodyShows()
{
    TestTree tree({"shown/x"});
    const Entry shown = tree.entry("shown");
    list(shown);
    for (int i = 0; i < 300; ++i)
        list(tree.add("d" + QByteArray::number(i) + '/'));
    EventLog log(tree.path());
    tree.add("d0/x");
    tree.add("shown/y");
    QTRY_COMPARE(log.lines, QStringList({"+y"}));
}

void LocalWatcherTest::pollsBeyondTheLimitOfWatches()
{
    TestTree tree({"a/", "b/"});
    const Entry a = tree.entry("a");
    const Entry b = tree.entry("b");
    watchLimitReached = true;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("limit of watched directories")); // once, for two
    list(a);
    list(b);
    EventLog log(tree.path());
    tree.add("b/x");
    QTRY_COMPARE(log.lines, QStringList({"!b"}));
    watchLimitReached = false;
    list(b);
    tree.add("b/y");
    QTRY_COMPARE(log.lines, QStringList({"!b", "+y"}));
}

QTEST_GUILESS_MAIN(LocalWatcherTest)
#include "localwatchertest.moc"
