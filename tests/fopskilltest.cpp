// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fopsclient.h"
#include "treesnapshot.h"

#include <QRandomGenerator>
#include <QtTest>

#include <csignal>

using namespace VeskFM;

namespace
{

/// Kills for a quick run; VESKFM_TEST_KILLS asks for more.
int killCount()
{
    constexpr int usual = 25;
    const int wanted = qEnvironmentVariableIntValue("VESKFM_TEST_KILLS");
    return wanted > 0 ? wanted : usual;
}

QByteArray randomBytes(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(QRandomGenerator::global()->generate());
    return bytes;
}

QStringList parts(const TestTree &tree)
{
    return QDir(tree.path())
        .entryList({QStringLiteral(".vesk-fm-part-*")}, QDir::AllEntries | QDir::Hidden | QDir::System);
}

/// Makes the bus start the service again, when it has gone.
void ensureRunning()
{
    QVERIFY(QDBusConnection::sessionBus().interface()->startService(FopsClient::busName()).isValid());
}

/// Whether no thread of a process does anything any more; its parent may still have to ask for it.
bool hasEnded(pid_t process)
{
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(process));
    QFile stat(QStringLiteral("/proc/%1/stat").arg(process));
    return !stat.open(QIODevice::ReadOnly)
        || (stat.readAll().contains(") Z ") && tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() <= 1);
}

void endService(int signal)
{
    const pid_t process = FopsClient::process();
    QVERIFY(process > 0 && kill(process, signal) == 0);
    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(process) && !FopsClient::isRunning(), 60000);
}

} // namespace

/// What the service leaves behind when it is ended in the middle of its work.
class FopsKillTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesNothingWhenKilled_data();
    void losesNothingWhenKilled();
    void undoesItsFileWhenTerminated();
    void leavesPartsOfOthersAlone();
};

void FopsKillTest::losesNothingWhenKilled_data()
{
    QTest::addColumn<bool>("moves");
    QTest::addColumn<bool>("leaves");
    QTest::newRow("copy to another file system") << false << true;
    QTest::newRow("copy from another file system") << false << false;
    QTest::newRow("move to another file system") << true << true;
    QTest::newRow("move from another file system") << true << false;
}

void FopsKillTest::losesNothingWhenKilled()
{
    QFETCH(bool, moves);
    QFETCH(bool, leaves);
    TestTree here;
    TestTree alsoHere;
    const std::unique_ptr<TestTree> elsewhere = FopsClient::treeElsewhere();
    if (!elsewhere && moves)
        QSKIP("There is no other file system here");
    TestTree &there = elsewhere ? *elsewhere : alsoHere;
    TestTree &tree = leaves ? here : there;
    TestTree &target = leaves ? there : here;
    for (int i = 0; i < 40; ++i)
        tree.add("original/" + QByteArray::number(i % 5) + '/' + QByteArray::number(i), randomBytes(50000 * (i % 7)));
    tree.link("original/link", "0");
    const QList<QByteArray> whole = treeSnapshot(tree.bytes("original"));
    const EntryList original(tree.entry("original"));

    // The time that it takes undisturbed is what the moments of the kills are chosen from.
    const auto method = moves ? &FOps::move : &FOps::copy;
    ensureRunning();
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(FopsClient::run(method, original, target.entry()).code, 0);
    const qint64 duration = timer.nsecsElapsed();
    if (moves)
        QCOMPARE(FopsClient::run(method, EntryList(target.entry("original")), tree.entry()).code, 0);
    else
        target.remove("original");

    int withTarget = 0;
    int withParts = 0;
    int withRemains = 0;
    for (int i = 0; i < killCount(); ++i) {
        ensureRunning();
        timer.start();
        (FOps::ptr()->*method)(original, target.entry());
        const double moment = QRandomGenerator::global()->bounded(1.0) * double(duration);
        while (double(timer.nsecsElapsed()) < moment) {} // timers are too coarse for it
        endService(SIGKILL);

        const QList<QByteArray> source = treeSnapshot(tree.bytes("original"));
        const QList<QByteArray> made = treeSnapshot(target.bytes("original"));
        withParts += parts(target).isEmpty() ? 0 : 1;
        withTarget += made.isEmpty() ? 0 : 1;
        withRemains += parts(tree).isEmpty() ? 0 : 1;
        QVERIFY2(made.isEmpty() || made == whole, "half a target");
        QVERIFY2(source == whole || (moves && source.isEmpty() && made == whole), "half a source");

        QCOMPARE(FopsClient::run(&FOps::makeDir, fakeEntry(target.path("next"))).code, 0);
        QCOMPARE(FopsClient::run(&FOps::makeDir, fakeEntry(tree.path("next"))).code, 0);
        QVERIFY2(parts(target).isEmpty() && parts(tree).isEmpty(), "leavings of the killed service");
        target.remove("next");
        tree.remove("next");
        if (source.isEmpty()) // it has gone over as a whole
            QCOMPARE(FopsClient::run(&FOps::copy, EntryList(target.entry("original")), tree.entry()).code, 0);
        if (!made.isEmpty())
            target.remove("original");
    }
    qInfo("of %d kills %d came in the middle of the copy, %d when there was a target, %d of them while the source went",
          killCount(), withParts, withTarget, withRemains);
}

void FopsKillTest::undoesItsFileWhenTerminated()
{
    TestTree tree({"target/"});
    for (int i = 0; i < 2000; ++i)
        tree.add("original/" + QByteArray::number(i), QByteArray(20000, 'x'));
    const QList<QByteArray> whole = treeSnapshot(tree.bytes("original"));
    ensureRunning();
    QSignalSpy finished(FOps::ptr(), &FOps::operationFinished);
    FOps::ptr()->copy(EntryList(tree.entry("original")), tree.entry("target"));
    const QDir directory(tree.path("target"));
    QTRY_VERIFY(!directory.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    endService(SIGTERM);
    QTRY_COMPARE(finished.count(), 1);
    constexpr int cancelled = 1;
    QCOMPARE(finished.first().at(1).toInt(), cancelled);
    QVERIFY(directory.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QCOMPARE(treeSnapshot(tree.bytes("original")), whole);
}

void FopsKillTest::leavesPartsOfOthersAlone()
{
    ensureRunning();
    TestTree tree({".vesk-fm-part-notes", ".vesk-fm-part-1-2", ".vesk-fm-part-999999999-1-1/gone"});
    QFile own(QStringLiteral("/proc/self/stat"));
    QVERIFY(own.open(QIODevice::ReadOnly));
    const QByteArray started = own.readAll().split(' ').value(21);
    const QByteArray live = ".vesk-fm-part-" + QByteArray::number(getpid()) + '-' + started + "-1";
    tree.add(live);
    QCOMPARE(FopsClient::run(&FOps::makeFile, fakeEntry(tree.path("new"))).code, 0);
    QStringList expected{".vesk-fm-part-notes", ".vesk-fm-part-1-2", QString::fromLatin1(live)};
    expected.sort();
    QCOMPARE(parts(tree), expected);
}

QTEST_GUILESS_MAIN(FopsKillTest)

#include "fopskilltest.moc"
