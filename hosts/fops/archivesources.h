// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "progress.h"
#include "result.h"

#include <veskplatform/archivemount.h>

#include <map>
#include <memory>

/// The originals of an operation, some of which may lie in archives: these are extracted with the first of them.
///
/// Thread: the worker of the operation, from its beginning to its end.
class ArchiveSources
{
public:
    explicit ArchiveSources(Progress *progress); ///< borrows @p progress

    /// The entry of a path; null where there is nothing. Cancelling the operation ends the search in an archive, too.
    VeskFM::Entry find(const QString &path) const;
    /// The path of the disk where the content of @p entry is, as a VFS path.
    Result locate(const VeskFM::Entry &entry, QString *path);

private:
    Progress *const m_progress;
    std::map<QString, std::unique_ptr<VeskFM::ArchiveMount>> m_mounts; // by archive
};

/// Whether the path leads into an archive, where nothing can be made or changed.
bool leadsIntoArchive(const QByteArray &path);
