// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fopsclient.h"
#include "testarchive.h"
#include "treesnapshot.h"

#include <veskplatform/standardpaths.h>
#include <veskplatform/veskuidesktopentry.h>

#include <QtTest>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/xattr.h>

#include <algorithm>

using namespace VeskFM;
using FopsClient::Outcome;
using FopsClient::run;

namespace
{

enum Code { Success, Cancelled, NotFound, AccessDenied, Exists, NoSpace, IntoItself, NotSupported };

/// One of each kind of thing that a copy must keep.
void addSamples(TestTree *tree)
{
    tree->add("all/plain.txt");
    tree->add("all/empty.txt", "");
    tree->add("all/sub/deep/\xc3\xa9\xff\n");
    tree->add("all/readonly/file");
    tree->link("all/link", "plain.txt");
    tree->link("all/broken", "nowhere");
    tree->link("all/outside", "/etc");
    const QByteArray top = tree->bytes("all");
    const QByteArray sparse = tree->bytes("all/sparse");
    tree->write("all/sparse", "begin");
    QVERIFY(truncate(sparse.constData(), 8 * 1024 * 1024) == 0);
    tree->write("all/large", QByteArray(3 * 1024 * 1024 + 7, 'x'));
    QVERIFY(mkfifo((top + "/pipe").constData(), 0640) == 0);
    QVERIFY(link((top + "/plain.txt").constData(), (top + "/same.txt").constData()) == 0);
    QVERIFY(chmod((top + "/plain.txt").constData(), 04751) == 0);
    setxattr((top + "/large").constData(), "user.comment", "kept", 4, 0); // not every file system takes it
    const timespec times[] = {{1000000000, 1}, {1234567890, 123456789}};
    for (const char *name : {"/plain.txt", "/link", "/sub/deep", "/pipe", ""})
        QVERIFY(utimensat(AT_FDCWD, (top + name).constData(), times, AT_SYMLINK_NOFOLLOW) == 0);
    QVERIFY(chmod((top + "/readonly").constData(), 0555) == 0);
}

bool hasParts(const TestTree &tree)
{
    return !QDir(tree.path()).entryList({QStringLiteral(".vesk-fm-part-*")}, QDir::AllEntries | QDir::Hidden).isEmpty();
}

/// What is or could be at @p path below the tree; other paths are taken as they are.
Entry at(const TestTree &tree, const QString &path)
{
    const bool isBelow = !path.startsWith(QLatin1Char('/')) && !path.startsWith(QLatin1Char('-'));
    return fakeEntry(isBelow ? tree.path(path) : path);
}

Outcome act(const QString &operation, const Entry &first, const Entry &second)
{
    if (operation == "copy")
        return run(&FOps::copy, EntryList(first), second);
    if (operation == "move")
        return run(&FOps::move, EntryList(first), second);
    if (operation == "rename")
        return run(&FOps::rename, first, second);
    if (operation == "restore")
        return run(&FOps::restore, EntryList(first));
    if (operation == "trash")
        return run(&FOps::trash, EntryList(first), true);
    if (operation == "makeDir")
        return run(&FOps::makeDir, first);
    if (operation == "makeShortcuts")
        return run(&FOps::makeShortcuts, EntryList(first), second);
    if (operation == "makeFromTemplate")
        return run(&FOps::makeFromTemplate, first, second.path());
    return run(&FOps::remove, operation == "remove none" ? EntryList() : EntryList(first), true);
}

} // namespace

/// Against the real service, which the bus starts.
class FopsHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesWholeTreesAlong_data();
    void takesWholeTreesAlong();
    void keepsWhatIsThere_data();
    void keepsWhatIsThere();
    void refuses_data();
    void refuses();
    void trashesAndRestores();
    void forgetsItemsThatNeverCame();
    void restoresFromTheTrashOfAnotherMount_data();
    void restoresFromTheTrashOfAnotherMount();
    void removesLinksNotTheirTargets();
    void makesThings();
    void leavesNothingWhenTheDiskIsFull();
    void actsOnExactBytes();
    void answersWhileItWorks();
    void copiesOutOfArchivesAndChangesNone();
};

void FopsHostTest::initTestCase()
{
    QVERIFY2(FOps::ptr()->isAvailable(), "the bus does not start the service");
    QVERIFY(QDir().mkpath(StandardPaths::trashDirPath()));
}

void FopsHostTest::takesWholeTreesAlong_data()
{
    QTest::addColumn<bool>("moves");
    QTest::addColumn<bool>("elsewhere");
    QTest::newRow("copy on the same file system") << false << false;
    QTest::newRow("copy to another file system") << false << true;
    QTest::newRow("move on the same file system") << true << false;
    QTest::newRow("move to another file system") << true << true;
}

void FopsHostTest::takesWholeTreesAlong()
{
    QFETCH(bool, moves);
    QFETCH(bool, elsewhere);
    TestTree tree;
    addSamples(&tree);
    const std::unique_ptr<TestTree> target = elsewhere ? FopsClient::treeElsewhere() : std::make_unique<TestTree>();
    if (!target)
        QSKIP("There is no other file system here");
    const QList<QByteArray> original = treeSnapshot(tree.bytes("all"));
    const char *const made = moves ? "all (2)" : "all";
    if (moves)
        target->add("all", "taken");
    const Outcome outcome = run(moves ? &FOps::move : &FOps::copy, EntryList(tree.entry("all")), target->entry());
    QCOMPARE(outcome.code, int(Success));
    QCOMPARE(outcome.entries, EntryList(target->entry(made)));
    QCOMPARE(treeSnapshot(target->bytes(made)), original);
    QCOMPARE(treeSnapshot(tree.bytes("all")), moves ? QList<QByteArray>() : original);
    QVERIFY(!hasParts(*target) && !hasParts(tree));
}

void FopsHostTest::keepsWhatIsThere_data()
{
    QTest::addColumn<QStringList>("sources");
    QTest::addColumn<QString>("destination");
    QTest::addColumn<QStringList>("made");

    const auto row = [](const char *name, const QStringList &sources, const char *destination,
                        const QStringList &made) {
        QTest::newRow(name) << sources << QString::fromUtf8(destination) << made;
    };
    row("beside itself", {"photo.jpg"}, "", {"photo - copy.jpg"});
    row("beside itself, again", {"a.tar.gz"}, "", {"a - copy (2).tar.gz"});
    row("a directory beside itself", {"my.dir"}, "", {"my.dir - copy"});
    row("name taken by a file", {"photo.jpg"}, "full", {"photo (3).jpg"});
    row("name taken by a broken link", {"a.tar.gz"}, "full", {"a (2).tar.gz"});
    row("name taken by a directory", {"my.dir"}, "full", {"my.dir (2)"});
    row("two of one name", {"photo.jpg", "full/photo.jpg"}, "free", {"photo.jpg", "photo (2).jpg"});
    row("under a new name", {"photo.jpg"}, "free/other.jpg", {"other.jpg"});
    row("under a taken name", {"photo.jpg"}, "full/plain", {"plain (2)"});
    row("the longest name", {QString(251, QLatin1Char('n')) + ".txt"}, "",
        {QString(244, QLatin1Char('n')) + " - copy.txt"});
}

void FopsHostTest::keepsWhatIsThere()
{
    QFETCH(QStringList, sources);
    QFETCH(QString, destination);
    TestTree tree({"photo.jpg", "a.tar.gz", "a - copy.tar.gz", "my.dir/x", "full/photo.jpg", "full/photo (2).jpg",
                   "full/plain", "full/my.dir/", "free/"});
    tree.link("full/a.tar.gz", "nowhere");
    tree.add(QByteArray(251, 'n') + ".txt");
    EntryList selection;
    for (const QString &source : qAsConst(sources))
        selection.append(tree.entry(source));
    const QList<QByteArray> before = treeSnapshot(tree.bytes());
    const Outcome outcome = run(&FOps::copy, selection, at(tree, destination));
    QCOMPARE(outcome.code, int(Success));
    QTEST(outcome.names(), "made");
    const QList<QByteArray> after = treeSnapshot(tree.bytes());
    for (const QByteArray &line : before) {
        if (!line.contains(" mode 4")) // a directory's time does change
            QVERIFY2(after.contains(line), line.constData());
    }
}

void FopsHostTest::refuses_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("first"); // below the tree, or absolute
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("code");

    const auto row = [](const char *name, const char *operation, const char *first, const char *second, Code code) {
        QTest::newRow(name) << operation << first << second << int(code);
    };
    row("copying what is gone", "copy", "/gone", "dir", NotFound);
    row("copying to where nothing is", "copy", "a", "no/b", NotFound);
    row("a directory onto a file", "copy", "dir", "a", Exists);
    row("copying into itself", "copy", "dir", "dir/sub", IntoItself);
    row("moving into itself", "move", "dir", "dir", IntoItself);
    row("renaming into itself", "rename", "dir", "dir/sub/x", IntoItself);
    row("renaming to a taken name", "rename", "a", "b", Exists);
    row("renaming to nowhere", "rename", "a", "no/a", NotFound);
    row("removing the root", "remove", "//", "", NotSupported);
    row("removing a parent by two dots", "remove", "dir/sub/..", "", NotSupported);
    row("nothing at all", "remove none", "", "", NotFound);
    row("what looks like an option", "remove", "-rf", "", NotSupported);
    row("restoring what was never trashed", "restore", "a", "", NotFound);
    row("trashing the trash", "trash", qUtf8Printable(StandardPaths::trashDirPath()), "", NotSupported);
    row("making where no directory is", "makeDir", "no/dir", "", NotFound);
    row("a link in no directory", "makeShortcuts", "a", "-x", NotSupported);
    row("a template that is a pipe", "makeFromTemplate", "dir", "pipe", NotSupported);
}

void FopsHostTest::refuses()
{
    QFETCH(QString, operation);
    QFETCH(QString, first);
    QFETCH(QString, second);
    TestTree tree({"a", "b", "dir/sub/c"});
    QVERIFY(mkfifo(tree.bytes("pipe").constData(), 0600) == 0);
    const QList<QByteArray> before = treeSnapshot(tree.bytes());
    const Outcome outcome = act(operation, at(tree, first), at(tree, second));
    QTEST(outcome.code, "code");
    QCOMPARE(outcome.entries, EntryList());
    QCOMPARE(treeSnapshot(tree.bytes()), before); // no part files either
}

void FopsHostTest::trashesAndRestores()
{
    TestTree tree({"deep/down/a.txt", "deep/down/dir/x", "kept"});
    const QList<QByteArray> original = treeSnapshot(tree.bytes("deep/down/dir"));
    const Outcome trashed =
        run(&FOps::trash, EntryList{tree.entry("deep/down/a.txt"), tree.entry("deep/down/dir")}, true);
    QCOMPARE(trashed.code, int(Success));
    QCOMPARE(trashed.entries.size(), 2);
    QVERIFY(FOps::isTrashEntries(trashed.entries));
    QVERIFY(tree.entry("deep/down/a.txt").isNull());

    tree.add("deep/down/a.txt", "came later");
    const Outcome restored = run(&FOps::restore, trashed.entries);
    QCOMPARE(restored.code, int(Success));
    QCOMPARE(restored.names(), QStringList({"a (2).txt", "dir"}));
    QCOMPARE(treeSnapshot(tree.bytes("deep/down/dir")), original);

    const Outcome again = run(&FOps::trash, EntryList(tree.entry("deep/down/dir")), true);
    tree.remove("deep");
    QCOMPARE(run(&FOps::restore, again.entries).code, int(Success)); // its parents are made
    QCOMPARE(treeSnapshot(tree.bytes("deep/down/dir")), original);

    run(&FOps::trash, EntryList(tree.entry("deep")), true);
    QCOMPARE(run(&FOps::cleanTrash).code, int(Success));
    QVERIFY(FOps::isEmptyTrash());
    QVERIFY(QDir(StandardPaths::trashDirPath() + "/../info").isEmpty());
    QVERIFY(!tree.entry("kept").isNull());
}

void FopsHostTest::forgetsItemsThatNeverCame()
{
    const QString infos = QDir::cleanPath(StandardPaths::trashDirPath() + "/../info/");
    const timespec longAgo[] = {{1000000000, 0}, {1000000000, 0}};
    for (const char *name : {"/old.trashinfo", "/young.trashinfo", "/old.txt"}) {
        QFile info(infos + name);
        QVERIFY(info.open(QIODevice::WriteOnly));
        if (name[1] == 'o')
            QCOMPARE(futimens(info.handle(), longAgo), 0);
    }
    QCOMPARE(run(&FOps::cleanTrash).code, int(Success));
    QCOMPARE(QDir(infos).entryList(QDir::Files), QStringList({"old.txt", "young.trashinfo"})); // may be on its way
    QVERIFY(QDir(infos).removeRecursively());
}

void FopsHostTest::restoresFromTheTrashOfAnotherMount_data()
{
    QTest::addColumn<QByteArray>("origin"); // NAME for that of the tree at the top of the mount
    QTest::addColumn<int>("code");
    QTest::newRow("relative to the mount") << QByteArray("NAME/dir/back.txt") << int(Success);
    QTest::newRow("absolute") << QByteArray("/dev/shm/NAME/dir/back.txt") << int(NotFound);
    QTest::newRow("climbs") << QByteArray("NAME/../NAME/dir/back.txt") << int(NotFound);
}

void FopsHostTest::restoresFromTheTrashOfAnotherMount()
{
    QFETCH(QByteArray, origin);
    QFETCH(int, code);
    const std::unique_ptr<TestTree> tree = FopsClient::treeElsewhere();
    const QFileInfo top(tree ? tree->path() : QString());
    if (!tree || QStorageInfo(top.path()).rootPath() != top.path())
        QSKIP("There is no other file system here");
    const QDir trash(top.path() + "/.Trash-" + QString::number(getuid()));
    QVERIFY(trash.mkpath("files") && trash.mkpath("info"));
    const QString item = trash.filePath("files/" + top.fileName()), info = trash.filePath("info/" + top.fileName());
    QFile file(info + ".trashinfo");
    QVERIFY(QFile::copy("/etc/passwd", item) && file.open(QIODevice::WriteOnly));
    file.write("[Trash Info]\nPath=" + origin.replace("NAME", top.fileName().toUtf8()) + "\nDeletionDate=x\n");
    file.close();
    QVERIFY(FOps::isTrashEntries(EntryList(VFS::ptr()->entry(item))));
    QCOMPARE(run(&FOps::restore, EntryList(VFS::ptr()->entry(item))).code, code);
    QCOMPARE(tree->entry("dir/back.txt").isNull(), code != Success);
    QCOMPARE(QFile::exists(item) && file.exists(), code != Success);
    QFile::remove(item);
    file.remove();
    for (const char *name : {"files", "info", ""})
        QDir().rmdir(trash.filePath(name)); // if nobody else has put something into it
}

void FopsHostTest::removesLinksNotTheirTargets()
{
    TestTree tree({"outside/kept", "dir/sub/file", "third"});
    tree.link("dir/link", "../outside");
    const EntryList selection{tree.entry("dir"), fakeEntry(tree.path("gone")), tree.entry("third")};
    QCOMPARE(run(&FOps::remove, selection, false).code, int(NotFound));
    QVERIFY(tree.entry("dir").isNull());
    QVERIFY(!tree.entry("outside/kept").isNull());
    QVERIFY(!tree.entry("third").isNull()); // it stopped before
    QCOMPARE(run(&FOps::remove, selection, true).code, int(NotFound));
    QVERIFY(tree.entry("third").isNull());
}

void FopsHostTest::makesThings()
{
    TestTree tree({"a.txt", "templates/script.sh", "links/a.txt"});
    chmod(tree.bytes("templates/script.sh").constData(), 0500);
    QCOMPARE(run(&FOps::makeDir, fakeEntry(tree.path("new"))).names(), QStringList("new"));
    QCOMPARE(run(&FOps::makeFile, fakeEntry(tree.path("new"))).names(), QStringList("new (2)"));
    QCOMPARE(tree.entry("new (2)").fileSize(), 0LL);
    QCOMPARE(run(&FOps::makeShortcut, tree.entry("a.txt")).names(), QStringList("a - shortcut.txt"));
    QCOMPARE(tree.entry("a - shortcut.txt").symLinkTarget(), tree.path("a.txt"));
    QCOMPARE(run(&FOps::makeShortcuts, EntryList(tree.entry("a.txt")), tree.entry("links")).names(),
             QStringList("a (2).txt"));

    const QString script = tree.path("templates/script.sh");
    QCOMPARE(run(&FOps::makeFromTemplate, tree.entry(), script).names(), QStringList("script.sh"));
    const Outcome named = run(&FOps::makeFromTemplate, fakeEntry(tree.path("run.sh")), script);
    QCOMPARE(named.names(), QStringList("run.sh"));
    QVERIFY(QFileInfo(tree.path("run.sh")).isWritable() && QFileInfo(tree.path("run.sh")).isExecutable());

    const QString title = QStringLiteral("A/b\nName=c \\ d");
    const Outcome titled = run(&FOps::makeTitledShortcut, "https://example.org/?a=b", title, tree.entry());
    QCOMPARE(titled.code, int(Success));
    const VeskUIDesktopEntry shortcut(titled.entries.value(0).localPath());
    QCOMPARE(shortcut.getBestAvailableName(), title);
    QCOMPARE(shortcut.getUrl(), QStringLiteral("https://example.org/?a=b"));
    QVERIFY(!hasParts(tree));
}

void FopsHostTest::leavesNothingWhenTheDiskIsFull()
{
    TestTree tree({"target/", "dir/small"});
    tree.write("dir/large", QByteArray(4 * 1024 * 1024, 'x'));
    const QList<QByteArray> original = treeSnapshot(tree.bytes("dir"));
    struct rlimit unlimited = {};
    QVERIFY(prlimit(FopsClient::process(), RLIMIT_FSIZE, nullptr, &unlimited) == 0);
    const struct rlimit limit = {1024 * 1024, unlimited.rlim_max}; // as a disk that is full in the middle of a file
    QVERIFY(prlimit(FopsClient::process(), RLIMIT_FSIZE, &limit, nullptr) == 0);
    const Outcome outcome = run(&FOps::copy, EntryList(tree.entry("dir")), tree.entry("target"));
    QVERIFY(prlimit(FopsClient::process(), RLIMIT_FSIZE, &unlimited, nullptr) == 0);
    QCOMPARE(outcome.code, int(NoSpace));
    QVERIFY(QDir(tree.path("target")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QCOMPARE(treeSnapshot(tree.bytes("dir")), original);
}

void FopsHostTest::actsOnExactBytes()
{
    TestTree tree({"target/"});
    tree.add("bytes/n\xff.txt", "these");
    tree.add("bytes/n\xc3\xbf.txt", "not these"); // what the bytes look like in another encoding
    const EntryList children = VFS::ptr()->childs(tree.entry("bytes"), VFS::PlainListing, nullptr);
    const auto odd = std::find_if(children.cbegin(), children.cend(),
                                  [](const Entry &entry) { return entry.localPath().isEmpty(); });
    QVERIFY(odd != children.cend());
    const QList<QByteArray> original = treeSnapshot(tree.bytes("bytes/n\xff.txt"));
    QCOMPARE(run(&FOps::copy, EntryList(*odd), tree.entry("target")).code, int(Success));
    QCOMPARE(treeSnapshot(tree.bytes("target/n\xff.txt")), original);
    QCOMPARE(run(&FOps::copy, EntryList(*odd), tree.entry("bytes")).code, int(Success));
    QCOMPARE(treeSnapshot(tree.bytes("bytes/n\xff - copy.txt")), original);

    const Outcome trashed = run(&FOps::trash, EntryList(*odd), true);
    QCOMPARE(trashed.code, int(Success));
    QVERIFY(treeSnapshot(tree.bytes("bytes/n\xff.txt")).isEmpty());
    QCOMPARE(run(&FOps::restore, trashed.entries).code, int(Success));
    QCOMPARE(treeSnapshot(tree.bytes("bytes/n\xff.txt")), original);
    QCOMPARE(run(&FOps::remove, EntryList(*odd), true).code, int(Success));
    QVERIFY(!tree.entry(QString::fromUtf8("bytes/n\xc3\xbf.txt")).isNull());
}

void FopsHostTest::answersWhileItWorks()
{
    TestTree tree({"target/"});
    for (int i = 0; i < 500; ++i)
        tree.add("many/" + QByteArray::number(i), QByteArray(20000, 'x'));
    QSignalSpy finished(FOps::ptr(), &FOps::operationFinished);
    const FOpId id = FOps::ptr()->copy(EntryList(tree.entry("many")), tree.entry("target"));
    int last = FopsClient::progress(id.stamp());
    QVERIFY(last >= 0); // the answer overtakes the operation, which is on its way before
    for (int percent = last; percent >= 0; percent = FopsClient::progress(id.stamp())) {
        QVERIFY(percent >= last && percent <= 100);
        last = percent;
    }
    QVERIFY(finished.count() > 0 || finished.wait());
    QCOMPARE(finished.first().at(1).toInt(), int(Success));
}

void FopsHostTest::copiesOutOfArchivesAndChangesNone()
{
    TestTree tree({"file", "target/"});
    packArchive(tree.path("a.tar.gz"), {{"d/inner", "content"}, {"top", "t"}});
    tree.add("broken.zip", "PK\3\4 and no more");
    const QList<QByteArray> before = treeSnapshot(tree.bytes("a.tar.gz"));
    const Entry target = tree.entry("target");
    const Outcome copied =
        FopsClient::run(&FOps::copy, EntryList({tree.entry("a.tar.gz/d"), tree.entry("a.tar.gz/top")}), target);
    QCOMPARE(copied.code, int(Success));
    QCOMPARE(copied.names(), QStringList({"d", "top"}));
    QFile inner(tree.path("target/d/inner"));
    QVERIFY(inner.open(QIODevice::ReadOnly) && inner.readAll() == "content");
    QVERIFY(inner.permissions() & QFile::WriteOwner);
    QVERIFY(QFile(tree.path("target/d")).permissions() & QFile::WriteOwner);

    const EntryList top(tree.entry("a.tar.gz/top"));
    const EntryList file(tree.entry("file"));
    QCOMPARE(FopsClient::run(&FOps::move, top, target).code, int(NotSupported));
    for (const char *into : {"a.tar.gz", "a.tar.gz/d"})
        QCOMPARE(FopsClient::run(&FOps::copy, file, tree.entry(into)).code, int(NotSupported));
    QCOMPARE(FopsClient::run(&FOps::remove, top, false).code, int(NotSupported));
    QCOMPARE(FopsClient::run(&FOps::trash, top, false).code, int(NotSupported));
    QVERIFY(FopsClient::run(&FOps::copy, EntryList(fakeEntry(tree.path("broken.zip/x"))), target).code > Success);
    QCOMPARE(treeSnapshot(tree.bytes("a.tar.gz")), before);
    QVERIFY(!hasParts(tree) && tree.entry("file").isFile());
}

QTEST_GUILESS_MAIN(FopsHostTest)

#include "fopshosttest.moc"
