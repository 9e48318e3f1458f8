// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskdirs.h>

#include "xdgdirs.h"

#include <QtGlobal>

namespace
{

enum DirKind { TemporaryDir = 1, StartMenuDir = 4, ToolbarDir = 17, AutostartDir = 25 };

QByteArray temporaryDir()
{
    QByteArray dir = qgetenv("TMPDIR");
    while (dir.size() > 1 && dir.endsWith('/'))
        dir.chop(1);
    return dir.startsWith('/') ? dir : QByteArray("/tmp");
}

} // namespace

std::string GetVeskDir(int kind)
{
    switch (kind) {
    case TemporaryDir:
        return temporaryDir().toStdString();
    case StartMenuDir: // the user's part of the applications menu
        return (xdgDataHome() + "/applications").toStdString();
    case ToolbarDir:
        return (xdgDataHome() + "/vesk/toolbar").toStdString();
    case AutostartDir:
        return (xdgConfigHome() + "/autostart").toStdString();
    default:
        return {};
    }
}

const char *GetOrganization()
{
    return "tessaro";
}

int whatVeskSession()
{
    return qEnvironmentVariableIntValue("VESK_SESSION");
}
