// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testarchive.h"
#include "testtree.h"

#include <platform/archiveerror.h>
#include <veskplatform/archivemount.h>
#include <veskplatform/archivemountsmanagerproxy.h>
#include <veskplatform/archiveproblem.h>

#include <QtTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

#include <fixedplaces.h>

using namespace VeskFM;

Q_DECLARE_METATYPE(VeskFM::ArchiveError)

namespace
{
EntryList listed(const Entry &directory, VFS::EntryChildFilters filters = VFS::PlainListing)
{
    return VFS::ptr()->childs(directory, filters, nullptr);
}

/// All below, each with its path from there, and its size or what it leads to.
QStringList described(const Entry &directory, const QString &above = {})
{
    QStringList lines;
    for (const Entry &entry : listed(directory)) {
        const QString path = above + entry.fileName();
        const QString link = entry.isSymLink() ? " -> " + entry.symLinkTarget().section('/', -1) : QString();
        lines += path + link + (entry.isDir() ? "/" : ' ' + QString::number(entry.fileSize()));
        if (entry.isDir() && !entry.isSymLink())
            lines += described(entry, path + '/');
    }
    lines.sort();
    return lines;
}

QString mountsDirectory()
{
    return qgetenv("XDG_CACHE_HOME") + "/vesk-fm/archives/";
}

bool isAnythingLeft(const QString &pattern)
{
    return QDirIterator(mountsDirectory(), {pattern}, QDir::Dirs, QDirIterator::Subdirectories).hasNext();
}

int runReader(const QStringList &arguments)
{
    QProcess reader;
    reader.setStandardOutputFile(QProcess::nullDevice());
    reader.start(VESKFM_ARCHIVE_READER, arguments);
    return reader.waitForFinished() && reader.exitStatus() == QProcess::NormalExit ? reader.exitCode() : -1;
}
} // namespace

class ArchiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removesMountsOfDeadProcesses();
    void showsWhatWasPacked_data();
    void showsWhatWasPacked();
    void leavesOutWhatClimbs();
    void refuses_data();
    void refuses();
    void survivesDamage_data() { showsWhatWasPacked_data(); }
    void survivesDamage();
    void givesUpWhenCancelled();
    void countsMounts();
    void servesManyThreads();
};

void ArchiveTest::removesMountsOfDeadProcesses() // first: only the first mount of a process looks for them
{
    const QString base = mountsDirectory();
    const QString dead = base + "1-0123456789abcdef";
    const QString live = base + "2-0123456789abcdef";
    for (const QString &directory : {dead + "/mount/dir", live + "/mount", base + "2-not-ours"})
        QVERIFY(QDir().mkpath(directory));
    QVERIFY(QFile(dead + "/mount").setPermissions(QFile::ReadOwner));
    const int lock = open(QFile::encodeName(live + "/lock").constData(), O_RDWR | O_CREAT, 0600);
    QVERIFY(flock(lock, LOCK_EX) == 0);
    VFS::ptr();
    QTRY_VERIFY(!QFile::exists(dead) && QFile::exists(live + "/mount")); // at the start, and later when there are more
    QVERIFY(QDir().mkpath(dead + "/mount"));
    TestTree tree({"precious/file"});
    QVERIFY(QFile::link(tree.path("precious"), base + "3-0123456789abcdef"));
    packArchive(tree.path("a.zip"), {{"x", ""}});
    QVERIFY(ArchiveMount().mount(tree.entry("a.zip"), nullptr));
    QVERIFY(!QFile::exists(dead) && QFile::exists(live + "/mount") && QFile::exists(base + "2-not-ours"));
    QVERIFY(QFile::exists(tree.path("precious/file")));
    close(lock);
}

void ArchiveTest::showsWhatWasPacked_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char *suffix : {"zip", "7z", "tar", "tar.gz", "tar.bz2", "tar.xz", "tar.zst", "store.7z", "sparse.tar"})
        QTest::newRow(suffix) << suffix;
}

void ArchiveTest::showsWhatWasPacked()
{
    QFETCH(QString, suffix);
    TestTree tree;
    const QString path = tree.path("a." + suffix);
    const QByteArray content = "begin" + QByteArray(1 << 20, '\0') + "end";
    packArchive(path,
                {{"top.txt", "top"},
                 {"d/inner/deep", content},
                 {"empty/", {}, '5'},
                 {"d/link", "inner", '2'},
                 {"nested.zip", "not entered"},
                 {".hidden", ""}});
    const VFS &vfs = *VFS::ptr();
    const Entry archive = vfs.entry(path);
    QCOMPARE(described(archive),
             QStringList({".hidden 0", "d/", "d/inner/", "d/inner/deep 1048584", "d/link -> inner/", "empty/",
                          "nested.zip 11", "top.txt 3"}));
    QVERIFY(archiveProblem(archive).isEmpty() && !archive.isFile() && archive.localPath() == path);

    const Entry deep = vfs.entry(path + "/d/link/deep");
    QCOMPARE(deep.path(), path + "/d/link/deep");
    QCOMPARE(ArchiveMount::modifiedMs(deep), packedTime * 1000);
    QVERIFY(deep.isFile() && deep.isExists() && deep.localPath().isEmpty() && ArchiveMount::isInArchive(deep));
    QCOMPARE(vfs.parent(vfs.parent(vfs.parent(deep))), archive);
    QCOMPARE(vfs.pathEntryList(deep, archive).size(), 4);
    QCOMPARE(vfs.entry(path + "/d/inner/../link/"), vfs.sibling(vfs.entry(path + "/d/inner"), "link"));
    QCOMPARE(vfs.symLinkTargetEntry(vfs.entry(path + "/d/link")), vfs.entry(path + "/d/inner"));
    QVERIFY(vfs.isEntryExists(deep) && vfs.entry(path + "/d/none").isNull() && vfs.entry(path + "/top.txt/x").isNull());
    QVERIFY(vfs.entry(path + "/nested.zip").type() == Entry::File && vfs.entry(path + "/.hidden").isHidden());
    QCOMPARE(fileNames(listed(archive, VFS::ContainersOnly)), QStringList({"d", "empty"}));
    QVERIFY(vfs.mayContainContainers(vfs.entry(path + "/d")) && !vfs.mayContainContainers(vfs.entry(path + "/empty")));
    QVERIFY(listed(archive, VFS::RecursiveListing | VFS::NoArchiveDescent).isEmpty());

    ArchiveMount mount;
    QVERIFY2(mount.mount(deep, nullptr), qPrintable(mount.problem()));
    QCOMPARE(contentOf(deep.localPath()), content);
    struct stat facts = {};
    QVERIFY(stat(QFile::encodeName(deep.localPath()).constData(), &facts) == 0);
    QVERIFY(suffix != "sparse.tar" || facts.st_blocks * 512 < facts.st_size);
    QVERIFY(!(QFile(deep.localPath()).permissions() & QFile::WriteOwner) && ArchiveMount::isInMount(deep.localPath()));
    QCOMPARE(described(mount.localEntry(archive)), described(archive));
    const EntryList urlsOf({vfs.entry(path + "/d/inner/deep"), archive});
    QCOMPARE(vfs.entriesFromUrls(vfs.urlsFromEntries(urlsOf)), urlsOf);
}

void ArchiveTest::leavesOutWhatClimbs()
{
    TestTree tree;
    const QByteArray text = // each with its tar type and content; a letter with its accent beside it stays two
        "ok/file 0 x|/abs 0 x|../up 0 x|a/../../b 0 x|out 2 ../..|root 2 /etc|in 2 ok|in/through 0 x|fifo 6 |device 3 |"
        "hard 1 ../../etc/passwd|self/s 2 ../self|via 2 self/s/../..|was-file 0 x|was-file/y 0 y|twice 0 1|twice 0 22|"
        "other-name 1 twice|caf\xe9 0 x|e\u0301 0 x| 0 x|./ 5 ";
    QVector<TestMember> members;
    for (const QByteArray &line : text.split('|'))
        members.append({line.split(' ').at(0), line.split(' ').at(2), line.split(' ').at(1).at(0)});
    packArchive(tree.path("a.tar"), members);
    const Entry archive = tree.entry("a.tar");
    const QStringList expected({"caf\U0010FFE9 1", "e\u0301 1", "in -> ok/", "ok/", "ok/file 1", "other-name 2",
                                "self/", "self/s -> self/", "twice 2", "was-file/", "was-file/y 1"});
    QCOMPARE(described(archive), expected);
    ArchiveMount mount;
    QVERIFY2(mount.mount(archive, nullptr), qPrintable(mount.problem()));
    QCOMPARE(described(mount.localEntry(archive)), expected);
    struct stat facts = {};
    QVERIFY(stat(QFile::encodeName(mount.localEntry(archive).localPath() + "/twice").constData(), &facts) == 0);
    QVERIFY((facts.st_mode & 07777) == 0555 && facts.st_nlink == 2);
}

void ArchiveTest::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<ArchiveError>("error");
    QTest::addColumn<QString>("words"); // what the user is told, or a limit to be broken
    TestTree tree;
    const auto archiveOf = [&tree](const QString &suffix, const QVector<TestMember> &members) {
        packArchive(tree.path("a." + suffix), members);
        return contentOf(tree.path("a." + suffix));
    };
    QByteArray zip = archiveOf("zip", {{"secret", "x"}});
    zip[zip.indexOf("PK\1\2") + 8] = 1;
    QTest::newRow("encrypted zip") << zip << ArchiveError::Encrypted << "a.zip is encrypted";
    QTest::newRow("encrypted 7z") // what it says of the one file in it is packed
        << QByteArray::fromBase64(
               "N3q8ryccAASX4HwATwAAAAAAAAAgAAAAAAAAAJQ4tDpzZWNyZXRzZWNyZXRzZWNyAACBMweuD87ysgwHyEOBKn"
               "lcjn3h9o3okp4HIhYKGU2jhBtT5adTIY3NbAL616zUkO/0+c81zOurn//2YpsAFwYQAQk/AAcLAQABIwMB"
               "AQVdAAABAAw+CgFGdaX7AAA=")
        << ArchiveError::Encrypted << "a.zip is encrypted";
    QTest::newRow("no archive") << QByteArray("text") << ArchiveError::Damaged << "is damaged, or is no archive";
    QTest::newRow("zeros") << QByteArray(2 << 20, '\0') << ArchiveError::Damaged << "is damaged";
    const QByteArray lying = archiveOf("tar", {{"a", "x", '0', 8LL << 30}});
    QTest::newRow("a size that lies") << lying << ArchiveError::Damaged << "is damaged";
    const QByteArray deep = QByteArray("d/").repeated(10000) + "x";
    QTest::newRow("deep") << archiveOf("tar", {{deep, "x"}}) << ArchiveError::TooDeep << "nested too deeply";
    const QByteArray longName(300, 'n');
    QTest::newRow("name") << archiveOf("tar", {{longName, "x"}}) << ArchiveError::NameTooLong << "too long";
    const QByteArray three = archiveOf("tar", {{"a", "1"}, {"b", "2"}, {"c", "3"}});
    QTest::newRow("many entries") << three << ArchiveError::TooManyEntries << "--entries=2";
    QTest::newRow("much text") << three << ArchiveError::TooManyEntries << "--text=2";
    const QByteArray bomb = archiveOf("tar.gz", {{"zeros", QByteArray(4 << 20, '\0')}});
    QTest::newRow("bomb") << bomb << ArchiveError::TooLarge << "--unpacked=1000000";
}

void ArchiveTest::refuses()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, words);
    TestTree tree;
    const Entry archive = tree.add("a.zip", content);
    const QStringList limits = words.startsWith("--") ? QStringList(words) : QStringList();
    QTEST(ArchiveError(runReader(QStringList("list") + limits + QStringList(tree.path("a.zip")))), "error");
    if (!limits.isEmpty())
        return;
    QVERIFY(listed(archive).isEmpty());
    QVERIFY2(archiveProblem(archive).contains(words), qPrintable(archiveProblem(archive)));
    ArchiveMount mount;
    QVERIFY(!mount.mount(archive, nullptr) && mount.problem() == archiveProblem(archive));
}

void ArchiveTest::survivesDamage()
{
    QFETCH(QString, suffix);
    TestTree tree;
    const QString path = tree.path("a." + suffix);
    packArchive(path, {{"d/one", QByteArray(3000, 'x')}, {"two", "12345"}, {"link", "two", '2'}});
    const QByteArray whole = contentOf(path);
    constexpr int steps = 12;
    for (int i = 0; i < steps; ++i) {
        const int at = whole.size() * i / steps;
        QByteArray flipped = whole;
        flipped[at] = char(~flipped.at(at));
        tree.write(path.section('/', -1).toUtf8(), flipped);
        QVERIFY(runReader({"list", path}) >= 0); // below, it has crashed
        tree.write(path.section('/', -1).toUtf8(), whole.left(at));
        const QByteArray target = QByteArray::number(i) + '/';
        tree.add(target);
        const int code = runReader({"extract", path, tree.path(target)});
        QVERIFY2(code > 0 || (code == 0 && suffix.endsWith("tar")),
                 qPrintable(QString::number(at))); // a tar may end anywhere
    }
}

void ArchiveTest::givesUpWhenCancelled()
{
    TestTree tree;
    constexpr qint64 size = 4LL << 30; // too much to be extracted at once, and no room on the disk before
    packArchive(tree.path("a.tar"), {{"large", "", '0', size}});
    QVERIFY(truncate(tree.bytes("a.tar").constData(), size + 2048) == 0);
    const Entry archive = tree.entry("a.tar");
    QAtomicInt cancelled(1);
    QVERIFY(VFS::ptr()->childs(archive, VFS::PlainListing, &cancelled).isEmpty() && archiveProblem(archive).isEmpty());
    ArchiveMount mount;
    QSignalSpy progressed(&mount, &ArchiveMount::progress);
    mount.start(archive);
    QVERIFY(progressed.wait(60000));
    mount.cancel();
    QTRY_VERIFY(!isAnythingLeft("part-*"));
    QVERIFY(!mount.isMounted() && archiveProblem(archive).isEmpty());
}

void ArchiveTest::countsMounts()
{
    TestTree tree;
    packArchive(tree.path("a.zip"), {{"d/file", "content"}});
    const Entry file = listed(listed(tree.entry("a.zip")).first()).first();
    ArchiveMountsManagerProxy *const manager = VFS::ptr()->archiveMountsManager();
    const QString mountPoint = tree.entry("a.zip").archiveMountPointOrLocalPath();
    {
        ArchiveMount mount;
        QSignalSpy finished(&mount, &ArchiveMount::finished);
        mount.start(file);
        QVERIFY(finished.wait(60000) && finished.first().first().toBool());
        QCOMPARE(mount.localEntry(file).path(), file.localPath());
        manager->refMountPath(mountPoint);
    }
    const QString local = file.localPath();
    QCOMPARE(contentOf(local), QByteArray("content"));
    QVERIFY(manager->mountPath(local) == mountPoint && manager->mountPath(tree.path("a.zip")).isEmpty());
    manager->unrefMountPath(mountPoint);
    QVERIFY(file.localPath().isEmpty() && !QFile::exists(local));
    QTRY_VERIFY(!isAnythingLeft("gone-*"));
    manager->refMountPath(mountPoint);
    QTRY_COMPARE(file.localPath(), local);
    manager->unrefMountPath(mountPoint);
    manager->unrefMountPath(mountPoint); // one too many is no harm
}

void ArchiveTest::servesManyThreads()
{
    TestTree tree;
    std::atomic<int> wrong{0};
    for (int round = 0; round < 3; ++round) {
        packArchive(tree.path("a.tar.gz"), {{"d/x", QByteArray(1, char('0' + round))}});
        const auto work = [&] {
            const Entry archive = tree.entry("a.tar.gz");
            ArchiveMount mount;
            wrong += described(archive) != QStringList({"d/", "d/x 1"}) || !mount.mount(archive, nullptr)
                || contentOf(VFS::ptr()->entry(archive.path() + "/d/x").localPath()).toInt() != round;
        };
        std::thread threads[] = {std::thread(work), std::thread(work), std::thread(work), std::thread(work)};
        for (std::thread &thread : threads)
            thread.join();
    }
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(ArchiveTest)
#include "archivetest.moc"
