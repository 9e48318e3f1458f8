// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "../archiveerror.h"

#include <QByteArray>

namespace VeskFM
{

/// One member of an archive, as the archive has it: nothing in it can be trusted.
struct ArchiveMember
{
    enum Kind {
        File,
        Dir,
        SymLink,
        HardLink, ///< another name of an earlier member
        Other     ///< a device, a pipe
    };
    QByteArray name; ///< bytes; composed UTF-8 (NFC) where a zip or 7z archive tells that it has Unicode
    Kind kind = File;
    qint64 size = 0; ///< bytes, with holes
    bool isExecutable = false;
    qint64 modifiedMs = 0; ///< since 1970; 0 when it is not told
    QByteArray target;     ///< of a link: a path from its directory, of a hard link from the top of the archive
};

/// A piece of the content of a member.
struct ArchiveBlock
{
    const char *data = nullptr; ///< borrowed from the reader, until it is asked for more
    qint64 size = 0;
    qint64 offset = 0;
};

} // namespace VeskFM
