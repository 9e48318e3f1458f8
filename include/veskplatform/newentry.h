// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

namespace VeskFM
{

/// An entry of the path @p path of the disk, whether something is there or not: what services are told to make. Nobody
/// looks before the first question about more than its path. Null for anything but an absolute path. Thread: any.
VESKPLATFORM_EXPORT Entry newEntry(const QString &path);
/// The entry that would be called @p name in @p directory, a directory or a place with one behind it. Null where the
/// disk has no such directory, and for a name that cannot be one.
VESKPLATFORM_EXPORT Entry newEntry(const Entry &directory, const QString &name);

} // namespace VeskFM
