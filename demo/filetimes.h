// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QDateTime>

/// When something happened to a file, as far as the file system knows; invalid where it does not.
struct FileTimes
{
    QDateTime created;
    QDateTime modified;
    QDateTime accessed;

    /// Looks at the disk, and so may block; a symbolic link counts for itself. Thread: any.
    static FileTimes of(const VeskFM::Entry &entry);
};
