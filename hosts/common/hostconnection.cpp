// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "hostconnection.h"

#include <veskfm/vendordomainprefix.h>

#include <QDBusConnection>
#include <QDBusError>

HostConnection::HostConnection(const QString &name, QObject *parent)
    : QObject(parent)
    , m_name(QLatin1String(VeskFM::VendorDomainPrefix) + QLatin1Char('.') + name)
{
    QDBusConnection::sessionBus().connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                                          QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                                          this, SIGNAL(lost()));
}

bool HostConnection::offer(const QString &path, QObject *object)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.registerObject(path, object, QDBusConnection::ExportAdaptors))
        return true;
    qCritical("cannot offer %s on the session bus: %s", qUtf8Printable(path),
              qUtf8Printable(bus.lastError().message()));
    return false;
}

bool HostConnection::claimName()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.registerService(m_name))
        return true;
    qCritical("cannot have the name %s on the session bus: %s", qUtf8Printable(m_name),
              qUtf8Printable(bus.lastError().message()));
    return false;
}
