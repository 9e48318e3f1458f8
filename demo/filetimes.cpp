// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filetimes.h"

#include <veskplatform/entrylist.h>
#include <veskplatform/vfs.h>

#include <fcntl.h>
#include <sys/stat.h>

using namespace VeskFM;

namespace
{

QDateTime timeOf(const struct statx &facts, unsigned int field, const struct statx_timestamp &time)
{
    // Some file systems have a field for the creation and leave it empty.
    return facts.stx_mask & field && time.tv_sec != 0 ? QDateTime::fromSecsSinceEpoch(time.tv_sec) : QDateTime();
}

} // namespace

FileTimes FileTimes::of(const Entry &entry)
{
    FileTimes times;
    // The URL spells the bytes of a name that is no valid text.
    const QUrl url = VFS::ptr()->urlsFromEntries(EntryList(entry)).value(0);
    if (!url.isLocalFile())
        return times;
    const QByteArray path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    struct statx facts = {};
    if (statx(AT_FDCWD, path.constData(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME, &facts) != 0)
        return times;
    times.created = timeOf(facts, STATX_BTIME, facts.stx_btime);
    times.modified = timeOf(facts, STATX_MTIME, facts.stx_mtime);
    times.accessed = timeOf(facts, STATX_ATIME, facts.stx_atime);
    return times;
}
