// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

namespace VeskFM
{

/// Why an archive could not be listed or extracted. The values are the exit status of vesk-archive, too.
enum class ArchiveError {
    None = 0,
    Misuse = 1,     ///< vesk-archive was called in a wrong way
    Unreadable = 2, ///< the file could not be opened or read
    Damaged = 3,    ///< also: is no archive at all
    Encrypted = 4,
    Unsupported = 5, ///< is sound, and packed in a way that we cannot unpack
    TooManyEntries = 6,
    TooDeep = 7,
    NameTooLong = 8,
    TooLarge = 9, ///< more content than the limit
    NoSpace = 10, ///< the disk is full, or would be
    CannotWrite = 11,
    Failed = 12,   ///< the reader died: of a damaged archive, of one that needs too much memory
    Changed = 13,  ///< another file has its name by now
    NoReader = 14, ///< vesk-archive cannot be started
    Cancelled = 15
};

} // namespace VeskFM
