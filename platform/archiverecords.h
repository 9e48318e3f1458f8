// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QDataStream>

namespace VeskFM
{

/// What vesk-archive writes to its standard output: a magic number, then records, each after its tag, in the order in
/// which a walk by levels meets the nodes. The last one is an End; without it the program died.
namespace ArchiveRecords
{
constexpr quint32 magic = 0x76617231;
constexpr QDataStream::Version streamVersion = QDataStream::Qt_5_15;
enum Tag : quint8 { Node = 1, Progress = 2, End = 3 };
} // namespace ArchiveRecords

/// One node of an archive. The root has the index 0 and no record; the first record has the index 1.
struct ArchiveNodeRecord
{
    enum Kind : quint8 { File, Dir, Link };
    quint32 parent =
        0; ///< the index of a directory with an earlier record; never smaller than that of the record before
    quint8 kind = File;
    bool isExecutable = false;
    qint64 size = 0;
    qint64 modifiedMs = 0; ///< since 1970; 0 when it is not told
    qint32 target = -1;    ///< of a link: the index of the node that it leads to; -1 when that is nothing
    QByteArray name;       ///< bytes, unique in the directory and ascending
    QByteArray link;       ///< of a link: where it leads, as it has it
};

QDataStream &operator<<(QDataStream &stream, const ArchiveNodeRecord &record);
QDataStream &operator>>(QDataStream &stream, ArchiveNodeRecord &record);

} // namespace VeskFM
