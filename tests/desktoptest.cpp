// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakes.h"
#include "fakevfs.h"

#include <veskfm/desktop.h>

#include <QTest>

using namespace VeskFM;

class DesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callsUntilTheApplicationQuits();
};

void DesktopTest::callsUntilTheApplicationQuits()
{
    CriticalMessages messages;
    const Entry entry = fakeEntry("/dir");
    Desktop *const desktop = Desktop::ptr();
    QCOMPARE(desktop->callRegularWindow(entry, Desktop::MountPoint | Desktop::FileActions), 0);
    desktop->callDesktop();
    desktop->callControlDialog();
    const QStringList calls{"capture()", R"(callRegularWindow((s) "/dir", 5))", "callDesktop()", "callControlDialog()"};
    QCOMPARE(fakeCalls(), calls);
    QCOMPARE(messages.take(), QStringList());

    announceQuit();
    QVERIFY(!desktop->isAvailable());
    QCOMPARE(desktop->callRegularWindow(entry, Desktop::NoOptions), 0);
    desktop->callDesktop();
    desktop->callControlDialog();
    QCOMPARE(messages.take(),
             QStringList({"int VeskFM::Desktop::callRegularWindow(const VeskFM::Entry&, WindowOptions) Can't get valid "
                          "Vesk-FM interface, error: \"\"",
                          "Can't get valid Vesk-FM interface", "Can't get valid Vesk-FM interface"}));
    QCOMPARE(fakeCalls(), calls);
}

QTEST_GUILESS_MAIN(DesktopTest)

#include "desktoptest.moc"
