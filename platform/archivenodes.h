// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archivenodedata.h"

#include <veskplatform/vfs.h>

namespace VeskFM
{

/// What the local VFS answers about archives and what lies in them. Thread: any.
namespace ArchiveNodes
{
/// What @p path, which leads through an archive, names there; null where there is nothing. Lists the archive if need be; on
/// the application's own thread it does not wait for that: then it gives an entry that passes for a directory.
Entry entry(const QString &path);
Entry parent(const ArchiveNodeData &node);
/// The children of an archive, or of a directory in one.
/// @param error set to errno when they cannot be listed
EntryList childs(const Entry &entry, VFS::EntryChildFilters filters, QAtomicInt *cancel, int *error);
bool hasDirs(const ArchiveNodeData &node);
/// The path of the archive that @p entry is or lies in; empty for any other entry.
QString archiveOf(const Entry &entry);
} // namespace ArchiveNodes

} // namespace VeskFM
