// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/serviceinterfacesingletone.h>

#include "servicereachability.h"

#include <veskfm/vendordomainprefix.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDebug>

namespace VeskFM
{

namespace
{

void logCritical(const char *text, const QString &serviceName)
{
    qCritical("%s", qUtf8Printable(QCoreApplication::translate("ServiceInterfaceSingletone", text).arg(serviceName)));
}

bool isOnBus()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.interface() && bus.isConnected(); // without a bus there is an interface all the same
}

QStringList activatableNames()
{
    const QDBusMessage reply =
        QDBusConnection::sessionBus().interface()->call(QDBus::Block, QStringLiteral("ListActivatableNames"));
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0).toStringList() : QStringList();
}

/// An interface takes a blocking call to make. Where nobody answers it is made on no bus at all, which costs nothing and
/// gives an invalid one.
QDBusInterface *makeInterface(const QString &serviceName, const QString &path, const QString &interfaceName)
{
    ServiceReachability &reachability = ServiceReachability::instance();
    if (reachability.isWorthWaitingFor(serviceName)) {
        auto interface =
            std::make_unique<QDBusInterface>(serviceName, path, interfaceName, QDBusConnection::sessionBus());
        if (!reachability.isHung(serviceName, interface->lastError()))
            return interface.release();
    }
    return new QDBusInterface(serviceName, path, interfaceName, QDBusConnection(QString()));
}

} // namespace

ServiceInterfaceSingletone::ServiceInterfaceSingletone(const QString &serviceName)
    : m_serviceName(serviceName)
{
    if (!isOnBus()) {
        logCritical(QT_TRANSLATE_NOOP("ServiceInterfaceSingletone",
                                      "can't connect to DBus service %1, perhaps usage 'dbus-launch <program>' can "
                                      "solve this problem"),
                    serviceName);
        return;
    }
    m_isActivatable = activatableNames().contains(serviceName);
    if (!m_isActivatable) {
        logCritical(QT_TRANSLATE_NOOP("ServiceInterfaceSingletone",
                                      "service %1 was not installed, perhaps usage 'dbus-launch <program>' can solve "
                                      "this problem"),
                    serviceName);
        return;
    }
    startService();
    connectToService();
}

ServiceInterfaceSingletone::~ServiceInterfaceSingletone() = default;

/// Waits until the service owns its name, if it can be started. Returns whether calls are worth waiting for.
bool ServiceInterfaceSingletone::startService() const
{
    ServiceReachability &reachability = ServiceReachability::instance();
    if (!reachability.isWorthWaitingFor(m_serviceName))
        return false;
    if (!m_isActivatable)
        return true; // somebody may run it by hand
    const QDBusReply<void> reply = QDBusConnection::sessionBus().interface()->startService(m_serviceName);
    if (!reply.isValid())
        reachability.markSilent(m_serviceName, reply.error().message());
    return reply.isValid();
}

/// Tells the service that this process uses it.
void ServiceInterfaceSingletone::connectToService()
{
    m_serviceInterface.reset(makeInterface(m_serviceName, QStringLiteral("/"),
                                           QLatin1String(VendorDomainPrefix) + QLatin1String(".FileManager.Service")));
    callAndWait(*m_serviceInterface, QDBus::Block, QStringLiteral("capture"), {});
}

QString ServiceInterfaceSingletone::serviceName() const
{
    return m_serviceName;
}

bool ServiceInterfaceSingletone::isAvailable() const
{
    return m_serviceInterface && m_serviceInterface->isValid();
}

QSharedPointer<QDBusInterface> ServiceInterfaceSingletone::createInterface(const QString &path,
                                                                           const QString &interfaceName)
{
    const QSharedPointer<QDBusInterface> interface(makeInterface(m_serviceName, path, interfaceName));
    m_createdInterfaces.append(interface);
    return interface;
}

void ServiceInterfaceSingletone::release()
{
    m_serviceInterface.reset();
    m_createdInterfaces.clear();
}

QSharedPointer<QDBusInterface> ServiceInterfaceSingletone::callableInterface(QWeakPointer<QDBusInterface> &interface,
                                                                             QDBus::CallMode mode)
{
    const QSharedPointer<QDBusInterface> present = interface.toStrongRef();
    if (!present || present->isValid() || !m_isActivatable)
        return present;
    if (mode == QDBus::NoBlock && present->connection().isConnected()) // the call itself has the bus start the service
        return present;
    if (!startService())
        return present;
    if (!m_serviceInterface->connection().isConnected())
        connectToService(); // it has never been told
    m_createdInterfaces.removeAll(present);
    const QSharedPointer<QDBusInterface> renewed = createInterface(present->path(), present->interface());
    interface = renewed;
    return renewed;
}

QDBusMessage ServiceInterfaceSingletone::callAndWait(QDBusInterface &interface, QDBus::CallMode mode,
                                                     const QString &method, const QVariantList &arguments) const
{
    // Started first, so that waiting for a start is not taken for waiting for an answer.
    if (!startService())
        return QDBusMessage::createError(QDBusError::NoReply, QStringLiteral("the service does not answer"));
    const QDBusMessage reply = interface.callWithArgumentList(mode, method, arguments);
    if (reply.type() == QDBusMessage::ErrorMessage)
        ServiceReachability::instance().isHung(m_serviceName, QDBusError(reply));
    return reply;
}

} // namespace VeskFM
