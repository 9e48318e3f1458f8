// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/standardpaths.h>

#include "xdgdirs.h"

#include <QFile>

namespace VeskFM
{

QString StandardPaths::trashDirPath()
{
    return QFile::decodeName(xdgDataHome()) + QLatin1String("/Trash/files");
}

} // namespace VeskFM
