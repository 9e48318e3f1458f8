// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/thread.h>

#include <QSemaphore>
#include <QTest>

using namespace VeskFM;

namespace
{

/// Does one round for each permission, past a safe point; then it waits for a pause.
class Worker : public Thread
{
public:
    static constexpr int lastRound = 3;
    QSemaphore permissions;
    std::atomic<int> rounds{0};

protected:
    void run() override
    {
        while (rounds < lastRound) {
            permissions.acquire();
            if (checkSuspend())
                ++rounds;
        }
        waitForSuspend();
        setExitCode(7);
        setErrorString(QStringLiteral("stopped"));
    }
};

} // namespace

class ThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pausesTheWorkerAtItsSafePoint()
    {
        Worker worker;
        worker.release(); // nothing to release
        worker.start();
        for (int round = 0; round < Worker::lastRound; ++round) {
            QTRY_COMPARE(worker.rounds.load(), round); // it waits for its permission
            worker.suspend();
            worker.permissions.release();
            QVERIFY(!worker.wait(20));
            QCOMPARE(worker.rounds.load(), round);
            worker.release();
        }
        QTRY_COMPARE(worker.rounds.load(), int(Worker::lastRound));
        do { // whether it waits already cannot be seen from outside
            worker.release();
            worker.suspend();
        } while (!worker.wait(50));
        QCOMPARE(worker.exitCode(), 7);
        QCOMPARE(worker.errorString(), "stopped");
    }
};

QTEST_GUILESS_MAIN(ThreadTest)

#include "threadtest.moc"
