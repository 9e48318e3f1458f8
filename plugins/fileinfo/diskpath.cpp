// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "diskpath.h"

#include <veskplatform/archivemount.h>
#include <veskplatform/entrylist.h>
#include <veskplatform/vfs.h>

#include <QFile>
#include <QUrl>

namespace VeskFM
{

QByteArray diskPath(const Entry &entry)
{
    if (entry.isNull() || ArchiveMount::isInArchive(entry))
        return {};
    const QString localPath = entry.localPath();
    if (!localPath.isEmpty())
        return QFile::encodeName(localPath);
    if (entry.isPlace())
        return {};
    // A name that is not valid UTF-8 has no local path; its URL spells the bytes.
    const QList<QUrl> urls = VFS::ptr()->urlsFromEntries(EntryList(entry));
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return {};
    const QByteArray path = QByteArray::fromPercentEncoding(urls.first().path(QUrl::FullyEncoded).toLatin1());
    return path.contains('\0') ? QByteArray() : path;
}

bool isOnDisk(const Entry &entry)
{
    return !ArchiveMount::isInArchive(entry) && (!entry.localPath().isEmpty() || !diskPath(entry).isEmpty());
}

} // namespace VeskFM
