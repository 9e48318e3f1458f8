// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "openxml.h"

#include "common/entrypath.h"

#include <veskfm/vendordomainprefix.h>

#include <QDBusAbstractAdaptor>
#include <QVariantMap>

class OpenService;
class QDBusMessage;

/// The bus interface for opening; its description tells what each method does.
class OpenAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", VESKFM_VENDOR_DOMAIN_PREFIX ".FileManager.Open")
    Q_CLASSINFO("D-Bus Introspection", VESKFM_OPEN_XML)

public:
    OpenAdaptor(QObject *object, OpenService *service); ///< @p object is the one on the bus

public Q_SLOTS:
    void open(const EntryPathList &entries, const QVariantMap &options);
    bool canOpen(const EntryPath &entry, const QDBusMessage &call);

private:
    OpenService *const m_service;
};
