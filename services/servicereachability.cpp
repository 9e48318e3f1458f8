// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "servicereachability.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDebug>

namespace VeskFM
{

ServiceReachability &ServiceReachability::instance()
{
    static ServiceReachability reachability;
    return reachability;
}

bool ServiceReachability::isWorthWaitingFor(const QString &serviceName)
{
    const auto silent = m_silentOwners.find(serviceName);
    if (silent == m_silentOwners.end())
        return true;
    const QString present = owner(serviceName); // the bus itself answers, not the service
    if (present.isEmpty() || present == *silent)
        return false;
    m_silentOwners.erase(silent);
    return true;
}

void ServiceReachability::markSilent(const QString &serviceName, const QString &reason)
{
    if (m_silentOwners.contains(serviceName))
        return;
    m_silentOwners.insert(serviceName, owner(serviceName));
    qCritical(
        "%s",
        qUtf8Printable(QCoreApplication::translate("ServiceInterfaceSingletone", "DBus service %1 does not answer: %2")
                           .arg(serviceName, reason)));
}

QString ServiceReachability::owner(const QString &serviceName)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() ? bus.interface()->serviceOwner(serviceName).value() : QString();
}

} // namespace VeskFM
