// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

namespace VeskFM
{

/// Whether there is nothing below @p entry to list: a file, unless it is an archive that is entered like a directory.
inline bool isLeaf(const Entry &entry)
{
    return entry.isFile() && !entry.isArchiveMountPoint();
}

} // namespace VeskFM
