// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringView>

namespace VeskFM
{

/// The order of names in the C locale: runs of ASCII digits count by their value, everything else by code unit. Equal
/// by that (as "A01" and "A1"), the plain order of code units decides, so that different texts never tie.
///
/// The collator of the toolkit ignores its numeric mode in the C locale; hence this one.
/// Returns a negative, zero or positive number.
int naturalCompare(QStringView a, QStringView b);

/// The first part of a sort key as a number. Where those of two texts differ, the texts compare likewise; where they are
/// equal, only the whole texts tell.
struct KeyPrefix
{
    quint64 high = 0;
    quint64 low = 0;
};
inline bool operator==(const KeyPrefix &a, const KeyPrefix &b)
{
    return a.high == b.high && a.low == b.low;
}
inline bool operator<(const KeyPrefix &a, const KeyPrefix &b)
{
    return a.high != b.high ? a.high < b.high : a.low < b.low;
}

/// @param skip characters that all texts begin with, to be left out, see commonPrefixLength()
KeyPrefix naturalPrefix(QStringView text, qsizetype skip);
KeyPrefix codeUnitPrefix(QStringView text, qsizetype skip); ///< for the plain order of code units

/// How many leading characters of the @p length first ones @p text has in common with @p other; it never ends within
/// or right behind a run of digits.
qsizetype commonPrefixLength(QStringView text, QStringView other, qsizetype length);

} // namespace VeskFM
