// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "modifiedmatch.h"

#include "diskpath.h"

#include <veskplatform/archivemount.h>

#include <sys/stat.h>

namespace VeskFM
{

namespace
{
constexpr int looksAtTheDisk = 20; // after what the entries know themselves
}

ModifiedMatch::ModifiedMatch(qint64 earliest)
    : m_earliest(earliest)
{
}

bool ModifiedMatch::match(const Entry &entry) const
{
    if (const qint64 inArchiveMs = ArchiveMount::modifiedMs(entry))
        return inArchiveMs / 1000 >= m_earliest;
    const QByteArray path = diskPath(entry);
    struct stat found = {};
    return !path.isEmpty() && lstat(path.constData(), &found) == 0 && found.st_mtim.tv_sec >= m_earliest;
}

int ModifiedMatch::priority() const
{
    return looksAtTheDisk;
}

} // namespace VeskFM
