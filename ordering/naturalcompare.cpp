// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "naturalcompare.h"

#include <algorithm>

namespace VeskFM
{

namespace
{

bool isDigit(ushort unit)
{
    return ushort(unit - '0') < 10;
}

int sign(qsizetype difference)
{
    return difference < 0 ? -1 : difference > 0;
}

/// One run of digits without its leading zeros.
struct Number
{
    Number(const ushort *text, qsizetype position, qsizetype length)
    {
        while (position < length && text[position] == '0')
            ++position;
        begin = position;
        while (position < length && isDigit(text[position]))
            ++position;
        end = position;
    }
    qsizetype size() const { return end - begin; }

    qsizetype begin;
    qsizetype end;
};

int compareDigits(const ushort *a, const ushort *b, qsizetype count)
{
    for (qsizetype i = 0; i < count; ++i) {
        if (a[i] != b[i])
            return int(a[i]) - int(b[i]);
    }
    return 0;
}

/// Fills a prefix from its highest byte down.
class PrefixPacker
{
public:
    bool isFull() const { return m_room == 0; }
    void put(uint byte)
    {
        if (isFull())
            return;
        --m_room;
        quint64 &half = m_room >= halfSize ? m_prefix.high : m_prefix.low;
        half |= quint64(byte) << (8 * (m_room & (halfSize - 1)));
    }
    void close() { m_room = 0; }
    KeyPrefix prefix() const { return m_prefix; }

private:
    static constexpr uint halfSize = sizeof(quint64);

    KeyPrefix m_prefix;
    uint m_room = sizeof(KeyPrefix);
};

/// In one to three bytes, whose order is that of the units.
void putUnit(PrefixPacker &packer, uint unit)
{
    if (unit < 0x80)
        return packer.put(unit);
    if (unit < 0x800) {
        packer.put(0xc0 | unit >> 6);
    } else {
        packer.put(0xe0 | unit >> 12);
        packer.put(0x80 | (unit >> 6 & 0x3f));
    }
    packer.put(0x80 | (unit & 0x3f));
}

/// The number of digits, then two digits a byte: of two numbers the longer is the greater.
void putNumber(PrefixPacker &packer, const ushort *text, const Number &number)
{
    constexpr qsizetype manyDigits = 9; // as many as stand, as a digit, where numbers do among other characters
    constexpr qsizetype tooManyDigits = manyDigits + 0xff;
    packer.put('0' + uint(std::min(number.size(), manyDigits)));
    if (number.size() >= manyDigits)
        packer.put(uint(std::min(number.size(), tooManyDigits) - manyDigits));
    if (number.size() >= tooManyDigits)
        packer.close(); // nothing behind it can be told apart
    for (qsizetype i = number.begin; i < number.end && !packer.isFull(); i += 2) {
        const uint high = text[i] & 0xf;
        const uint low = i + 1 < number.end ? text[i + 1] & 0xf : 0;
        packer.put(high << 4 | low);
    }
}

} // namespace

int naturalCompare(QStringView a, QStringView b)
{
    const ushort *const textA = reinterpret_cast<const ushort *>(a.utf16());
    const ushort *const textB = reinterpret_cast<const ushort *>(b.utf16());
    const qsizetype sizeA = a.size();
    const qsizetype sizeB = b.size();
    const qsizetype shorter = std::min(sizeA, sizeB);

    qsizetype differing = 0;
    while (differing < shorter && textA[differing] == textB[differing])
        ++differing;
    if (differing == shorter && sizeA == sizeB)
        return 0;
    const int plain = differing == shorter ? sign(sizeA - sizeB) : int(textA[differing]) - int(textB[differing]);

    qsizetype i = differing; // a number that the difference lies in, or ends at, is compared from its first digit
    while (i > 0 && isDigit(textA[i - 1]))
        --i;
    qsizetype j = i;
    while (i < sizeA && j < sizeB) {
        if (!isDigit(textA[i]) || !isDigit(textB[j])) {
            if (textA[i] != textB[j])
                return int(textA[i]) - int(textB[j]);
            ++i;
            ++j;
            continue;
        }
        const Number numberA(textA, i, sizeA);
        const Number numberB(textB, j, sizeB);
        if (numberA.size() != numberB.size())
            return sign(numberA.size() - numberB.size());
        if (const int order = compareDigits(textA + numberA.begin, textB + numberB.begin, numberA.size()))
            return order;
        i = numberA.end;
        j = numberB.end;
    }
    if (i < sizeA || j < sizeB)
        return j < sizeB ? -1 : 1;
    return plain;
}

KeyPrefix naturalPrefix(QStringView text, qsizetype skip)
{
    const ushort *const units = reinterpret_cast<const ushort *>(text.utf16());
    PrefixPacker packer;
    qsizetype i = skip;
    while (i < text.size() && !packer.isFull()) {
        if (isDigit(units[i])) {
            const Number number(units, i, text.size());
            putNumber(packer, units, number);
            i = number.end;
        } else {
            putUnit(packer, units[i++]);
        }
    }
    return packer.prefix();
}

KeyPrefix codeUnitPrefix(QStringView text, qsizetype skip)
{
    const ushort *const units = reinterpret_cast<const ushort *>(text.utf16());
    PrefixPacker packer;
    for (qsizetype i = skip; i < text.size() && !packer.isFull(); ++i)
        putUnit(packer, units[i]);
    return packer.prefix();
}

qsizetype commonPrefixLength(QStringView text, QStringView other, qsizetype length)
{
    const qsizetype limit = std::min({length, text.size(), other.size()});
    qsizetype common = 0;
    while (common < limit && text[common] == other[common])
        ++common;
    while (common > 0 && isDigit(text[common - 1].unicode()))
        --common;
    return common;
}

} // namespace VeskFM
