// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "bytesource.h"
#include "memberreader.h"

#include <memory>

namespace VeskFM
{

/// Reads Zip archives by their central directory. The framework's own class reads the local headers, and gives up archives
/// that were written as a stream, have more than 65535 members, or name one twice.
class ZipReader : public MemberReader
{
public:
    ZipReader(int descriptor, qint64 size); ///< borrows @p descriptor

    bool next(ArchiveMember *member) override;
    qint64 read(char *data, qint64 size) override;
    bool rewind() override;

private:
    struct Content
    {
        qint64 offset = 0; // of the local header
        qint64 packedSize = 0;
        qint64 size = 0;
        quint32 checksum = 0;
        int method = 0;
    };
    bool findDirectory();
    bool findDirectory64(qint64 endRecord, quint64 *size, quint64 *offset);
    bool takeExtra(const QByteArray &extra, QByteArray *name);
    bool takeLinkTarget(ArchiveMember *member);
    bool openContent();
    bool readAt(qint64 offset, char *data, qint64 size) const;

    const int m_descriptor;
    const qint64 m_size;
    qint64 m_shift = 0; // of all offsets, by what stands before the archive: a program that extracts it
    std::unique_ptr<FileSource> m_directory;
    Content m_content;
    std::unique_ptr<FileSource> m_packed;
    std::unique_ptr<ByteSource> m_unpacked; // null when nothing is packed
    bool m_isOpen = false;
    qint64 m_done = 0;
    quint32 m_checksum = 0;
};

} // namespace VeskFM
