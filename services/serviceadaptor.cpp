// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/serviceadaptor.h>

#include <veskfm/service.h>

namespace VeskFM
{

ServiceAdaptor::ServiceAdaptor(QObject *parent)
    : QDBusAbstractAdaptor(parent)
    , m_service(static_cast<Service *>(parent)) // a qobject_cast fails while the service is still being constructed
{
    setAutoRelaySignals(true);
    m_service->recallUnloader();
}

void ServiceAdaptor::capture()
{
    m_service->lockUnloader();
    m_service->capture();
    m_service->unlockUnloader();
}

} // namespace VeskFM
