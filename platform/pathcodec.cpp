// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pathcodec.h"

#include <QFile>
#include <QTextCodec>

#include <algorithm>

namespace VeskFM
{

namespace
{
constexpr uint firstEscape = 0x10FF80; // stands for the byte 0x80
constexpr uint lastEscape = 0x10FFFF;
constexpr uint escapeBase = firstEscape - 0x80;
constexpr int utf8Mib = 106;

/// Length of the valid UTF-8 sequence at @p bytes, 0 if there is none; its code point in @p codePoint.
int sequenceLength(const uchar *bytes, const uchar *end, uint *codePoint)
{
    const uchar lead = bytes[0];
    int length = 0;
    uint value = 0;
    uint smallest = 0; // shorter forms of the same code point are not valid
    if (lead < 0x80) {
        *codePoint = lead;
        return 1;
    } else if ((lead & 0xE0) == 0xC0) {
        length = 2;
        value = lead & 0x1F;
        smallest = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3;
        value = lead & 0x0F;
        smallest = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4;
        value = lead & 0x07;
        smallest = 0x10000;
    } else {
        return 0;
    }
    if (end - bytes < length)
        return 0;
    for (int i = 1; i < length; ++i) {
        if ((bytes[i] & 0xC0) != 0x80)
            return 0;
        value = (value << 6) | (bytes[i] & 0x3F);
    }
    if (value < smallest || value > 0x10FFFF || QChar::isSurrogate(value))
        return 0;
    *codePoint = value;
    return length;
}

QChar *appendCodePoint(QChar *units, uint codePoint)
{
    if (!QChar::requiresSurrogates(codePoint)) {
        *units++ = QChar(ushort(codePoint));
        return units;
    }
    *units++ = QChar(QChar::highSurrogate(codePoint));
    *units++ = QChar(QChar::lowSurrogate(codePoint));
    return units;
}

void appendUtf8(QByteArray *bytes, uint codePoint)
{
    if (codePoint < 0x80) {
        bytes->append(char(codePoint));
    } else if (codePoint < 0x800) {
        bytes->append(char(0xC0 | (codePoint >> 6)));
        bytes->append(char(0x80 | (codePoint & 0x3F)));
    } else if (codePoint < 0x10000) {
        bytes->append(char(0xE0 | (codePoint >> 12)));
        bytes->append(char(0x80 | ((codePoint >> 6) & 0x3F)));
        bytes->append(char(0x80 | (codePoint & 0x3F)));
    } else {
        bytes->append(char(0xF0 | (codePoint >> 18)));
        bytes->append(char(0x80 | ((codePoint >> 12) & 0x3F)));
        bytes->append(char(0x80 | ((codePoint >> 6) & 0x3F)));
        bytes->append(char(0x80 | (codePoint & 0x3F)));
    }
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

bool isAscii(const char *bytes, int size)
{
    uchar bits = 0; // of all together: a loop without an exit runs on many bytes at a time
    for (int i = 0; i < size; ++i)
        bits |= uchar(bytes[i]);
    return bits < 0x80;
}

bool holdsEscapes(const QString &text)
{
    // The high surrogate of all escapes; it leads private-use code points only, which are too rare to be looked at.
    static const QChar lead(QChar::highSurrogate(firstEscape));
    for (int i = text.indexOf(lead); i >= 0; i = text.indexOf(lead, i + 1)) {
        if (i + 1 < text.size() && text.at(i + 1).unicode() >= QChar::lowSurrogate(firstEscape))
            return true;
    }
    return false;
}

bool localCodecIsUtf8()
{
    const QTextCodec *codec = QTextCodec::codecForLocale();
    return codec && codec->mibEnum() == utf8Mib;
}
} // namespace

int PathCodec::decode(const char *bytes, int size, QChar *units, bool *escaped)
{
    const uchar *in = reinterpret_cast<const uchar *>(bytes);
    const uchar *const end = in + size;
    QChar *out = units;
    while (in < end) {
        if (*in < 0x80) {
            *out++ = QChar(ushort(*in++));
            continue;
        }
        uint codePoint = 0;
        int length = sequenceLength(in, end, &codePoint);
        if (length > 0 && (codePoint < firstEscape || codePoint > lastEscape)) {
            out = appendCodePoint(out, codePoint);
            in += length;
            continue;
        }
        *escaped = true;
        for (length = qMax(length, 1); length > 0; --length)
            out = appendCodePoint(out, escapeBase + *in++);
    }
    return int(out - units);
}

QString PathCodec::decode(const char *bytes, int size)
{
    if (isAscii(bytes, size)) // as most names are
        return QString::fromLatin1(bytes, size);
    QString text(size * unitsPerByte, Qt::Uninitialized);
    bool escaped = false;
    text.resize(decode(bytes, size, text.data(), &escaped));
    return text;
}

QByteArray PathCodec::encode(const QString &path)
{
    QByteArray bytes;
    bytes.reserve(path.size() + 16);
    for (int i = 0; i < path.size(); ++i) {
        uint codePoint = path.at(i).unicode();
        if (codePoint == 0)
            return {}; // the system would take what stands before it, another file
        if (QChar::isSurrogate(codePoint)) {
            if (!QChar::isHighSurrogate(codePoint) || i + 1 == path.size() || !path.at(i + 1).isLowSurrogate())
                return {};
            codePoint = QChar::surrogateToUcs4(ushort(codePoint), path.at(++i).unicode());
        }
        if (codePoint >= firstEscape && codePoint <= lastEscape)
            bytes.append(char(codePoint - escapeBase));
        else
            appendUtf8(&bytes, codePoint);
    }
    return bytes;
}

bool PathCodec::isPortable(const QString &path)
{
    if (isAscii(path))
        return true;
    if (holdsEscapes(path))
        return false;
    // In another locale than UTF-8 the toolkit writes "?" for what the locale lacks, and that is another file.
    static const bool utf8 = localCodecIsUtf8();
    return utf8 || QFile::encodeName(path) == encode(path);
}

} // namespace VeskFM
