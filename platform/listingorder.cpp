// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "listingorder.h"

#include "localentrydata.h"

namespace VeskFM
{

namespace
{
bool isDigit(QChar c)
{
    return c.unicode() >= '0' && c.unicode() <= '9';
}

/// Position of the first unit at or after @p from that is no digit, or @p from on no digit.
qsizetype digitsEnd(QStringView text, qsizetype from)
{
    while (from < text.size() && isDigit(text[from]))
        ++from;
    return from;
}

QStringView withoutLeadingZeros(QStringView digits)
{
    while (!digits.isEmpty() && digits.front() == QLatin1Char('0'))
        digits = digits.mid(1);
    return digits;
}

int compareUnits(QStringView a, QStringView b)
{
    const qsizetype common = qMin(a.size(), b.size());
    for (qsizetype i = 0; i < common; ++i) {
        if (a[i] != b[i])
            return a[i] < b[i] ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

quint64 groupOf(int kind)
{
    switch (kind) {
    case Entry::Dir:
    case Entry::DirLink:
        return 1;
    case Entry::Archive:
    case Entry::ArchiveLink:
        return 2;
    default:
        return 3;
    }
}

/// Fills 16 bytes from the most significant one; what does not fit is dropped.
class KeyWriter
{
public:
    void put(uint byte)
    {
        if (m_used < 8)
            m_high |= quint64(byte) << (56 - 8 * m_used);
        else if (m_used < 16)
            m_low |= quint64(byte) << (56 - 8 * (m_used - 8));
        ++m_used;
    }
    /// One unit in one to three bytes whose order is that of the units.
    void putUnit(uint unit)
    {
        if (unit < 0x80) {
            put(unit);
        } else if (unit < 0x800) {
            put(0xC0 | (unit >> 6));
            put(0x80 | (unit & 0x3F));
        } else {
            put(0xE0 | (unit >> 12));
            put(0x80 | ((unit >> 6) & 0x3F));
            put(0x80 | (unit & 0x3F));
        }
    }
    /// A number: the byte of a digit, so that it stands among other characters where digits do, then how long it is,
    /// then its digits.
    void putNumber(QStringView digits)
    {
        put('0');
        put(uint(qMin<qsizetype>(digits.size(), 255)));
        for (qsizetype i = 0; i < digits.size() && !isFull(); i += 2) {
            const uint second = i + 1 < digits.size() ? digits[i + 1].unicode() - '0' : 0;
            put(((digits[i].unicode() - '0') << 4) | second);
        }
    }
    bool isFull() const { return m_used >= 16; }
    quint64 high() const { return m_high; }
    quint64 low() const { return m_low; }

private:
    quint64 m_high = 0;
    quint64 m_low = 0;
    int m_used = 0;
};
} // namespace

int compareNaturally(QStringView a, QStringView b)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        if (isDigit(a[i]) && isDigit(b[j])) {
            const qsizetype endA = digitsEnd(a, i);
            const qsizetype endB = digitsEnd(b, j);
            const QStringView numberA = withoutLeadingZeros(a.mid(i, endA - i));
            const QStringView numberB = withoutLeadingZeros(b.mid(j, endB - j));
            if (numberA.size() != numberB.size())
                return numberA.size() < numberB.size() ? -1 : 1;
            if (const int order = compareUnits(numberA, numberB))
                return order;
            i = endA;
            j = endB;
        } else if (a[i] != b[j]) {
            return a[i] < b[j] ? -1 : 1;
        } else {
            ++i;
            ++j;
        }
    }
    if (i < a.size() || j < b.size())
        return i < a.size() ? 1 : -1;
    return compareUnits(a, b);
}

ListingRow::ListingRow(LocalEntryData *rowData)
    : data(rowData)
{
    const QStringView name = data->name();
    KeyWriter key;
    key.put(uint(groupOf(data->type())));
    for (qsizetype i = 0; i < name.size() && !key.isFull();) {
        if (isDigit(name[i])) {
            const qsizetype end = digitsEnd(name, i);
            key.putNumber(withoutLeadingZeros(name.mid(i, end - i)));
            i = end;
        } else {
            key.putUnit(name[i++].unicode());
        }
    }
    high = key.high();
    low = key.low();
}

bool operator<(const ListingRow &a, const ListingRow &b)
{
    if (a.high != b.high)
        return a.high < b.high;
    if (a.low != b.low)
        return a.low < b.low;
    return compareNaturally(a.data->name(), b.data->name()) < 0;
}

} // namespace VeskFM
