// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "bytesource.h"
#include "memberreader.h"
#include "tarheader.h"

#include <memory>

namespace VeskFM
{

/// Reads tar archives. The framework's own class tells no device from an empty file and no hard link from a symbolic one,
/// and passes over pax headers: long names would be cut, and files that differ only after that would be one.
class TarReader : public MemberReader
{
public:
    explicit TarReader(std::unique_ptr<ByteSource> source);

    bool next(ArchiveMember *member) override;
    qint64 read(char *data, qint64 size) override;
    bool rewind() override;

private:
    /// What headers before that of a member say of it.
    struct Extension
    {
        QMap<QByteArray, QByteArray> records;
        QByteArray name; // null when there is none
        QByteArray link;
    };
    bool failOfSource();
    bool readHeader();
    bool skipSparseMap();
    bool skipContent();
    bool readExtension(Extension *extension);
    bool readText(QByteArray *text);
    bool fillMember(const Extension &extension, ArchiveMember *member);

    const std::unique_ptr<ByteSource> m_source;
    TarHeader m_header;
    QMap<QByteArray, QByteArray> m_globalRecords;
    qint64 m_left = 0;    // of the content
    qint64 m_padding = 0; // after it
    bool m_isSparse = false;
    bool m_hadMember = false;
};

} // namespace VeskFM
