// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "memberreader.h"

#include <K7Zip>
#include <QFile>
#include <QIODevice>

#include <memory>
#include <vector>

namespace VeskFM
{

/// Reads 7z archives through the framework's class, which unpacks all of them into memory when it opens them.
class SevenZipReader : public MemberReader
{
public:
    SevenZipReader(int descriptor, qint64 size, qint64 mostEntries); ///< borrows @p descriptor

    bool next(ArchiveMember *member) override;
    qint64 read(char *data, qint64 size) override;
    bool rewind() override;

private:
    struct Found
    {
        QByteArray path;
        const KArchiveEntry *entry;
    };
    bool collect(qint64 mostEntries);

    QFile m_file;
    K7Zip m_archive;
    std::vector<Found> m_found;
    size_t m_next = 0;
    std::unique_ptr<QIODevice> m_content;
    qint64 m_left = 0;
};

} // namespace VeskFM
