// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "../archivelimits.h"
#include "memberreader.h"

#include <memory>

namespace VeskFM
{

/// A reader for the archive, of the kind that its first bytes tell, whatever its name says.
/// @param descriptor borrowed; a regular file, of @p size bytes
std::unique_ptr<MemberReader> openArchive(int descriptor, qint64 size, const ArchiveLimits &limits);

} // namespace VeskFM
