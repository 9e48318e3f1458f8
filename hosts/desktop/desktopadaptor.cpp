// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desktopadaptor.h"

#include "desktopservice.h"

#include <veskplatform/vfs.h>

DesktopAdaptor::DesktopAdaptor(DesktopService *service)
    : QDBusAbstractAdaptor(service)
    , m_service(service)
{
}

int DesktopAdaptor::callRegularWindow(const VeskFM::Entry &entry, int options)
{
    Q_UNUSED(options) // all windows of this file manager are alike
    return m_service->openWindow(entry) ? 0 : 1;
}

void DesktopAdaptor::callDesktop()
{
    m_service->openDesktop();
}

void DesktopAdaptor::callControlDialog()
{
    m_service->openWindow(VeskFM::VFS::ptr()->homeEntry());
}
