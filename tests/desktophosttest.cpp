// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakes.h"
#include "testapplication.h"

#include <veskfm/settings.h>
#include <veskplatform/vfs.h>

#include <QDBusConnectionInterface>

#include <QtTest>

#include <csignal>

using namespace VeskFM;

/// The real desktop service with a file manager that only notes its start, and how the services end. No client of the
/// library is here: it would keep them.
class DesktopHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensWindows_data();
    void opensWindows();
    void endsWhenNobodyNeedsIt_data();
    void endsWhenNobodyNeedsIt();

private:
    static QDBusMessage call(const QDBusConnection &bus, const char *service, const char *path, const char *interface,
                             const QString &method, const QVariantList &arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(busName(service), path, busName(interface), method);
        message.setArguments(arguments);
        return bus.call(message);
    }

    TestTree m_tree{"directory/file", "\xc3\xa9\xff/"};
};

void DesktopHostTest::opensWindows_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("path");  // below the tree
    QTest::addColumn<QString>("shown"); // empty: none
    const auto row = [](const char *name, const char *method, const char *path, const QString &shown) {
        QTest::newRow(name) << method << path << shown;
    };
    row("directory", "callRegularWindow", "directory", m_tree.path("directory"));
    row("file", "callRegularWindow", "directory/file", m_tree.path("directory"));
    row("no text", "callRegularWindow", "é\U0010ffff", m_tree.path("é\U0010ffff"));
    row("not there", "callRegularWindow", "none", {});
    row("desktop", "callDesktop", "", QDir::homePath()); // it has no directory for it
    row("control dialog", "callControlDialog", "", QDir::homePath());
}

void DesktopHostTest::opensWindows()
{
    QFETCH(QString, method);
    QFETCH(QString, path);
    QFETCH(QString, shown);
    // A copy of the program: it takes the file manager that is beside it.
    const QString program = m_tree.path("vesk-fm-desktop");
    QFile::copy(QCoreApplication::applicationDirPath() + "/vesk-fm-desktop", program);
    TestApplication::addProgram(&m_tree, "vesk-browser");
    QFile::remove(m_tree.path("vesk-browser.starts"));
    QProcess host;
    host.start(program, QStringList());
    QTRY_VERIFY(isOnBus(busName(".vesk-fm.desktop")));

    QVariantList arguments;
    if (method == "callRegularWindow") {
        QDBusArgument entry;
        entry.beginStructure();
        entry << m_tree.path(path);
        entry.endStructure();
        arguments = {QVariant::fromValue(entry), 0};
    }
    const QDBusMessage reply =
        call(QDBusConnection::sessionBus(), ".vesk-fm.desktop", "/", ".FileManager.Desktop", method, arguments);
    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    if (!arguments.isEmpty())
        QCOMPARE(reply.arguments(), QVariantList{shown.isEmpty() ? 1 : 0});
    if (!shown.isEmpty())
        QTRY_VERIFY(TestApplication::starts(m_tree, "vesk-browser").endsWith('<' + shown.toUtf8() + ">\n"));
    QVERIFY(signalService(busName(".vesk-fm.desktop"), SIGKILL));
    QVERIFY(host.waitForFinished());
}

void DesktopHostTest::endsWhenNobodyNeedsIt_data()
{
    QTest::addColumn<bool>("hasClient");
    QTest::addColumn<bool>("hasDialog");
    QTest::newRow("client") << true << false;
    QTest::newRow("dialog") << false << true;
}

void DesktopHostTest::endsWhenNobodyNeedsIt()
{
    QFETCH(bool, hasClient);
    QFETCH(bool, hasDialog);
    Settings::ptr()->setServiceLifeTime(150);
    const QDBusConnection bus = QDBusConnection::sessionBus();
    bus.interface()->startService(busName(".vesk-fm.open"));
    {
        const QDBusConnection client = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "client");
        if (hasClient)
            call(client, ".vesk-fm.open", "/", ".FileManager.Service", "capture");
        if (hasDialog)
            call(client, ".vesk-fm.open", "/MimeApps", ".FileManager.MimeApplications", "callDialog");
    }
    // Another one, with nothing to do, measures the time.
    for (int i = 0; i < 2; ++i) {
        bus.interface()->startService(busName(".vesk-fm.desktop"));
        QTRY_VERIFY(!isOnBus(busName(".vesk-fm.desktop")));
    }
    QVERIFY(isOnBus(busName(".vesk-fm.open")));
    QDBusConnection::disconnectFromBus("client");
    if (hasDialog)
        QVERIFY(signalService(busName(".vesk-fm.open"), SIGTERM)); // nobody can close it here
    QTRY_VERIFY(!isOnBus(busName(".vesk-fm.open")));
}

QTEST_GUILESS_MAIN(DesktopHostTest)

#include "desktophosttest.moc"
