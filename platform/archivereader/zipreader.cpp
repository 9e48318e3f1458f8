// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "zipreader.h"

#include "inflatingsource.h"
#include "unpackingsource.h"

#include <QDateTime>
#include <QtEndian>

#include <sys/stat.h>

#include <algorithm>
#include <climits>
#include <limits>

#include <zlib.h>

namespace VeskFM
{

namespace
{
constexpr quint32 endSignature = 0x06054b50;
constexpr quint32 end64Signature = 0x06064b50;
constexpr quint32 locator64Signature = 0x07064b50;
constexpr quint32 memberSignature = 0x02014b50;
constexpr quint32 localSignature = 0x04034b50;
constexpr int endSize = 22;
constexpr int end64Size = 56;
constexpr int locator64Size = 20;
constexpr int memberSize = 46;
constexpr int localSize = 30;
constexpr quint32 inExtra32 = 0xFFFFFFFF; // the value is in the Zip64 extra field
constexpr int madeOnDos = 0;
constexpr int madeOnUnix = 3;
constexpr quint16 encrypted = 0x0001;
constexpr quint16 encryptedDirectory = 0x2000;
constexpr quint16 zip64Extra = 0x0001;
constexpr quint16 unicodePathExtra = 0x7075;

constexpr quint16 timesExtra = 0x5455;

quint16 u16(const char *data)
{
    return qFromLittleEndian<quint16>(data);
}
quint32 u32(const char *data)
{
    return qFromLittleEndian<quint32>(data);
}
quint64 u64(const char *data)
{
    return qFromLittleEndian<quint64>(data);
}

/// The content of an extra field; null when there is none of this kind.
QByteArray extraField(const QByteArray &extra, quint16 kind)
{
    for (int at = 0; at + 4 <= extra.size();) {
        const int size = u16(extra.constData() + at + 2);
        if (u16(extra.constData() + at) == kind)
            return extra.mid(at + 4, size);
        at += 4 + size;
    }
    return {};
}

/// Of a DOS time stamp, in whatever time zone it was written, or of what other archivers add in UTC.
qint64 modifiedMs(quint16 time, quint16 date, const QByteArray &extra)
{
    const QByteArray times = extraField(extra, timesExtra);
    constexpr int timesSize = 5;
    if (times.size() >= timesSize && times.at(0) & 1)
        return qint64(qint32(u32(times.constData() + 1))) * 1000;
    const QDate day(1980 + (date >> 9), (date >> 5) & 0xF, date & 0x1F);
    const QTime clock(time >> 11, (time >> 5) & 0x3F, (time & 0x1F) * 2);
    return day.isValid() && clock.isValid() ? QDateTime(day, clock).toMSecsSinceEpoch() : 0;
}

std::unique_ptr<ByteSource> unpacker(int method, ByteSource *packed)
{
    const qint64 noLimit = std::numeric_limits<qint64>::max(); // the size is known, and checked
    switch (method) {
    case 8:
        return std::make_unique<InflatingSource>(packed, InflatingSource::BareDeflate, noLimit);
    case 12:
        return std::make_unique<UnpackingSource>(packed, KCompressionDevice::BZip2, noLimit);
    case 93:
        return std::make_unique<UnpackingSource>(packed, KCompressionDevice::Zstd, noLimit);
    case 95:
        return std::make_unique<UnpackingSource>(packed, KCompressionDevice::Xz, noLimit);
    default:
        return nullptr;
    }
}
} // namespace

ZipReader::ZipReader(int descriptor, qint64 size)
    : m_descriptor(descriptor)
    , m_size(size)
{
    if (!findDirectory())
        fail(ArchiveError::Damaged);
}

bool ZipReader::readAt(qint64 offset, char *data, qint64 size) const
{
    return offset >= 0 && offset <= m_size
        && FileSource(m_descriptor, offset, m_size - offset).readFully(data, size) == size;
}

/// It is told by the last record of the file, which a comment may follow.
bool ZipReader::findDirectory()
{
    const qint64 tailSize = std::min<qint64>(m_size, endSize + 0xFFFF);
    QByteArray tail(int(tailSize), Qt::Uninitialized);
    if (!readAt(m_size - tailSize, tail.data(), tailSize))
        return false;
    for (qint64 at = tailSize - endSize; at >= 0; --at) {
        const char *const record = tail.constData() + at;
        if (u32(record) != endSignature || at + endSize + u16(record + 20) > tailSize)
            continue;
        const qint64 position = m_size - tailSize + at;
        quint64 size = u32(record + 12);
        quint64 offset = u32(record + 16);
        qint64 end = position;
        if (findDirectory64(position, &size, &offset))
            end -= locator64Size + end64Size;
        if (size > quint64(end) || offset > quint64(end) - size)
            return false;
        m_shift = end - qint64(size + offset);
        m_directory = std::make_unique<FileSource>(m_descriptor, end - qint64(size), qint64(size));
        return true;
    }
    return false;
}

bool ZipReader::findDirectory64(qint64 endRecord, quint64 *size, quint64 *offset)
{
    char locator[locator64Size];
    char record[end64Size];
    if (!readAt(endRecord - locator64Size, locator, sizeof locator) || u32(locator) != locator64Signature
        || !readAt(endRecord - locator64Size - end64Size, record, sizeof record) || u32(record) != end64Signature)
        return false;
    *size = u64(record + 40);
    *offset = u64(record + 48);
    return true;
}

bool ZipReader::rewind()
{
    return error() == ArchiveError::None && m_directory->rewind();
}

bool ZipReader::next(ArchiveMember *member)
{
    m_isOpen = false;
    char header[memberSize];
    if (error() != ArchiveError::None)
        return false;
    const qint64 count = m_directory->readFully(header, memberSize);
    if (count == 0)
        return false;
    if (count != memberSize || u32(header) != memberSignature)
        return fail(ArchiveError::Damaged);
    QByteArray name(u16(header + 28), Qt::Uninitialized);
    QByteArray extra(u16(header + 30), Qt::Uninitialized);
    if (m_directory->readFully(name.data(), name.size()) != name.size()
        || m_directory->readFully(extra.data(), extra.size()) != extra.size() || !m_directory->skip(u16(header + 32)))
        return fail(ArchiveError::Damaged);
    if (u16(header + 8) & (encrypted | encryptedDirectory))
        return fail(ArchiveError::Encrypted);
    m_content = {u32(header + 42), u32(header + 20), u32(header + 24), u32(header + 16), u16(header + 10)};
    if (!takeExtra(extra, &name))
        return fail(ArchiveError::Damaged);

    const int system = uchar(header[5]);
    const quint32 mode = system == madeOnUnix ? u32(header + 38) >> 16 : 0;
    if (system == madeOnDos && !name.contains('/'))
        name.replace('\\', '/'); // some archivers there write paths as the system has them
    *member = ArchiveMember();
    member->name = name;
    member->isExecutable = mode & 0111;
    member->modifiedMs = modifiedMs(u16(header + 12), u16(header + 14), extra);
    if (name.endsWith('/') || S_ISDIR(mode))
        member->kind = ArchiveMember::Dir;
    else if (S_ISLNK(mode))
        return takeLinkTarget(member);
    else if ((mode & S_IFMT) != 0 && !S_ISREG(mode))
        member->kind = ArchiveMember::Other;
    else
        member->size = m_content.size;
    return true;
}

/// Sizes that need more than 32 bits, and a name in UTF-8 beside one in an old character set.
bool ZipReader::takeExtra(const QByteArray &extra, QByteArray *name)
{
    const QByteArray large = extraField(extra, zip64Extra);
    int at = 0;
    for (qint64 *value : {&m_content.size, &m_content.packedSize, &m_content.offset}) {
        if (*value != inExtra32 || at + 8 > large.size())
            continue;
        *value = qint64(u64(large.constData() + at));
        at += 8;
    }
    const QByteArray unicode = extraField(extra, unicodePathExtra);
    constexpr int unicodeHeader = 5;
    if (unicode.size() > unicodeHeader && unicode.at(0) == 1
        && u32(unicode.constData() + 1)
            == crc32(0, reinterpret_cast<const Bytef *>(name->constData()), uInt(name->size())))
        *name = unicode.mid(unicodeHeader);
    m_content.offset += m_shift;
    return m_content.size >= 0 && m_content.packedSize >= 0 && m_content.offset >= 0;
}

/// The content is the target.
bool ZipReader::takeLinkTarget(ArchiveMember *member)
{
    member->kind = ArchiveMember::SymLink;
    if (m_content.size >= PATH_MAX)
        return fail(ArchiveError::NameTooLong);
    member->target.resize(int(m_content.size));
    for (qint64 done = 0;;) {
        const qint64 count = read(member->target.data() + done, m_content.size - done + 1);
        if (count <= 0)
            return count == 0;
        done += count;
    }
}

bool ZipReader::openContent()
{
    m_isOpen = true;
    m_done = 0;
    m_checksum = quint32(crc32(0, nullptr, 0));
    char header[localSize];
    if (!readAt(m_content.offset, header, localSize) || u32(header) != localSignature)
        return fail(ArchiveError::Damaged);
    const qint64 begin = m_content.offset + localSize + u16(header + 26) + u16(header + 28);
    if (begin > m_size || m_content.packedSize > m_size - begin)
        return fail(ArchiveError::Damaged);
    m_packed = std::make_unique<FileSource>(m_descriptor, begin, m_content.packedSize);
    m_unpacked = unpacker(m_content.method, m_packed.get());
    return m_unpacked || m_content.method == 0 || fail(ArchiveError::Unsupported);
}

qint64 ZipReader::read(char *data, qint64 size)
{
    if (error() != ArchiveError::None || (!m_isOpen && !openContent()))
        return -1;
    ByteSource *const source = m_unpacked ? m_unpacked.get() : m_packed.get();
    const qint64 left = m_content.size - m_done;
    const qint64 count = left == 0 ? 0 : source->read(data, std::min(size, left));
    if (count < 0 || (count == 0 && (left > 0 || m_checksum != m_content.checksum))) {
        fail(ArchiveError::Damaged);
        return -1;
    }
    m_checksum = quint32(crc32(m_checksum, reinterpret_cast<const Bytef *>(data), uInt(count)));
    m_done += count;
    return count;
}

} // namespace VeskFM
