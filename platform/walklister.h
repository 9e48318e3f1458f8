// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "directorylister.h"

namespace VeskFM
{

/// Lists the directory @p path on the calling thread, for a walk that meets many and asks few of them anything: in the
/// order of the disk, and only what the directory itself tells. The entries look at the disk when they are asked more.
/// Blocks.
///
/// What disappears meanwhile may be in it; such an entry does not exist when it is asked.
/// @param archivesAsFiles gives archives the kind of files
/// @param cancel may be null; when it is not zero, what was found so far comes back soon
DirectoryListing listForWalk(const QString &path, bool archivesAsFiles, const QAtomicInt *cancel);

} // namespace VeskFM
