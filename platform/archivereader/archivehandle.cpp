// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivehandle.h"

#include <cerrno>
#include <cstring>

namespace VeskFM
{

ArchiveError errorOf(archive *handle)
{
    const bool hasFormat =
        archive_format(handle) != 0; // the next question goes to the format, even where there is none
    if (hasFormat && archive_read_has_encrypted_entries(handle) > 0)
        return ArchiveError::Encrypted;
    if (archive_errno(handle) == ENOMEM)
        return ArchiveError::Failed;
    const char *const text = archive_error_string(handle);
    if (!text)
        return ArchiveError::Damaged;
    const bool isUnsupported = strstr(text, "nsupported") || strstr(text, "not supported") || strstr(text, "codec ID");
    return isUnsupported ? ArchiveError::Unsupported : ArchiveError::Damaged; // there is no code that tells these apart
}

} // namespace VeskFM
