// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivesources.h"

#include "diskpath.h"

#include <veskplatform/vfs.h>

#include <sys/stat.h>

using namespace VeskFM;

namespace
{

/// The archive that a path names or leads into; null where there is none.
Entry archiveOnTheWay(QByteArray path)
{
    struct stat facts = {};
    while (path.size() > 1 && lstat(path.constData(), &facts) != 0)
        path.truncate(path.lastIndexOf('/'));
    const Entry nearest = path.isEmpty() ? Entry() : VFS::ptr()->entry(vfsPath(path));
    return nearest.isArchiveMountPoint() ? nearest : Entry();
}

} // namespace

ArchiveSources::ArchiveSources(Progress *progress)
    : m_progress(progress)
{
}

Entry ArchiveSources::find(const QString &path) const
{
    const Entry archive = archiveOnTheWay(diskBytes(path));
    if (!archive.isNull() && archive.path() != path) // afterwards it is known, and the entry found at once
        VFS::ptr()->childs(archive, VFS::PlainListing, m_progress->cancelFlag());
    return m_progress->isCancelled() ? Entry() : VFS::ptr()->entry(path);
}

Result ArchiveSources::locate(const Entry &entry, QString *path)
{
    *path = entry.path();
    if (!ArchiveMount::isInArchive(entry))
        return Result::Success;
    std::unique_ptr<ArchiveMount> &mount = m_mounts[ArchiveMount::archiveOf(entry).path()];
    if (!mount)
        mount = std::make_unique<ArchiveMount>();
    if (!mount->isMounted() && !mount->mount(entry, m_progress->cancelFlag()))
        return m_progress->isCancelled() ? Result::Cancelled : Result::Other;
    *path = mount->localEntry(entry).path();
    return path->isEmpty() ? Result::NotFound : Result::Success;
}

bool leadsIntoArchive(const QByteArray &path)
{
    return !archiveOnTheWay(path).isNull();
}
