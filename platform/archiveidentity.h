// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

#include <sys/stat.h>

namespace VeskFM
{

/// Which file an archive is, in which state.
struct ArchiveIdentity
{
    quint64 device = 0;
    quint64 node = 0;
    qint64 size = 0;
    qint64 modifiedSec = 0;
    qint64 modifiedNsec = 0;

    static ArchiveIdentity of(const struct stat &facts)
    {
        return {facts.st_dev, facts.st_ino, facts.st_size, facts.st_mtim.tv_sec, facts.st_mtim.tv_nsec};
    }
    bool operator==(const ArchiveIdentity &other) const
    {
        return device == other.device && node == other.node && size == other.size && modifiedSec == other.modifiedSec
            && modifiedNsec == other.modifiedNsec;
    }
    bool operator!=(const ArchiveIdentity &other) const { return !(*this == other); }
};

} // namespace VeskFM
