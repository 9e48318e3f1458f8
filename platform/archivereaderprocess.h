// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archiveerror.h"
#include "archiverecords.h"

#include <QStringList>

#include <functional>

namespace VeskFM
{

/// One run of vesk-archive, see there.
struct ArchiveReaderProcess
{
    std::function<bool()> isCancelled;                     ///< asked every few milliseconds
    std::function<bool(const ArchiveNodeRecord &)> onNode; ///< returns whether the record is sound
    std::function<void(int percent)> onProgress;

    /// Blocks until the end. Nothing that the program writes is trusted: an archive may have taken it over.
    /// @param archive an open file, for which @p arguments have the name "-"
    ///
    /// Thread: any that stays until this returns: the program ends with it.
    ArchiveError run(const QStringList &arguments, int archive) const;

private:
    enum Step { Taken, Incomplete, Ended, Broken };
    ArchiveError follow(int output) const;
    Step takeRecords(QByteArray *pending, bool *isBegun, ArchiveError *result) const;
    Step takeRecord(QDataStream *stream, ArchiveError *result) const;
};

} // namespace VeskFM
