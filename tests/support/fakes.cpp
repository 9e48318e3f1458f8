// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakes.h"

#include "testtree.h"

#include <veskfm/vendordomainprefix.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>

namespace
{

QStringList criticals;
QtMessageHandler formerHandler = nullptr;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtCriticalMsg)
        criticals.append(message);
    else if (formerHandler)
        formerHandler(type, context, message);
}

QString callsPath()
{
    return QDir::homePath() + QStringLiteral("/fake-calls");
}

QDBusConnectionInterface *bus()
{
    return QDBusConnection::sessionBus().interface();
}

} // namespace

QString busName(const char *name)
{
    return QLatin1String(VeskFM::VendorDomainPrefix) + QLatin1String(name);
}

void setActivationEnvironment(const QMap<QString, QString> &variables)
{
    qDBusRegisterMetaType<QMap<QString, QString>>();
    bus()->call(QStringLiteral("UpdateActivationEnvironment"), QVariant::fromValue(variables));
}

void setFakeBehaviour(const char *behaviour)
{
    setActivationEnvironment({{QStringLiteral("VESKFM_FAKE"), QLatin1String(behaviour)}});
}

QStringList fakeCalls()
{
    return QString::fromUtf8(contentOf(callsPath())).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void clearFakeCalls()
{
    QFile::remove(callsPath());
}

void resetFake(const QString &name)
{
    signalService(name, SIGKILL);
    setFakeBehaviour("");
    clearFakeCalls();
}

bool isOnBus(const QString &name)
{
    return bus()->isServiceRegistered(name);
}

bool signalService(const QString &name, int signal)
{
    const QDBusReply<uint> pid = bus()->servicePid(name);
    if (!pid.isValid() || kill(pid_t(pid.value()), signal) != 0)
        return false;
    return signal != SIGKILL || QTest::qWaitFor([&name] { return !isOnBus(name); });
}

void announceQuit()
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), "aboutToQuit");
}

CriticalMessages::CriticalMessages()
{
    criticals.clear();
    formerHandler = qInstallMessageHandler(collect);
}

CriticalMessages::~CriticalMessages()
{
    qInstallMessageHandler(formerHandler);
}

QStringList CriticalMessages::take()
{
    const QStringList taken = criticals;
    criticals.clear();
    return taken;
}
