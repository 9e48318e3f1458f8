// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// One member of an archive: a tar type ('0' file, '1' hard link, '2' link, '5' directory, …), and the content or target.
struct TestMember
{
    QByteArray name;
    QByteArray content;
    char type = '0';
};

/// Packs members, of the types '0', '2' and '5', with the framework's own class, as the name's suffix says.
void packArchive(const QString &path, const QVector<TestMember> &members);

/// A tar archive as no archiver would write it.
/// @param declaredSize bytes that its last header claims; negative for the truth
QByteArray tarOf(const QVector<TestMember> &members, qint64 declaredSize = -1);
