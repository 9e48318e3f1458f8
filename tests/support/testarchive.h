// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// A member by its tar type ('0' file, '1' hard link, '2' link, '5' directory, …), with its content or target.
struct TestMember
{
    QByteArray name;
    QByteArray content;
    char type = '0';
    qint64 claimedSize = 0; ///< bytes; where it is more than the truth, the member is the last
};

constexpr qint64 packedTime = 1000000000; ///< when all members were changed, in seconds since the Unix epoch

/// Packs members as the suffix tells; what is zero is a hole in a ".sparse.tar", and a ".store.7z" is not compressed.
void packArchive(const QString &path, const QVector<TestMember> &members);
