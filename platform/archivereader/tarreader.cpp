// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "tarreader.h"

#include <algorithm>
#include <cstring>

namespace VeskFM
{

namespace
{
constexpr qint64 longestPadding = 1024 * 1024;   // of an archive with nothing in it
constexpr qint64 longestExtension = 1024 * 1024; // names are shorter, and nothing else in it is kept

constexpr double latestSec = 1e11; // in pax headers: the year 5138

qint64 paddingOf(qint64 size)
{
    return (TarHeader::blockSize - size % TarHeader::blockSize) % TarHeader::blockSize;
}

ArchiveMember::Kind kindOf(char type, const QByteArray &name)
{
    switch (type) {
    case '0':
    case '\0':
    case '7': // wants to be stored in one piece
    case 'S': // sparse
        return name.endsWith('/') ? ArchiveMember::Dir : ArchiveMember::File;
    case '1':
        return ArchiveMember::HardLink;
    case '2':
        return ArchiveMember::SymLink;
    case '5':
    case 'D': // its content is a list of names
        return ArchiveMember::Dir;
    case '3':
    case '4':
    case '6':
        return ArchiveMember::Other;
    default: // POSIX.1 has unknown types taken for files; the capital letters are free for anything
        return type >= 'A' && type <= 'Z' ? ArchiveMember::Other : ArchiveMember::File;
    }
}
} // namespace

TarReader::TarReader(std::unique_ptr<ByteSource> source)
    : m_source(std::move(source))
{
}

bool TarReader::failOfSource()
{
    return fail(m_source->isTooLarge() ? ArchiveError::TooLarge : ArchiveError::Damaged);
}

bool TarReader::rewind()
{
    m_globalRecords.clear();
    m_left = m_padding = 0;
    m_hadMember = false;
    return error() == ArchiveError::None && (m_source->rewind() || fail(ArchiveError::Unreadable));
}

bool TarReader::next(ArchiveMember *member)
{
    Extension extension;
    while (error() == ArchiveError::None && skipContent() && readHeader()) {
        switch (m_header.type()) {
        case 'x':
        case 'X':
        case 'g':
        case 'L':
        case 'K':
            if (!readExtension(&extension))
                return false;
            break;
        default:
            return fillMember(extension, member);
        }
    }
    return false;
}

bool TarReader::skipContent()
{
    const qint64 size = m_left + m_padding;
    m_left = m_padding = 0;
    return m_source->skip(size) || failOfSource();
}

/// False at the end of the archive, too.
bool TarReader::readHeader()
{
    const qint64 count = m_source->readFully(m_header.block(), TarHeader::blockSize);
    if (count == 0 && m_hadMember)
        return false; // the framework's own class, among others, writes no mark at the end
    if (count != TarHeader::blockSize)
        return failOfSource();
    if (m_header.isZero()) { // and hardly more: a large file of zeros is no archive
        const bool isNone = !m_hadMember && m_source->skip(longestPadding);
        return isNone || !m_source->finish() ? failOfSource() : false;
    }
    if (!m_header.hasValidChecksum() || !m_header.size(&m_left))
        return fail(ArchiveError::Damaged);
    m_padding = paddingOf(m_left);
    m_hadMember = true;
    return m_header.type() != 'S' || skipSparseMap();
}

/// What of the map of a sparse file finds no room in its header is in blocks of its own.
bool TarReader::skipSparseMap()
{
    TarHeader block;
    bool isContinued = m_header.isSparseMapContinued(TarHeader::InHeader);
    while (isContinued) {
        if (m_source->readFully(block.block(), TarHeader::blockSize) != TarHeader::blockSize)
            return failOfSource();
        isContinued = block.isSparseMapContinued(TarHeader::InMap);
    }
    return true;
}

bool TarReader::readText(QByteArray *text)
{
    if (m_left > longestExtension)
        return fail(ArchiveError::NameTooLong);
    text->resize(int(m_left));
    if (m_source->readFully(text->data(), m_left) != m_left)
        return failOfSource();
    m_left = 0;
    return true;
}

bool TarReader::readExtension(Extension *extension)
{
    QByteArray text;
    if (!readText(&text))
        return false;
    const auto upToNul = [&text] { return text.left(int(qstrnlen(text.constData(), uint(text.size())))); };
    switch (m_header.type()) {
    case 'L':
        extension->name = upToNul();
        return true;
    case 'K':
        extension->link = upToNul();
        return true;
    case 'g':
        return TarHeader::parseRecords(text, &m_globalRecords) || fail(ArchiveError::Damaged);
    default:
        return TarHeader::parseRecords(text, &extension->records) || fail(ArchiveError::Damaged);
    }
}

bool TarReader::fillMember(const Extension &extension, ArchiveMember *member)
{
    QMap<QByteArray, QByteArray> records = m_globalRecords;
    for (auto record = extension.records.begin(); record != extension.records.end(); ++record)
        records.insert(record.key(), record.value());

    member->name = extension.name.isNull() ? m_header.name() : extension.name;
    member->name = records.value("path", member->name);
    member->target = extension.link.isNull() ? m_header.linkName() : extension.link;
    member->target = records.value("linkpath", member->target);
    member->kind = kindOf(m_header.type(), member->name);
    member->isExecutable = m_header.mode() & 0111;
    member->modifiedMs = m_header.modifiedSec() * 1000;
    if (records.contains("mtime"))
        member->modifiedMs = qint64(qBound(0.0, records.value("mtime").toDouble(), latestSec) * 1000);
    if (records.contains("size")) {
        bool isNumber = false;
        m_left = records.value("size").toLongLong(&isNumber);
        if (!isNumber || m_left < 0)
            return fail(ArchiveError::Damaged);
        m_padding = paddingOf(m_left);
    }
    if (member->kind == ArchiveMember::SymLink || member->kind == ArchiveMember::HardLink)
        m_left = m_padding = 0; // some archivers tell the size of what the link leads to
    member->size = member->kind == ArchiveMember::File ? m_left : 0;
    m_isSparse = m_header.type() == 'S' || records.contains("GNU.sparse.major") || records.contains("GNU.sparse.map");
    if (m_isSparse) {
        member->name = records.value("GNU.sparse.name", member->name);
        member->size =
            m_header.type() == 'S' ? m_header.sparseSize() : records.value("GNU.sparse.realsize").toLongLong();
    }
    return true;
}

qint64 TarReader::read(char *data, qint64 size)
{
    if (error() != ArchiveError::None)
        return -1;
    if (m_isSparse) {
        fail(ArchiveError::Unsupported);
        return -1;
    }
    if (m_left == 0)
        return 0;
    const qint64 count = m_source->read(data, std::min(size, m_left));
    if (count <= 0) {
        failOfSource();
        return -1;
    }
    m_left -= count;
    return count;
}

} // namespace VeskFM
