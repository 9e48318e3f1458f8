// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archiveidentity.h"

#include <QString>

namespace VeskFM
{

/// An archive, opened to be given to a reader. Opening never waits, for a pipe or a device.
class ArchiveFile
{
public:
    explicit ArchiveFile(const QString &path); ///< a VFS path
    ~ArchiveFile();
    Q_DISABLE_COPY_MOVE(ArchiveFile)

    int error() const { return m_error; } ///< errno; 0 when it is open, and a regular file
    int descriptor() const { return m_descriptor; }
    ArchiveIdentity identity() const { return m_identity; }

    /// Of the file that a path leads to now. Returns errno, also for what is no regular file.
    static int identify(const QString &path, ArchiveIdentity *identity);
    /// The archive, by its name and kind, that @p path leads through without being it; empty where there is none.
    static QString around(const QString &path);

private:
    int m_descriptor = -1;
    int m_error = 0;
    ArchiveIdentity m_identity;
};

} // namespace VeskFM
