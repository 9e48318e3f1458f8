// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/newentry.h>

#include "deferredentrydata.h"

namespace VeskFM
{

Entry newEntry(const QString &path)
{
    return path.startsWith(QLatin1Char('/')) ? Entry(new DeferredEntryData(path)) : Entry();
}

Entry newEntry(const Entry &directory, const QString &name)
{
    const QString path = directory.isPlace() ? directory.localPath() : directory.path();
    const bool isName = !name.isEmpty() && !name.contains(QLatin1Char('/')) && !name.contains(QChar(0))
        && name != QLatin1String(".") && name != QLatin1String("..");
    if (path.isEmpty() || !isName)
        return {};
    return newEntry(path.endsWith(QLatin1Char('/')) ? path + name : path + QLatin1Char('/') + name);
}

} // namespace VeskFM
