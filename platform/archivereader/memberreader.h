// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "../archivelimits.h"
#include "archivehandle.h"
#include "archivemember.h"
#include "filesource.h"
#include "unpackedstream.h"

#include <memory>

struct archive_entry;

namespace VeskFM
{

/// Reads the members of a zip, 7z or tar archive, of the kind that its content tells, from the first to the last. A tar
/// archive may be compressed.
///
/// To list is not to unpack, except for a compressed tar and for the links in a 7z archive.
class MemberReader
{
public:
    /// @param descriptor borrowed; a regular file, of @p size bytes
    MemberReader(int descriptor, qint64 size, const ArchiveLimits &limits);

    /// The next member. False at the end, and after an error.
    bool next(ArchiveMember *member);
    /// The next piece of the latest member, a file. Between pieces and at the end there may be holes, of zeros. False at the
    /// end, and then all of it was there and sound; and after an error.
    bool read(ArchiveBlock *block);
    bool rewind(); ///< back to before the first member
    ArchiveError error() const { return m_error; }

private:
    bool openTar();
    bool openOther();
    archive *renewHandle();
    bool fail(ArchiveError error);
    bool failOfHandle();
    bool finish();

    const int m_descriptor;
    const qint64 m_size;
    const ArchiveLimits m_limits;
    FileSource m_file;
    std::unique_ptr<UnpackedStream> m_stream; // null when the file is not compressed
    ArchiveHandle m_archive;                  // reads one of the two above
    qint64 m_toldBytes = 0;                   // the sizes of all members so far
    qint64 m_memberBytes = 0;
    qint64 m_readBytes = 0; // of the member, with the holes
    bool m_isSparse = false;
    ArchiveError m_error = ArchiveError::None;
};

} // namespace VeskFM
