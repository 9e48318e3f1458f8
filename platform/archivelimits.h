// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>

namespace VeskFM
{

/// How much of an archive we are ready to take. What is beyond is refused as a whole: half an archive would pass for all
/// of it.
struct ArchiveLimits
{
    qint64 entries = 1000000;               ///< more than that no view shows and no tree in memory should hold
    qint64 depth = 200;                     ///< of directories; each takes a descriptor while a tree is removed
    qint64 pathBytes = 3072;                ///< leaves room below PATH_MAX for the directory of the mount
    qint64 textBytes = 128LL * 1024 * 1024; ///< all names and targets of links together: they are kept in memory
    qint64 unpackedBytes = 16LL * 1024 * 1024 * 1024; ///< of contents: what somebody may be ready to wait for
    qint64 memoryBytes =
        2LL * 1024 * 1024 * 1024; ///< address space of the reader: how far an archive makes it look back

    /// For vesk-archive: "--entries=1000000" and so on.
    QStringList toArguments() const;
    /// Takes one of them; false for anything else.
    bool take(const QString &argument);
};

} // namespace VeskFM
