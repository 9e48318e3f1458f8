// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archivejob.h"
#include "archivetree.h"

#include <QAtomicInt>
#include <QHash>
#include <QThreadPool>

#include <functional>
#include <list>
#include <memory>
#include <mutex>

namespace VeskFM
{

/// What came of listing an archive.
struct ArchiveListing
{
    std::shared_ptr<const ArchiveTree> tree; ///< null when it failed, or is not there yet
    ArchiveError error = ArchiveError::None;
    int systemError = 0;    ///< errno, for what calls itself Unreadable; ENOENT when there is no archive
    bool isPending = false; ///< it is under way
};

/// Lists archives, each once: those that were asked for lately are kept as long as the file stays as it is.
///
/// Thread: any. The reading is done on threads of its own, which end with the application object, or with the process.
class ArchiveListings
{
public:
    static ArchiveListings &instance(); ///< never deleted

    /// Blocks until the listing is there. Those that ask for one archive at the same time share one run of the reader.
    /// @param cancel may be null; when it becomes non-zero this returns at once, and the reader ends with the last that
    ///               waited for it
    ArchiveListing list(const QString &archive, const QAtomicInt *cancel);
    /// Waits for a moment only; what is not there by then goes on being read.
    ArchiveListing listSoon(const QString &archive);

private:
    struct Run : ArchiveJob
    {
        ArchiveIdentity identity;
        int waiting = 0;       // guarded by the mutex of the listings
        ArchiveListing result; // by whoever makes it, until finished
    };
    using RunPtr = std::shared_ptr<Run>;
    struct Kept
    {
        QString archive;
        ArchiveIdentity identity;
        ArchiveListing listing;
    };

    ArchiveListings();
    ArchiveListing listWithin(const QString &archive, int timeoutMs, const QAtomicInt *cancel);
    bool findKept(const QString &archive, const ArchiveIdentity &identity, ArchiveListing *listing);
    void keep(const QString &archive, const ArchiveListing &listing, const ArchiveIdentity &identity);
    RunPtr join(const QString &archive, const ArchiveIdentity &identity);
    void leave(const QString &archive, const RunPtr &run);
    void read(const QString &archive, const RunPtr &run);
    void start();
    void stop();
    static void stopRunning();

    std::mutex m_mutex;            // guards what follows
    std::list<Kept> m_kept;        // the latest first
    QHash<QString, RunPtr> m_runs; // by archive
    bool m_isRunning = false;
    QThreadPool m_readers;
};

} // namespace VeskFM
