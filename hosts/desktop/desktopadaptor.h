// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "desktopxml.h"

#include <veskfm/vendordomainprefix.h>
#include <veskplatform/entry.h>

#include <QDBusAbstractAdaptor>

class DesktopService;

/// The bus interface of the desktop; its description tells what each method does.
class DesktopAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", VESKFM_VENDOR_DOMAIN_PREFIX ".FileManager.Desktop")
    Q_CLASSINFO("D-Bus Introspection", VESKFM_DESKTOP_XML)

public:
    explicit DesktopAdaptor(DesktopService *service);

public Q_SLOTS:
    int callRegularWindow(const VeskFM::Entry &entry, int options);
    void callDesktop();
    void callControlDialog();

private:
    DesktopService *const m_service; // the parent
};
