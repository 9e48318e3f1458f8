// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sizematch.h"

#include <veskplatform/entry.h>

namespace VeskFM
{

SizeMatch::SizeMatch(qint64 least, qint64 most, bool acceptsDirectories)
    : m_least(least)
    , m_most(most)
    , m_acceptsDirectories(acceptsDirectories)
{
}

bool SizeMatch::match(const Entry &entry) const
{
    if (!entry.isFile() && !entry.isArchiveMountPoint())
        return m_acceptsDirectories;
    return entry.fileSize() >= m_least && entry.fileSize() <= m_most;
}

} // namespace VeskFM
