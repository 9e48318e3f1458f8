// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QMap>

namespace VeskFM
{

/// One header block of a tar archive, after POSIX.1 (ustar, pax) and with what the common archivers add.
class TarHeader
{
public:
    static constexpr qint64 blockSize = 512;

    const char *block() const { return m_block; }
    char *block() { return m_block; }

    bool isZero() const;
    bool hasValidChecksum() const;
    char type() const { return m_block[156]; }
    QByteArray name() const;
    QByteArray linkName() const;
    int mode() const;              ///< permission bits; 0 when the field is no number
    bool size(qint64 *size) const; ///< false for a field that is no size
    qint64 modifiedSec() const;    ///< 0 when the field is no number
    qint64 sparseSize() const;     ///< of a file of the type 'S', with its holes
    enum SparseMapPart { InHeader = 482, InMap = 504 };
    bool isSparseMapContinued(SparseMapPart part) const { return m_block[part] != '\0'; }

    /// The records of a pax header ("LENGTH KEYWORD=VALUE\n"). False when it is not made of such.
    static bool parseRecords(const QByteArray &text, QMap<QByteArray, QByteArray> *records);

private:
    QByteArray text(int offset, int size) const;
    bool number(int offset, int size, qint64 *value) const;

    char m_block[blockSize];
};

} // namespace VeskFM
