// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/vendordomainprefix.h>

#include <QDBusAbstractAdaptor>

namespace VeskFM
{

class Service;

/// The bus interface that every service has. Service makes its own; relays the service's signals.
class VESKFM_EXPORT ServiceAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", VESKFM_VENDOR_DOMAIN_PREFIX ".FileManager.Service")

public:
    /// Starts the idle time of the service.
    /// @param parent a Service
    explicit ServiceAdaptor(QObject *parent);

public Q_SLOTS:
    void capture(); ///< counts the caller as a client and starts the idle time anew

private:
    Service *const m_service; // the parent
};

} // namespace VeskFM
