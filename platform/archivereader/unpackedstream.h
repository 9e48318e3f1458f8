// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "../archiveerror.h"

#include <QtGlobal>

#include <memory>

namespace VeskFM
{

/// The unpacked bytes of a file that is one compressed stream, or several that follow one another. Unpacked beside the
/// reader of the archive in it, which stops at the end of the archive: the checksum comes later.
class UnpackedStream
{
public:
    /// Null when the file is not compressed, and when @p error tells why it cannot be unpacked.
    /// @param descriptor borrowed; of @p size bytes
    /// @param limit      of unpacked bytes
    static std::unique_ptr<UnpackedStream> open(int descriptor, qint64 size, qint64 limit, ArchiveError *error);
    virtual ~UnpackedStream() = default;

    /// The next bytes, valid until the next call. Returns how many; 0 at the end, -1 on failure.
    qint64 read(const void **block);
    bool finish(); ///< reads what is left; false on failure
    qint64 unpackedBytes() const { return m_unpacked; }
    ArchiveError error() const { return m_error; }

private:
    virtual ArchiveError readNext(const void **block, qint64 *size) = 0; ///< a size of 0 is the end

    qint64 m_limit = 0;
    qint64 m_unpacked = 0;
    ArchiveError m_error = ArchiveError::None;
};

} // namespace VeskFM
