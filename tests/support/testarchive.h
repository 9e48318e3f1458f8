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
};

/// Packs files, links and directories as the suffix of the name says; with ".store." in it without compression, with
/// ".sparse." with a hole for what is zero.
void packArchive(const QString &path, const QVector<TestMember> &members);

/// A tar archive as no archiver would write it.
/// @param size what its last header claims, in bytes; negative for the truth
QByteArray tarOf(const QVector<TestMember> &members, qint64 size = -1);
