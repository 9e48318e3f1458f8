// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/desktop.h>

#include <veskfm/vendordomainprefix.h>

#include <QDBusError>
#include <QDBusMessage>
#include <QDebug>

namespace VeskFM
{

Desktop *Desktop::m_ptr = nullptr;

Desktop *Desktop::ptr()
{
    if (!m_ptr)
        new Desktop;
    return m_ptr;
}

Desktop::Desktop(QObject *parent)
    : QObject(parent)
    , ServiceInterfaceSingletone(QLatin1String(VendorDomainPrefix) + QLatin1String(".vesk-fm.desktop"))
{
    if (!m_ptr)
        m_ptr = this;
    m_desktop =
        createInterface(QStringLiteral("/"), QLatin1String(VendorDomainPrefix) + QLatin1String(".FileManager.Desktop"));
}

Desktop::~Desktop()
{
    if (m_ptr == this)
        m_ptr = nullptr;
}

int Desktop::callRegularWindow(const Entry &entry, WindowOptions options)
{
    const QSharedPointer<QDBusInterface> service = callableInterface(m_desktop);
    if (!service || !service->isValid()) {
        qCritical() << Q_FUNC_INFO << "Can't get valid Vesk-FM interface, error:"
                    << (service ? service->lastError().message() : QString());
        return 0;
    }
    callAndWait(*service, QDBus::Block, QStringLiteral("callRegularWindow"),
                {QVariant::fromValue(entry), int(options)});
    return 0; // the reply says nothing that a caller could use
}

void Desktop::callDesktop()
{
    callWithoutArguments(QStringLiteral("callDesktop"));
}

void Desktop::callControlDialog()
{
    callWithoutArguments(QStringLiteral("callControlDialog"));
}

void Desktop::callWithoutArguments(const QString &method)
{
    const QSharedPointer<QDBusInterface> service = callableInterface(m_desktop);
    if (!service || !service->isValid()) {
        qCritical("%s", "Can't get valid Vesk-FM interface");
        return;
    }
    callAndWait(*service, QDBus::Block, method, {});
}

} // namespace VeskFM
