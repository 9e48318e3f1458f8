// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "openadaptor.h"

#include "openservice.h"

OpenAdaptor::OpenAdaptor(QObject *object, OpenService *service)
    : QDBusAbstractAdaptor(object)
    , m_service(service)
{
}

void OpenAdaptor::open(const VeskFM::EntryList &entries, const QVariantMap &options)
{
    m_service->open(entries, options);
}

bool OpenAdaptor::canOpen(const VeskFM::Entry &entry)
{
    m_service->recallUnloader();
    return ::canOpen(entry);
}
