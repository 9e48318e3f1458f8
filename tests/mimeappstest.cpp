// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakes.h"

#include <veskfm/mimeapps.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QTest>

#include <csignal>

using namespace VeskFM;

class MimeAppsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void asksAndTells();
    void distrustsAnswers_data();
    void distrustsAnswers();
    void doesNotWaitForTheDialog();
};

void MimeAppsTest::cleanup()
{
    resetFake(busName(".vesk-fm.open"));
    MimeApps::freePtr();
}

void MimeAppsTest::asksAndTells()
{
    AppInfo app;
    app.setName("editor");
    app.setExec("editor %f");
    app.setSource(AppInfo::DesktopEntryFile, "/usr/share/applications/editor.desktop");
    app.setTerminal(true);
    MimeApps *const apps = MimeApps::ptr();
    QVERIFY(apps->isAvailable());
    QVERIFY(apps->defaultMimeTypeApplication("a/b") == app);
    QCOMPARE(apps->allRegisteredApplications().size(), 2);
    QCOMPARE(apps->mimeTypeApplications("a/b").value(1).name(), QStringLiteral("viewer"));
    QCOMPARE(apps->defaultWebBrowserExec(), QStringLiteral("defaultWebBrowserExec %u"));
    QCOMPARE(apps->defaultMailClientExec(), QStringLiteral("defaultMailClientExec %u"));
    QCOMPARE(apps->defaultMailSenderExec(), QStringLiteral("defaultMailSenderExec %u"));
    QVERIFY(apps->setDefaultApplication(app));
    apps->setAppsForMime("a/b", {app, app});
    apps->setDefaultMimeTypeApplication("a/b", app);
    apps->setDefaultWebBrowserExec("w");
    apps->setDefaultMailClientExec("m");
    apps->setDefaultMailSenderExec("s");
    const QString sent =
        R"((sssssib) "editor", "", "editor %f", "", "/usr/share/applications/editor.desktop", 0, true)";
    QCOMPARE(fakeCalls(),
             QStringList({"capture()", R"(defaultMimeTypeApplication("a/b"))", "allRegisteredApplications()",
                          R"(mimeTypeApplications("a/b"))", "defaultWebBrowserExec()", "defaultMailClientExec()",
                          "defaultMailSenderExec()", "setDefaultApplication(" + sent + ')',
                          R"(setAppsForMime("a/b", a(sssssib) {)" + sent + ", " + sent + "})",
                          R"(setDefaultMimeTypeApplication("a/b", )" + sent + ')', R"(setDefaultWebBrowserExec("w"))",
                          R"(setDefaultMailClientExec("m"))", R"(setDefaultMailSenderExec("s"))"}));
}

void MimeAppsTest::distrustsAnswers_data()
{
    QTest::addColumn<QString>("behaviour");
    for (const char *behaviour : {"error", "nothing", "number", "structure", "list", "die"})
        QTest::newRow(behaviour) << behaviour;
}

void MimeAppsTest::distrustsAnswers()
{
    QFETCH(QString, behaviour);
    setFakeBehaviour(qPrintable(behaviour));
    MimeApps *const apps = MimeApps::ptr();
    QVERIFY(apps->isAvailable());
    QVERIFY(!apps->setDefaultApplication(AppInfo()));
    QVERIFY(apps->defaultMimeTypeApplication("a/b").isNull());
    QVERIFY(apps->defaultWebBrowserExec().isEmpty() && apps->defaultMailSenderExec().isEmpty());
    QVERIFY(apps->allRegisteredApplications().isEmpty() && apps->mimeTypeApplications("a/b").isEmpty());
}

void MimeAppsTest::doesNotWaitForTheDialog()
{
    const QString name = busName(".vesk-fm.open");
    MimeApps *const apps = MimeApps::ptr();
    QVERIFY(signalService(name, SIGSTOP));
    apps->callDialog();
    QVERIFY(signalService(name, SIGCONT)); // if it had waited, then in vain
    QTRY_COMPARE(fakeCalls().last(), QStringLiteral("callDialog()"));

    QVERIFY(signalService(name, SIGKILL));
    QTRY_VERIFY(!apps->isAvailable());
    clearFakeCalls();
    apps->callDialog();
    QTRY_COMPARE(fakeCalls().value(0), QStringLiteral("callDialog()"));

    QVERIFY(signalService(name, SIGKILL));
    QTRY_VERIFY(!apps->isAvailable());
    setFakeBehaviour("unclaimed");
    CriticalMessages messages;
    apps->callDialog();
    QCOMPARE(messages.take(), QStringList()); // of a start that failed
    QVERIFY(!QDBusConnection::sessionBus().interface()->startService(name).isValid());
}

QTEST_GUILESS_MAIN(MimeAppsTest)

#include "mimeappstest.moc"
