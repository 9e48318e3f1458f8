// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "servicereachability.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDebug>

#include <limits>

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
    const QString silent = owner(serviceName);
    m_silentOwners.insert(serviceName, silent);
    if (!silent.isEmpty())
        awaitAnswer(serviceName, silent);
    qCritical(
        "%s",
        qUtf8Printable(QCoreApplication::translate("ServiceInterfaceSingletone", "DBus service %1 does not answer: %2")
                           .arg(serviceName, reason)));
}

bool ServiceReachability::isHung(const QString &serviceName, const QDBusError &error)
{
    switch (error.type()) {
    case QDBusError::NoReply: // also for a service that died under the call
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        break;
    default:
        return false;
    }
    if (owner(serviceName).isEmpty())
        return false;
    markSilent(serviceName, error.message());
    return true;
}

/// A service that was only slow (a dialog kept it, a disk had to wake up) is trusted again with its first answer.
void ServiceReachability::awaitAnswer(const QString &serviceName, const QString &owner)
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        owner, QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus.Introspectable"), // the library answers pings
        QStringLiteral("Introspect"));
    auto *const watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question, std::numeric_limits<int>::max()),
                                    QCoreApplication::instance());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [this, watcher, serviceName, owner] {
        if (!watcher->isError() && m_silentOwners.value(serviceName) == owner)
            m_silentOwners.remove(serviceName);
        watcher->deleteLater();
    });
}

QString ServiceReachability::owner(const QString &serviceName)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() ? bus.interface()->serviceOwner(serviceName).value() : QString();
}

} // namespace VeskFM
