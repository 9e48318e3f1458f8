// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sevenzipheader.h"

#include "unpackingsource.h"

#include <QByteArray>
#include <QtEndian>

#include <limits>

namespace VeskFM
{

namespace
{
constexpr int startSize = 32;
constexpr qint64 largestHeader = 64 * 1024 * 1024;
constexpr char packedHeader = 0x17;
const QByteArray aesCoder("\x24\x06\xf1\x07\x01", 5);  // four bytes of identifier, with properties
const QByteArray lzmaCoder("\x23\x03\x01\x01\x05", 5); // three bytes of identifier, then five of properties

/// A number of the format: the leading bits of the first byte tell how many bytes follow.
bool takeNumber(const QByteArray &text, int *at, quint64 *value)
{
    if (*at >= text.size())
        return false;
    const uchar first = uchar(text.at((*at)++));
    *value = 0;
    uchar mask = 0x80;
    for (int i = 0; i < 8; ++i, mask >>= 1) {
        if (!(first & mask)) {
            *value |= quint64(first & (mask - 1)) << (8 * i);
            return true;
        }
        if (*at >= text.size())
            return false;
        *value |= quint64(uchar(text.at((*at)++))) << (8 * i);
    }
    return true;
}

QByteArray readPart(int descriptor, qint64 offset, qint64 size)
{
    QByteArray part(int(size), Qt::Uninitialized);
    return FileSource(descriptor, offset, size).readFully(part.data(), size) == size ? part : QByteArray();
}

/// Unpacks a header that is packed with LZMA, as nearly all are; empty where it is anything else.
QByteArray unpackedHeader(int descriptor, qint64 size, const QByteArray &header)
{
    int at = 1;
    quint64 packPosition = 0;
    quint64 streams = 0;
    quint64 packSize = 0;
    const auto takeByte = [&](char byte) { return at < header.size() && header.at(at++) == byte; };
    if (!takeByte(0x06) || !takeNumber(header, &at, &packPosition) || !takeNumber(header, &at, &streams) || streams != 1
        || !takeByte(0x09) || !takeNumber(header, &at, &packSize))
        return {};
    const int coder = header.indexOf(lzmaCoder, at);
    if (coder < 0 || packPosition > quint64(size) || packSize > quint64(size) - packPosition - startSize)
        return {};
    at = coder + lzmaCoder.size();
    const QByteArray properties = header.mid(at, 5);
    at += 5;
    quint64 unpackSize = 0;
    if (!takeByte(0x0c) || !takeNumber(header, &at, &unpackSize) || unpackSize > quint64(largestHeader))
        return {};

    // The filter knows LZMA with the header of its old file format.
    class Joined : public ByteSource
    {
    public:
        Joined(const QByteArray &head, int fd, qint64 begin, qint64 count)
            : m_head(head)
            , m_rest(fd, begin, count)
        {
        }
        qint64 read(char *data, qint64 most) override
        {
            const qint64 count = qMin<qint64>(most, m_head.size());
            memcpy(data, m_head.constData(), size_t(count));
            m_head.remove(0, int(count));
            return count > 0 ? count : m_rest.read(data, most);
        }
        bool rewind() override { return false; }

    private:
        QByteArray m_head;
        FileSource m_rest;
    };
    QByteArray head = properties;
    head.resize(head.size() + int(sizeof(quint64)));
    qToLittleEndian<quint64>(unpackSize, head.data() + properties.size());
    Joined packed(head, descriptor, startSize + qint64(packPosition), qint64(packSize));
    UnpackingSource source(&packed, KCompressionDevice::Xz, largestHeader);
    QByteArray text(int(unpackSize), Qt::Uninitialized);
    text.resize(int(qMax<qint64>(source.readFully(text.data(), text.size()), 0)));
    return text;
}
} // namespace

bool isEncryptedSevenZip(int descriptor, qint64 size)
{
    const QByteArray start = readPart(descriptor, 0, startSize);
    if (start.isEmpty())
        return false;
    const auto offset = qFromLittleEndian<quint64>(start.constData() + 12);
    const auto headerSize = qFromLittleEndian<quint64>(start.constData() + 20);
    if (headerSize > quint64(largestHeader) || offset > quint64(size)
        || headerSize + startSize > quint64(size) - offset)
        return false;
    QByteArray header = readPart(descriptor, startSize + qint64(offset), qint64(headerSize));
    if (header.contains(aesCoder))
        return true;
    return header.startsWith(packedHeader) && unpackedHeader(descriptor, size, header).contains(aesCoder);
}

} // namespace VeskFM
