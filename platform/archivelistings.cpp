// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivelistings.h"

#include "archivefile.h"
#include "archivelimits.h"
#include "archiveproblems.h"
#include "archivereaderprocess.h"
#include "callatend.h"

#include <algorithm>
#include <cerrno>

namespace VeskFM
{

namespace
{
constexpr int mostReaders = 4;
constexpr int soonMs = 100;         // what a window may wait for
constexpr int stopTimeoutMs = 2000; // an archive may lie in a dead file system; the process still has to end
constexpr qint64 mostKeptBytes = 64LL * 1024 * 1024;
constexpr size_t mostKept = 64;

using Lock = std::lock_guard<std::mutex>;
} // namespace

ArchiveListings &ArchiveListings::instance()
{
    static auto *const listings = new ArchiveListings;
    return *listings;
}

ArchiveListings::ArchiveListings()
{
    m_readers.setMaxThreadCount(mostReaders);
}

/// With the mutex.
void ArchiveListings::start()
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    callAtEnd<stopRunning>();
}

void ArchiveListings::stop()
{
    {
        const Lock lock(m_mutex);
        for (const RunPtr &run : qAsConst(m_runs))
            run->cancel();
    }
    m_readers.waitForDone(stopTimeoutMs);
    const Lock lock(m_mutex);
    m_isRunning = false;
}

void ArchiveListings::stopRunning()
{
    instance().stop();
}

ArchiveListing ArchiveListings::list(const QString &archive, const QAtomicInt *cancel)
{
    return listWithin(archive, -1, cancel);
}

ArchiveListing ArchiveListings::listSoon(const QString &archive)
{
    return listWithin(archive, soonMs, nullptr);
}

ArchiveListing ArchiveListings::listWithin(const QString &archive, int timeoutMs, const QAtomicInt *cancel)
{
    const auto isCancelled = [cancel] { return cancel && cancel->loadRelaxed() != 0; };
    ArchiveListing listing;
    ArchiveIdentity identity;
    listing.systemError = ArchiveFile::identify(archive, &identity);
    if (listing.systemError != 0) {
        listing.error = ArchiveError::Unreadable;
        ArchiveProblems::set(archive, ArchiveProblems::text(archive, listing.error, listing.systemError));
        return listing;
    }
    if (findKept(archive, identity, &listing)) {
        ArchiveProblems::set(archive, ArchiveProblems::text(archive, listing.error, listing.systemError));
        return listing;
    }
    const RunPtr run = isCancelled() ? nullptr : join(archive, identity);
    if (run && run->wait(timeoutMs, isCancelled)) {
        listing = run->result;
    } else {
        listing.isPending = run && !isCancelled();
        listing.error = ArchiveError::Cancelled;
        listing.systemError = ECANCELED;
    }
    if (run && !listing.isPending) // otherwise our part in it stays, and it goes on
        leave(archive, run);
    return listing;
}

bool ArchiveListings::findKept(const QString &archive, const ArchiveIdentity &identity, ArchiveListing *listing)
{
    const Lock lock(m_mutex);
    const auto found = std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept &kept) {
        return kept.archive == archive && kept.identity == identity;
    });
    if (found == m_kept.end())
        return false;
    m_kept.splice(m_kept.begin(), m_kept, found);
    *listing = found->listing;
    return true;
}

/// With the mutex.
void ArchiveListings::keep(const QString &archive, const ArchiveListing &listing, const ArchiveIdentity &identity)
{
    m_kept.remove_if([&](const Kept &kept) { return kept.archive == archive; });
    m_kept.push_front({archive, identity, listing});
    qint64 bytes = 0;
    auto last = m_kept.begin();
    for (size_t count = 0; last != m_kept.end(); ++last, ++count) {
        bytes += last->listing.tree ? last->listing.tree->memoryBytes() : 0;
        if (count > 0 && (count >= mostKept || bytes > mostKeptBytes))
            break;
    }
    m_kept.erase(last, m_kept.end());
}

ArchiveListings::RunPtr ArchiveListings::join(const QString &archive, const ArchiveIdentity &identity)
{
    const Lock lock(m_mutex);
    RunPtr &run = m_runs[archive];
    if (!run || run->isCancelled() || run->isFinished() || run->identity != identity) {
        run = std::make_shared<Run>();
        run->identity = identity;
        start();
        m_readers.start([this, archive, current = run] { read(archive, current); });
    }
    ++run->waiting;
    return run;
}

void ArchiveListings::leave(const QString &archive, const RunPtr &run)
{
    const Lock lock(m_mutex);
    if (--run->waiting > 0)
        return;
    run->cancel(); // does nothing to one that has finished
    if (m_runs.value(archive) == run)
        m_runs.remove(archive);
}

/// On a reader thread.
void ArchiveListings::read(const QString &archive, const RunPtr &run)
{
    ArchiveListing listing;
    const ArchiveFile file(archive);
    listing.systemError = file.error();
    if (file.error() != 0) {
        listing.error = ArchiveError::Unreadable;
    } else {
        const auto tree = std::make_shared<ArchiveTree>(archive, file.identity());
        ArchiveReaderProcess reader;
        reader.isCancelled = [&run] { return run->isCancelled(); };
        reader.onNode = [&tree](const ArchiveNodeRecord &record) { return tree->add(record); };
        const QStringList arguments =
            QStringList(QStringLiteral("list")) + ArchiveLimits().toArguments() + QStringList(QStringLiteral("-"));
        listing.error = reader.run(arguments, file.descriptor());
        if (listing.error == ArchiveError::None && !tree->finish())
            listing.error = ArchiveError::Failed;
        if (listing.error == ArchiveError::None)
            listing.tree = tree;
        else
            listing.systemError = listing.error == ArchiveError::Cancelled ? ECANCELED : EIO;
    }
    const Lock lock(m_mutex);
    if (listing.error != ArchiveError::Cancelled) {
        ArchiveProblems::set(archive, ArchiveProblems::text(archive, listing.error, listing.systemError));
        if (file.error() == 0)
            keep(archive, listing, file.identity());
    }
    if (m_runs.value(archive) == run)
        m_runs.remove(archive);
    run->result = listing;
    run->finish(listing.error);
}

} // namespace VeskFM
