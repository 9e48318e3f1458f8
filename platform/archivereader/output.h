// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "../archiveerror.h"
#include "membertree.h"

#include <QDataStream>
#include <QFile>

namespace VeskFM
{

/// Writes what the caller of this program reads, see ArchiveRecords.
class Output
{
public:
    Output();

    void writeTree(const MemberTree &tree);
    /// Bytes of all that are to be extracted; says so only where it is worth it.
    void writeProgress(qint64 done, qint64 total);
    void writeEnd(ArchiveError error);

private:
    QFile m_file;
    QDataStream m_stream;
    qint64 m_toldPercent = 0;
};

} // namespace VeskFM
