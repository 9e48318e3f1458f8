// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/singletone.h>

#include <QDBusInterface>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QVariant>
#include <QWeakPointer>

#include <memory>

namespace VeskFM
{

/// Base of the clients of one bus service: starts the service, tells it that this process uses it, and makes interfaces
/// to its objects.
///
/// A service that cannot be started, or does not answer, costs one bus time-out in the life of the process, whatever the
/// number of clients and calls: from then on calls fail at once until somebody new owns the name, or the silent one
/// answers after all.
///
/// Thread: main. Errors: a missing bus or service is logged at critical level, once for each client.
class VESKFM_EXPORT ServiceInterfaceSingletone : public Singletone
{
public:
    /// Blocks while the service starts.
    explicit ServiceInterfaceSingletone(const QString &serviceName);
    ~ServiceInterfaceSingletone() override;

    QString serviceName() const;
    bool isAvailable() const; ///< the service was found, and runs
    /// An interface to an object of the service, never null; whether the service was found or not. This object keeps it
    /// until release(), so a client keeps a weak pointer.
    QSharedPointer<QDBusInterface> createInterface(const QString &path, const QString &interfaceName);
    void release() override; ///< gives up all interfaces

protected:
    /// The interface to call now, null after release(). A service that has gone is started again, and one that is no
    /// longer silent gets another chance; @p interface is replaced then. With QDBus::NoBlock a service that has gone is
    /// left to the call, which starts it without making this process wait.
    QSharedPointer<QDBusInterface> callableInterface(QWeakPointer<QDBusInterface> &interface,
                                                     QDBus::CallMode mode = QDBus::Block);
    /// Calls and waits. An error message where the call failed, at once where the service is known not to answer.
    QDBusMessage callAndWait(QDBusInterface &interface, QDBus::CallMode mode, const QString &method,
                             const QVariantList &arguments) const;

private:
    Q_DISABLE_COPY(ServiceInterfaceSingletone)

    bool startService() const;
    void connectToService();

    const QString m_serviceName;
    bool m_isActivatable = false;
    QList<QSharedPointer<QDBusInterface>> m_createdInterfaces;
    std::unique_ptr<QDBusInterface> m_serviceInterface; // to the service's control object; null when it was not found
};

} // namespace VeskFM
