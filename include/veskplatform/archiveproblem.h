// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

namespace VeskFM
{

/// Why the latest listing or mounting of an archive failed ("x.zip is encrypted"), for the user: a listing itself comes
/// back empty then. Empty when it did not fail.
///
/// Ask when dirListed() told of the listing. Thread: any; blocks for nothing.
/// @param entry the archive, or anything in it
VESKPLATFORM_EXPORT QString archiveProblem(const Entry &entry);

} // namespace VeskFM
