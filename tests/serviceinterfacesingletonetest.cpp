// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakes.h"

#include <veskfm/desktop.h>
#include <veskfm/fops.h>
#include <veskfm/mimeapps.h>
#include <veskfm/open.h>
#include <veskfm/serviceinterfacesingletone.h>

#include <QDBusConnectionInterface>

#include <QtTest>

#include <csignal>

using namespace VeskFM;

namespace
{

class Client : public ServiceInterfaceSingletone
{
public:
    explicit Client(const QString &name = busName(".vesk-fm.open"))
        : ServiceInterfaceSingletone(name)
        , interface(createInterface("/Open", busName(".FileManager.Open")))
    {
    }
    /// The service's answer, invalid where there was none.
    QVariant ask()
    {
        const QSharedPointer<QDBusInterface> service = callableInterface(interface);
        const QDBusMessage reply = service ? callAndWait(*service, QDBus::Block, "canOpen", {"/x"}) : QDBusMessage();
        return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
    }

    QWeakPointer<QDBusInterface> interface;
};

} // namespace

class ServiceInterfaceSingletoneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void startsCapturesAndReleases();
    void reportsAServiceThatIsNotInstalled();
    void waitsForASilentServiceOnce_data();
    void waitsForASilentServiceOnce();
    void startsADeadServiceAnew();
    void trustsASlowServiceAgain();
    void worksWithoutABus();
};

void ServiceInterfaceSingletoneTest::cleanup()
{
    resetFake(busName(".vesk-fm.open"));
}

void ServiceInterfaceSingletoneTest::startsCapturesAndReleases()
{
    setFakeBehaviour("slow");
    Client client;
    QVERIFY(client.isAvailable());
    QCOMPARE(client.ask(), QVariant(true));
    QCOMPARE(fakeCalls(), QStringList({"capture()", "canOpen(\"/x\")"}));
    client.release();
    QVERIFY(!client.isAvailable() && !client.interface);
    QVERIFY(!client.ask().isValid());
}

void ServiceInterfaceSingletoneTest::reportsAServiceThatIsNotInstalled()
{
    CriticalMessages messages;
    Client client("test.Absent");
    QVERIFY(client.interface && !client.interface.toStrongRef()->isValid());
    QVERIFY(!client.isAvailable() && !client.ask().isValid());
    QCOMPARE(messages.take(),
             QStringList("service test.Absent was not installed, perhaps usage 'dbus-launch "
                         "<program>' can solve this problem"));
}

void ServiceInterfaceSingletoneTest::waitsForASilentServiceOnce_data()
{
    QTest::addColumn<QString>("behaviour");
    QTest::addColumn<int>("signal"); // ends the silence
    QTest::newRow("never claims its name") << "unclaimed" << 0;
    QTest::newRow("stops when it has the name, gets killed") << "hang" << SIGKILL;
    QTest::newRow("stops when it has the name, goes on") << "hang" << SIGCONT;
}

void ServiceInterfaceSingletoneTest::waitsForASilentServiceOnce()
{
    QFETCH(QString, behaviour);
    QFETCH(int, signal);
    const int busTimeoutMs = qEnvironmentVariableIntValue("VESKFM_TEST_BUS_TIMEOUT_MS");
    const QString name = busName(".vesk-fm.open");
    CriticalMessages messages;
    setFakeBehaviour(qPrintable(behaviour));
    QElapsedTimer timer;
    timer.start();
    Client client;
    QVERIFY2(timer.restart() < 2 * busTimeoutMs, "constructor waited more than once");
    Client other;
    for (int i = 0; i < 50; ++i)
        QVERIFY(!client.ask().isValid() && !other.ask().isValid());
    QVERIFY(!client.isAvailable() && !other.interface.toStrongRef()->isValid());
    QVERIFY2(timer.elapsed() < busTimeoutMs, "waited again");
    const QStringList critical = messages.take();
    QCOMPARE(critical.size(), 1);
    QVERIFY(critical.first().startsWith("DBus service " + name + " does not answer: "));

    setFakeBehaviour("");
    if (signal != 0)
        QVERIFY(signalService(name, signal));
    QDBusConnection::sessionBus().interface()->startService(name); // by somebody else
    QTRY_COMPARE(client.ask(), QVariant(true));
    QVERIFY(client.isAvailable());
    QCOMPARE(other.ask(), QVariant(true));
    QCOMPARE(messages.take(), QStringList());
}

void ServiceInterfaceSingletoneTest::startsADeadServiceAnew()
{
    CriticalMessages messages;
    setFakeBehaviour("die");
    Client client;
    QVERIFY(!client.ask().isValid()); // it died under this call
    QVERIFY(!client.ask().isValid()); // and so did the next one
    QTRY_VERIFY(!client.isAvailable());
    setFakeBehaviour("");
    QCOMPARE(client.ask(), QVariant(true));
    QTRY_VERIFY(client.isAvailable());
    QCOMPARE(messages.take(), QStringList());
}

void ServiceInterfaceSingletoneTest::trustsASlowServiceAgain()
{
    const QString name = busName(".vesk-fm.open");
    CriticalMessages messages;
    Client client;
    QVERIFY(signalService(name, SIGSTOP));
    QVERIFY(!client.ask().isValid());
    QCOMPARE(messages.take().size(), 1);
    QVERIFY(signalService(name, SIGCONT));
    QTRY_COMPARE(client.ask(), QVariant(true));
}

// Runs itself again where there is no bus.
void ServiceInterfaceSingletoneTest::worksWithoutABus()
{
    const char nowhere[] = "unix:path=/nonexistent/bus";
    if (qgetenv("DBUS_SESSION_BUS_ADDRESS") != nowhere) {
        QProcess self;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", nowhere);
        self.setProcessEnvironment(environment);
        self.setProcessChannelMode(QProcess::ForwardedChannels);
        self.start(QCoreApplication::applicationFilePath(), {"worksWithoutABus"});
        QVERIFY(self.waitForFinished() && self.exitStatus() == QProcess::NormalExit);
        QCOMPARE(self.exitCode(), 0);
        return;
    }
    CriticalMessages messages;
    FOps *const fops = FOps::ptr();
    QCOMPARE(messages.take(),
             QStringList("can't connect to DBus service " + busName(".vesk-fm.fops")
                         + ", perhaps usage 'dbus-launch <program>' can solve this problem"));
    const Entry entry;
    QSignalSpy finished(fops, &FOps::operationFinished);
    const FOpId id = fops->remove({entry}, true);
    QVERIFY(!id.isNull());
    QCOMPARE(fops->operationProgress(id), 0);
    QVERIFY(!fops->isAvailable() && !Open::ptr()->isAvailable() && !Open::ptr()->canOpen(entry));
    Open::ptr()->open({entry}, {});
    QCOMPARE(MimeApps::ptr()->mimeTypeApplications("text/plain").size(), 0);
    QCOMPARE(MimeApps::ptr()->defaultWebBrowserExec(), QString());
    MimeApps::ptr()->callDialog();
    QCOMPARE(Desktop::ptr()->callRegularWindow(entry, Desktop::Simple), 0);
    QCoreApplication::processEvents();
    QCOMPARE(finished.size(), 0);
}

QTEST_GUILESS_MAIN(ServiceInterfaceSingletoneTest)

#include "serviceinterfacesingletonetest.moc"
