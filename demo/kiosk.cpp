// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "kiosk.h"

#include <veskfm/mimeapps.h>
#include <veskfm/settings.h>
#include <veskplatform/entry.h>
#include <veskplatform/veskuidesktopentry.h>

#include <QMimeDatabase>

using namespace VeskFM;

bool Kiosk::isOn()
{
    return Settings::ptr()->isKioskMode();
}

bool Kiosk::mayOpen(const Entry &file)
{
    if (!isOn())
        return true;
    const QStringList allowed = Settings::ptr()->kioskExecs();
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file.localPath());
    if (type.inherits(QStringLiteral("application/x-desktop")))
        return allowed.contains(VeskUIDesktopEntry(file.localPath()).getExec());
    if (file.isExecutable() && type.inherits(QStringLiteral("application/x-executable")))
        return false;
    return allowed.contains(MimeApps::ptr()->defaultMimeTypeApplication(type.name()).exec());
}
