// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <string>

/// Book-keeping of the user's trash after the Trash specification 1.0 of freedesktop.org.
///
/// Of the trash directories of other mounts it knows the items, where they came from and when they were deleted; it
/// counts and fills only the user's own one.
///
/// Paths are in the local 8-bit encoding, results in UTF-8. A failure gives an empty text, false or 0.
///
/// Thread: any.
class VESKPLATFORM_EXPORT VeskTrash
{
public:
    /// Reserves a place for @p path in the trash and writes where it came from and when it was deleted. The caller then
    /// moves the file there. Returns the path in the trash.
    static std::string registerFile(const std::string &path);
    static bool unregisterFile(const std::string &path);              ///< forgets a path in the trash
    static std::string getFilePathToRestore(const std::string &path); ///< where a path in the trash came from
    static long long getDeletionDate(const std::string &path);        ///< seconds since the Unix epoch
    static bool isFileInTrash(const std::string &path);
    static bool isEmpty();
    static unsigned long long size(); ///< bytes
    static bool hasSizeCache();       ///< whether size() needs no walk over the trashed directories
    static void registerDirSize(const std::string &name, long long size); ///< name as in the trash directory; bytes
    static void unregisterDirSize(const std::string &name);
    static std::string getTopDirPath();
};
