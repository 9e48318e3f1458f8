// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fopsclient.h"
#include "treesnapshot.h"

#include <veskplatform/standardpaths.h>
#include <veskplatform/veskuidesktopentry.h>

#include <QtTest>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/xattr.h>

#include <algorithm>
#include <functional>

using namespace VeskFM;
using FopsClient::Outcome;

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

} // namespace

Q_DECLARE_METATYPE(std::function<FopsClient::Outcome(TestTree &)>)

/// Against the real service, which the bus starts.
class FopsHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void copiesWholeTrees_data() { addPlaces(); }
    void copiesWholeTrees();
    void movesWholeTrees_data() { addPlaces(); }
    void movesWholeTrees();
    void keepsWhatIsThere_data();
    void keepsWhatIsThere();
    void refuses_data();
    void refuses();
    void trashesAndRestores();
    void removesLinksNotTheirTargets();
    void makesThings();
    void leavesNothingWhenTheDiskIsFull();
    void actsOnExactBytes();
    void answersWhileItWorks();

private:
    static void addPlaces();
};

void FopsHostTest::initTestCase()
{
    QVERIFY2(FOps::ptr()->isAvailable(), "the bus does not start the service");
}

void FopsHostTest::addPlaces()
{
    QTest::addColumn<bool>("elsewhere");
    QTest::newRow("same file system") << false;
    QTest::newRow("another file system") << true;
}

void FopsHostTest::copiesWholeTrees()
{
    QFETCH(bool, elsewhere);
    TestTree tree;
    addSamples(&tree);
    const std::unique_ptr<TestTree> target = elsewhere ? FopsClient::treeElsewhere() : std::make_unique<TestTree>();
    if (!target)
        QSKIP("There is no other file system here");
    const QList<QByteArray> original = treeSnapshot(tree.bytes("all"));
    const Outcome outcome = FopsClient::run(&FOps::copy, EntryList(tree.entry("all")), target->entry());
    QCOMPARE(outcome.code, int(Success));
    QCOMPARE(outcome.entries, EntryList(target->entry("all")));
    QCOMPARE(treeSnapshot(target->bytes("all")), original);
    QCOMPARE(treeSnapshot(tree.bytes("all")), original);
    QVERIFY(!hasParts(*target));
}

void FopsHostTest::movesWholeTrees()
{
    QFETCH(bool, elsewhere);
    TestTree tree;
    addSamples(&tree);
    const std::unique_ptr<TestTree> target = elsewhere ? FopsClient::treeElsewhere() : std::make_unique<TestTree>();
    if (!target)
        QSKIP("There is no other file system here");
    const QList<QByteArray> original = treeSnapshot(tree.bytes("all"));
    target->add("all", "taken");
    const Outcome outcome = FopsClient::run(&FOps::move, EntryList(tree.entry("all")), target->entry());
    QCOMPARE(outcome.code, int(Success));
    QCOMPARE(outcome.names(), QStringList("all (2)"));
    QCOMPARE(treeSnapshot(target->bytes("all (2)")), original);
    QCOMPARE(treeSnapshot(tree.bytes("all")), {});
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
    const Entry present = tree.entry(destination);
    const Outcome outcome =
        FopsClient::run(&FOps::copy, selection, present.isNull() ? plannedEntry(tree.path(destination)) : present);
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
    QTest::addColumn<std::function<Outcome(TestTree &)>>("act");
    QTest::addColumn<int>("code");

    using Act = std::function<Outcome(TestTree &)>;
    const auto row = [](const char *name, const Act &act, Code code) { QTest::newRow(name) << act << int(code); };
    const auto planned = [](const char *path) { return plannedEntry(QString::fromUtf8(path)); };
    row(
        "copying what is gone",
        [=](TestTree &t) { return FopsClient::run(&FOps::copy, EntryList(planned("/gone")), t.entry("dir")); },
        NotFound);
    row(
        "copying to where nothing is",
        [=](TestTree &t) {
            return FopsClient::run(&FOps::copy, EntryList(t.entry("a")), plannedEntry(t.path("no/b")));
        },
        NotFound);
    row(
        "a directory onto a file",
        [](TestTree &t) { return FopsClient::run(&FOps::copy, EntryList(t.entry("dir")), t.entry("a")); }, Exists);
    row(
        "copying into itself",
        [](TestTree &t) { return FopsClient::run(&FOps::copy, EntryList(t.entry("dir")), t.entry("dir/sub")); },
        IntoItself);
    row(
        "moving into itself",
        [](TestTree &t) { return FopsClient::run(&FOps::move, EntryList(t.entry("dir")), t.entry("dir")); },
        IntoItself);
    row(
        "renaming into itself",
        [](TestTree &t) { return FopsClient::run(&FOps::rename, t.entry("dir"), plannedEntry(t.path("dir/sub/x"))); },
        IntoItself);
    row(
        "renaming to a taken name",
        [](TestTree &t) { return FopsClient::run(&FOps::rename, t.entry("a"), t.entry("b")); }, Exists);
    row(
        "renaming to nowhere",
        [](TestTree &t) { return FopsClient::run(&FOps::rename, t.entry("a"), plannedEntry(t.path("no/a"))); },
        NotFound);
    row(
        "removing the root", [=](TestTree &) { return FopsClient::run(&FOps::remove, EntryList(planned("//")), true); },
        NotSupported);
    row(
        "removing a parent by two dots",
        [](TestTree &t) { return FopsClient::run(&FOps::remove, EntryList(plannedEntry(t.path("dir/sub/.."))), true); },
        NotSupported);
    row(
        "what looks like an option",
        [=](TestTree &) { return FopsClient::run(&FOps::remove, EntryList(planned("-rf")), true); }, NotSupported);
    row(
        "nothing at all", [](TestTree &) { return FopsClient::run(&FOps::remove, EntryList(), true); }, NotFound);
    row(
        "restoring what was never trashed",
        [](TestTree &t) { return FopsClient::run(&FOps::restore, EntryList(t.entry("a"))); }, NotFound);
    row(
        "trashing the trash",
        [=](TestTree &t) {
            FopsClient::run(&FOps::trash, EntryList(t.add("x")), true);
            return FopsClient::run(&FOps::trash, EntryList(VFS::ptr()->entry(StandardPaths::trashDirPath())), true);
        },
        NotSupported);
    row(
        "making where no directory is",
        [](TestTree &t) { return FopsClient::run(&FOps::makeDir, plannedEntry(t.path("no/dir"))); }, NotFound);
    row(
        "a link in no directory",
        [=](TestTree &t) { return FopsClient::run(&FOps::makeShortcuts, EntryList(t.entry("a")), planned("x")); },
        NotSupported);
    row(
        "a template that is a pipe",
        [](TestTree &t) {
            mkfifo(t.bytes("pipe").constData(), 0600);
            const Outcome outcome = FopsClient::run(&FOps::makeFromTemplate, t.entry("dir"), t.path("pipe"));
            t.remove("pipe");
            return outcome;
        },
        NotSupported);
}

void FopsHostTest::refuses()
{
    QFETCH(std::function<Outcome(TestTree &)>, act);
    TestTree tree({"a", "b", "dir/sub/c"});
    const QList<QByteArray> before = treeSnapshot(tree.bytes("dir")) + treeSnapshot(tree.bytes("a"));
    const Outcome outcome = act(tree);
    QTEST(outcome.code, "code");
    QCOMPARE(outcome.entries, EntryList());
    QCOMPARE(treeSnapshot(tree.bytes("dir")) + treeSnapshot(tree.bytes("a")), before);
    QVERIFY(!hasParts(tree));
}

void FopsHostTest::trashesAndRestores()
{
    TestTree tree({"deep/down/a.txt", "deep/down/dir/x", "kept"});
    const QList<QByteArray> original = treeSnapshot(tree.bytes("deep/down/dir"));
    const Outcome trashed =
        FopsClient::run(&FOps::trash, EntryList{tree.entry("deep/down/a.txt"), tree.entry("deep/down/dir")}, true);
    QCOMPARE(trashed.code, int(Success));
    QCOMPARE(trashed.entries.size(), 2);
    QVERIFY(FOps::isTrashEntries(trashed.entries));
    QVERIFY(tree.entry("deep/down/a.txt").isNull());

    tree.add("deep/down/a.txt", "came later");
    const Outcome restored = FopsClient::run(&FOps::restore, trashed.entries);
    QCOMPARE(restored.code, int(Success));
    QCOMPARE(restored.names(), QStringList({"a (2).txt", "dir"}));
    QCOMPARE(treeSnapshot(tree.bytes("deep/down/dir")), original);

    const Outcome again = FopsClient::run(&FOps::trash, EntryList(tree.entry("deep/down/dir")), true);
    tree.remove("deep");
    QCOMPARE(FopsClient::run(&FOps::restore, again.entries).code, int(Success)); // its parents are made
    QCOMPARE(treeSnapshot(tree.bytes("deep/down/dir")), original);

    FopsClient::run(&FOps::trash, EntryList(tree.entry("deep")), true);
    QCOMPARE(FopsClient::run(&FOps::cleanTrash).code, int(Success));
    QVERIFY(FOps::isEmptyTrash());
    QVERIFY(QDir(StandardPaths::trashDirPath() + "/../info").isEmpty());
    QVERIFY(!tree.entry("kept").isNull());
}

void FopsHostTest::removesLinksNotTheirTargets()
{
    TestTree tree({"outside/kept", "dir/sub/file", "third"});
    tree.link("dir/link", "../outside");
    const EntryList selection{tree.entry("dir"), plannedEntry(tree.path("gone")), tree.entry("third")};
    QCOMPARE(FopsClient::run(&FOps::remove, selection, false).code, int(NotFound));
    QVERIFY(tree.entry("dir").isNull());
    QVERIFY(!tree.entry("outside/kept").isNull());
    QVERIFY(!tree.entry("third").isNull()); // it stopped before
    QCOMPARE(FopsClient::run(&FOps::remove, selection, true).code, int(NotFound));
    QVERIFY(tree.entry("third").isNull());
}

void FopsHostTest::makesThings()
{
    TestTree tree({"a.txt", "templates/script.sh", "links/a.txt"});
    chmod(tree.bytes("templates/script.sh").constData(), 0500);
    QCOMPARE(FopsClient::run(&FOps::makeDir, plannedEntry(tree.path("new"))).names(), QStringList("new"));
    QCOMPARE(FopsClient::run(&FOps::makeFile, plannedEntry(tree.path("new"))).names(), QStringList("new (2)"));
    QCOMPARE(tree.entry("new (2)").fileSize(), 0LL);
    QCOMPARE(FopsClient::run(&FOps::makeShortcut, tree.entry("a.txt")).names(), QStringList("a - shortcut.txt"));
    QCOMPARE(tree.entry("a - shortcut.txt").symLinkTarget(), tree.path("a.txt"));
    QCOMPARE(FopsClient::run(&FOps::makeShortcuts, EntryList(tree.entry("a.txt")), tree.entry("links")).names(),
             QStringList("a (2).txt"));

    const QString script = tree.path("templates/script.sh");
    QCOMPARE(FopsClient::run(&FOps::makeFromTemplate, tree.entry(), script).names(), QStringList("script.sh"));
    const Outcome named = FopsClient::run(&FOps::makeFromTemplate, plannedEntry(tree.path("run.sh")), script);
    QCOMPARE(named.names(), QStringList("run.sh"));
    QVERIFY(QFileInfo(tree.path("run.sh")).isWritable() && QFileInfo(tree.path("run.sh")).isExecutable());

    const QString title = QStringLiteral("A/b\nName=c \\ d");
    const Outcome titled = FopsClient::run(&FOps::makeTitledShortcut, "https://example.org/?a=b", title, tree.entry());
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
    const Outcome outcome = FopsClient::run(&FOps::copy, EntryList(tree.entry("dir")), tree.entry("target"));
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
    QCOMPARE(FopsClient::run(&FOps::copy, EntryList(*odd), tree.entry("target")).code, int(Success));
    QCOMPARE(treeSnapshot(tree.bytes("target/n\xff.txt")), original);
    QCOMPARE(FopsClient::run(&FOps::copy, EntryList(*odd), tree.entry("bytes")).code, int(Success));
    QCOMPARE(treeSnapshot(tree.bytes("bytes/n\xff - copy.txt")), original);

    const Outcome trashed = FopsClient::run(&FOps::trash, EntryList(*odd), true);
    QCOMPARE(trashed.code, int(Success));
    QVERIFY(treeSnapshot(tree.bytes("bytes/n\xff.txt")).isEmpty());
    QCOMPARE(FopsClient::run(&FOps::restore, trashed.entries).code, int(Success));
    QCOMPARE(treeSnapshot(tree.bytes("bytes/n\xff.txt")), original);
    QCOMPARE(FopsClient::run(&FOps::remove, EntryList(*odd), true).code, int(Success));
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

QTEST_GUILESS_MAIN(FopsHostTest)

#include "fopshosttest.moc"
