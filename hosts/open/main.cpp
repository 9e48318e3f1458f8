// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mimeapplicationsadaptor.h"
#include "openadaptor.h"
#include "openservice.h"

#include "common/hostconnection.h"
#include "opening/guihost.h"

#include <veskplatform/vfs.h>

int main(int argc, char **argv)
{
    const GuiHost application(argc, argv, QStringLiteral("vesk-fm-open"));
    registerEntryPathTypes();
    VeskFM::VFS::ptr(); // made here, used by the workers

    OpenService service;
    QObject openObject;
    QObject mimeObject;
    new OpenAdaptor(&openObject, &service);
    new MimeApplicationsAdaptor(&mimeObject, &service);
    HostConnection bus(QStringLiteral("vesk-fm.open"));
    QObject::connect(&bus, &HostConnection::lost, qApp, &QCoreApplication::quit);
    if (!bus.offer(QStringLiteral("/"), &service) || !bus.offer(QStringLiteral("/Open"), &openObject)
        || !bus.offer(QStringLiteral("/MimeApps"), &mimeObject) || !bus.claimName())
        return 1;
    return QApplication::exec();
}
