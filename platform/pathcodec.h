// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace VeskFM
{

/// Turns paths of the disk, which are bytes, into VFS paths and back, one to one.
///
/// Valid UTF-8 is decoded. Each byte that is part of none (0x80 to 0xFF) becomes one of the code points U+10FF80 to
/// U+10FFFF; a name that holds such a code point itself has its bytes written that way, too. So every name of the disk
/// has one text, and no two names share one.
///
/// Thread: any.
class PathCodec
{
public:
    /// The most UTF-16 units that decode() writes for one byte.
    static constexpr int unitsPerByte = 2;

    /// Writes the text of @p size bytes to @p units, which has room for unitsPerByte units a byte.
    /// @param escaped set to true when bytes had to be escaped, otherwise left alone
    /// Returns the number of units written.
    static int decode(const char *bytes, int size, QChar *units, bool *escaped);
    static QString decode(const char *bytes, int size);
    static QString decode(const QByteArray &bytes) { return decode(bytes.constData(), bytes.size()); }

    /// The bytes on the disk; null for a text that no name on the disk has (a NUL, half of a surrogate pair).
    static QByteArray encode(const QString &path);

    /// Whether the toolkit's file classes reach the same file under this text.
    static bool isPortable(const QString &path);
};

} // namespace VeskFM
