// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "openadaptor.h"

#include "openservice.h"

#include <QDBusConnection>
#include <QDBusMessage>

OpenAdaptor::OpenAdaptor(QObject *object, OpenService *service)
    : QDBusAbstractAdaptor(object)
    , m_service(service)
{
}

void OpenAdaptor::open(const EntryPathList &entries, const QVariantMap &options)
{
    m_service->open(pathsOf(entries), options);
}

bool OpenAdaptor::canOpen(const EntryPath &entry, const QDBusMessage &call)
{
    call.setDelayedReply(true);
    m_service->askCanOpen(entry.path, [call](bool can) { QDBusConnection::sessionBus().send(call.createReply(can)); });
    return false; // goes nowhere
}
