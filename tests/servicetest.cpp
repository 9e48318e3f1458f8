// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakes.h"
#include "testtree.h"

#include <veskfm/service.h>
#include <veskfm/settings.h>

#include <QApplication>
#include <QDBusConnectionInterface>
#include <QMessageBox>

#include <QtTest>

#include <csignal>
#include <thread>

using namespace VeskFM;

namespace
{

constexpr int lifeTimeMs = 250;

QString host()
{
    return busName(".test.host");
}

bool start(const QString &name)
{
    return QDBusConnection::sessionBus().interface()->startService(name).isValid();
}

/// A process of its own, as the bus sees it.
class Client
{
public:
    Client() = default;
    ~Client() { QDBusConnection::disconnectFromBus("client"); }
    void call(const QString &method, QDBus::CallMode mode = QDBus::Block)
    {
        const QString interface = method == "capture" ? busName(".FileManager.Service") : "test.Host";
        m_bus.call(QDBusMessage::createMethodCall(host(), "/", interface, method), mode);
    }

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "client");
};

} // namespace

class ServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void staysWhileItIsHeld_data();
    void staysWhileItIsHeld();
    void forgetsAClientThatDidNotWait();
    void announcesItsEnd();
    void showsMessages_data();
    void showsMessages();
};

void ServiceTest::initTestCase()
{
    Settings::ptr()->setServiceLifeTime(lifeTimeMs);
}

void ServiceTest::cleanup()
{
    signalService(host(), SIGKILL);
}

void ServiceTest::staysWhileItIsHeld_data()
{
    QTest::addColumn<QStringList>("hold");
    QTest::addColumn<QString>("letGo");
    QTest::newRow("client, captured twice") << QStringList({"capture", "capture"}) << "leave";
    QTest::newRow("two locks, one taken back") << QStringList({"lock", "lock", "unlock"}) << "unlock";
    QTest::newRow("lock, when the client has left") << QStringList({"capture", "lock", "leave"}) << "unlock";
    QTest::newRow("refuses to unload") << QStringList({"refuse"}) << "allow";
}

void ServiceTest::staysWhileItIsHeld()
{
    QFETCH(QStringList, hold);
    QFETCH(QString, letGo);
    auto client = std::make_unique<Client>();
    const auto act = [&client](const QString &what) {
        if (what != "leave")
            return client->call(what);
        client.reset(); // first, since both have one name
        client = std::make_unique<Client>();
    };
    QVERIFY(start(host()));
    for (const QString &what : hold)
        act(what);
    // A second service that nobody holds tells when the time is over; twice, for one that is asked in between.
    const QString reference = busName(".test.reference");
    for (int i = 0; i < 2; ++i) {
        QVERIFY(start(reference));
        QTRY_VERIFY(!isOnBus(reference));
    }
    QVERIFY(isOnBus(host()));
    act(letGo);
    QTRY_VERIFY(!isOnBus(host()));
}

void ServiceTest::forgetsAClientThatDidNotWait()
{
    QVERIFY(start(host()));
    QVERIFY(signalService(host(), SIGSTOP));
    Client().call("capture", QDBus::NoBlock);
    QVERIFY(signalService(host(), SIGCONT));
    QTRY_VERIFY(!isOnBus(host()));
}

void ServiceTest::announcesItsEnd()
{
    QVERIFY(start(host()));
    QVERIFY(signalService(host(), SIGTERM));
    QTRY_VERIFY(!isOnBus(host()));
    QCOMPARE(contentOf(QDir::homePath() + "/halted"), QByteArray("asked"));
}

void ServiceTest::showsMessages_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("fromThread");
    QTest::addColumn<QStringList>("shown"); // icon, title, text
    const auto row = [](const char *name, QtMsgType type, bool fromThread, int icon, const char *title) {
        QTest::newRow(name) << int(type) << fromThread << QStringList{QString::number(icon), title, "text"};
    };
    row("debug", QtDebugMsg, false, QMessageBox::Information, "Debug message");
    row("warning", QtWarningMsg, false, QMessageBox::Warning, "Warning");
    row("critical", QtCriticalMsg, false, QMessageBox::Critical, "Critical");
    row("fatal", QtFatalMsg, false, QMessageBox::Warning, "Fatal");
    row("another thread's", QtWarningMsg, true, QMessageBox::Warning, "Warning");
    QTest::newRow("informational") << int(QtInfoMsg) << false << QStringList();
}

void ServiceTest::showsMessages()
{
    QFETCH(int, type);
    QFETCH(bool, fromThread);
    QFETCH(QStringList, shown);
    QStringList seen;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&seen] {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            seen = QStringList{QString::number(box->icon()), box->windowTitle(), box->text()};
            Service::messageBoxHandler(QtWarningMsg, {}, "while a box is open"); // would wait for ever
            box->close();
        }
    });
    closer.start(0);
    const auto log = [type] { Service::messageBoxHandler(QtMsgType(type), {}, "text"); };
    if (fromThread)
        std::thread(log).join();
    else
        log();
    QTRY_COMPARE(seen, shown);
}

QTEST_MAIN(ServiceTest)

#include "servicetest.moc"
