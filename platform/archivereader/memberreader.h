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
    QByteArray name;
    Kind kind = File;
    qint64 size = 0; ///< bytes
    bool isExecutable = false;
    qint64 modifiedMs = 0; ///< since 1970; 0 when it is not told
    QByteArray target;     ///< of a link: a path from its directory, of a hard link from the top of the archive
};

/// Reads the members of an archive from the first to the last, without going back.
class MemberReader
{
public:
    virtual ~MemberReader() = default;
    /// The next member. False at the end, and after an error.
    virtual bool next(ArchiveMember *member) = 0;
    /// Reads from the content of the latest member, a file. Returns the number of bytes; 0 at its end, and then all of it
    /// was there and sound; -1 after an error.
    virtual qint64 read(char *data, qint64 size) = 0;
    virtual bool rewind() = 0; ///< back to before the first member
    ArchiveError error() const { return m_error; }

protected:
    /// Returns false, for a short way out.
    bool fail(ArchiveError error)
    {
        if (m_error == ArchiveError::None)
            m_error = error;
        return false;
    }

private:
    ArchiveError m_error = ArchiveError::None;
};

} // namespace VeskFM
