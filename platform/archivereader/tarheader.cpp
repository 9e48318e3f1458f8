// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "tarheader.h"

#include <algorithm>
#include <cstring>

namespace VeskFM
{

namespace
{
constexpr int checksumOffset = 148;
constexpr int checksumSize = 8;
constexpr int prefixOffset = 345;
} // namespace

bool TarHeader::isZero() const
{
    return std::all_of(m_block, m_block + blockSize, [](char byte) { return byte == '\0'; });
}

bool TarHeader::hasValidChecksum() const
{
    qint64 stored = 0;
    if (!number(checksumOffset, checksumSize, &stored))
        return false;
    qint64 plain = 0;
    qint64 asSigned = 0; // some old archivers
    for (int i = 0; i < blockSize; ++i) {
        const bool isOwnField = i >= checksumOffset && i < checksumOffset + checksumSize;
        plain += isOwnField ? ' ' : uchar(m_block[i]);
        asSigned += isOwnField ? ' ' : qint8(m_block[i]);
    }
    return stored == plain || stored == asSigned;
}

QByteArray TarHeader::name() const
{
    const QByteArray own = text(0, 100);
    const bool hasPrefix = memcmp(m_block + 257, "ustar", 6) == 0; // with its NUL; others keep times there
    const QByteArray prefix = hasPrefix ? text(prefixOffset, 155) : QByteArray();
    return prefix.isEmpty() ? own : prefix + '/' + own;
}

QByteArray TarHeader::linkName() const
{
    return text(157, 100);
}

int TarHeader::mode() const
{
    qint64 mode = 0;
    return number(100, 8, &mode) ? int(mode & 07777) : 0;
}

bool TarHeader::size(qint64 *size) const
{
    return number(124, 12, size) && *size >= 0;
}

qint64 TarHeader::modifiedSec() const
{
    qint64 seconds = 0;
    return number(136, 12, &seconds) ? seconds : 0;
}

qint64 TarHeader::sparseSize() const
{
    qint64 size = 0;
    return number(483, 12, &size) && size >= 0 ? size : 0;
}

QByteArray TarHeader::text(int offset, int size) const
{
    return QByteArray(m_block + offset, int(strnlen(m_block + offset, size_t(size))));
}

/// Octal digits, or a binary number with the highest bit set before it.
bool TarHeader::number(int offset, int size, qint64 *value) const
{
    const auto *const field = reinterpret_cast<const uchar *>(m_block + offset);
    if (field[0] & 0x80) {
        quint64 binary = field[0] & 0x7F;
        for (int i = 1; i < size; ++i) {
            if (binary >> 55)
                return false; // negative, or more than any file has
            binary = (binary << 8) | field[i];
        }
        *value = qint64(binary);
        return true;
    }
    const QByteArray digits = text(offset, size).trimmed();
    bool isNumber = false;
    *value = digits.toLongLong(&isNumber, 8);
    return isNumber || digits.isEmpty();
}

bool TarHeader::parseRecords(const QByteArray &text, QMap<QByteArray, QByteArray> *records)
{
    for (int begin = 0; begin < text.size();) {
        if (text.at(begin) == '\0')
            return true; // padding
        const int space = text.indexOf(' ', begin);
        const int length = space < 0 ? 0 : text.mid(begin, space - begin).toInt();
        const int end = begin + length;
        const int equals = text.indexOf('=', space);
        if (length <= 0 || length > text.size() - begin || equals < 0 || equals >= end || text.at(end - 1) != '\n')
            return false;
        records->insert(text.mid(space + 1, equals - space - 1), text.mid(equals + 1, end - 1 - equals - 1));
        begin = end;
    }
    return true;
}

} // namespace VeskFM
