// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/vfs.h>

namespace VeskFM
{

/// What came of a listing.
struct DirectoryListing
{
    EntryList entries;
    int error = 0; ///< errno when the directory could not be opened
};

/// Lists the directory @p path on the calling thread; a large one also on other threads. Blocks.
///
/// Order: backwards to that of ListingRow. A model puts each delivered row before those already there, so it gets its
/// default order without moving any. It is a service to models, no promise: nothing may rely on it.
///
/// What disappears meanwhile is left out; so is everything from the moment on when the directory itself does.
/// @param cancel may be null; when it is not zero, what was found so far comes back soon
DirectoryListing listDirectory(const QString &path, VFS::EntryChildFilters filters, const QAtomicInt *cancel);

/// Whether there is a directory or an archive (or a link to one) in the directory @p path. Stops at the first one.
bool hasContainer(const QString &path);

} // namespace VeskFM
