// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/global.h>
#include <veskfm/userpropcaps.h>

#include <QSettings>
#include <QTest>

#include <memory>

using namespace VeskFM;

class UserPropCapsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void remembersByUserAndCapability()
    {
        UserPropCaps *caps = UserPropCaps::ptr();
        QVERIFY(caps->isAccessible(1000, "x.so"));
        caps->setAccessibility(1000, "x.so", false);
        caps->setAccessibility(4294967295U, "x.so", false); // no negative number in the file
        caps->setAccessibility(1000, "", false);
        QVERIFY(caps->isAccessible(1001, "x.so") && caps->isAccessible(1000, "y.so") && caps->isAccessible(1000, ""));
        QSettings *settings = Global::ptr()->settings();
        QCOMPARE(settings->value("userPropertyCapabilities/1000/x.so"), QVariant(false));
        QCOMPARE(settings->value("userPropertyCapabilities/4294967295/x.so"), QVariant(false));
        QCOMPARE(settings->allKeys().filter("userPropertyCapabilities").size(), 2);

        delete caps;
        QVERIFY(!UserPropCaps::ptr()->isAccessible(1000, "x.so"));
        UserPropCaps::ptr()->setAccessibility(1000, "x.so", true);
        QVERIFY(UserPropCaps::ptr()->isAccessible(1000, "x.so"));

        const UserPropCaps *const shared = UserPropCaps::ptr();
        std::make_unique<UserPropCaps>().reset(); // somebody's own object takes nothing over
        QCOMPARE(UserPropCaps::ptr(), shared);
    }
};

QTEST_MAIN(UserPropCapsTest)
#include "userpropcapstest.moc"
