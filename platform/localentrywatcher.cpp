// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localentrywatcher.h"

#include "archivenodes.h"
#include "callatend.h"
#include "deferredentrydata.h"
#include "localentrydata.h"
#include "localvfs.h"
#include "pathcodec.h"

#include <QLoggingCategory>

#include <sys/inotify.h>

#include <algorithm>
#include <atomic>
#include <cerrno>

namespace VeskFM
{

namespace
{
constexpr int listingThreads = 4;   // so that a slow disk does not keep others waiting
constexpr int stopTimeoutMs = 2000; // a listing may hang in a dead file system; the process still has to end
constexpr int generousDirectories = 256;
constexpr size_t changesPerRound = 256; // between reads, so that the kernel's queue of events does not run over
constexpr int mostBadEntries = 10000;

std::atomic<LocalEntryWatcher *> runningWatcher{nullptr};

QString childPath(const QString &directory, const QByteArray &name)
{
    const QString text = PathCodec::decode(name);
    return directory.endsWith(QLatin1Char('/')) ? directory + text : directory + QLatin1Char('/') + text;
}

QSet<QByteArray> linksAmong(const EntryList &children)
{
    QSet<QByteArray> names;
    for (const Entry &child : children) {
        if (child.isSymLink())
            names.insert(PathCodec::encode(child.fileName()));
    }
    return names;
}

/// Whether one of the changes in @p directory concerns the archive that @p shown is or lies in.
bool hasArchiveChanged(const Entry &shown, const QString &directory, const std::vector<PendingChanges::Change> &changes)
{
    const QString archive = ArchiveNodes::archiveOf(shown);
    return !archive.isEmpty() && std::any_of(changes.begin(), changes.end(), [&](const PendingChanges::Change &change) {
        return childPath(directory, change.name) == archive;
    });
}

QByteArray parentDirectory(const QByteArray &directory)
{
    return PathCodec::encode(VFS::parentDirPath(PathCodec::decode(directory)));
}

/// The directory whose changes concern @p entry; empty for places that are not told of here. That of the favorites is
/// where their file is, or where the way to it begins; that of what lies in an archive, where the archive is.
QByteArray watchedDirectory(const Entry &entry)
{
    const QString archive = ArchiveNodes::archiveOf(entry);
    if (!archive.isEmpty())
        return PathCodec::encode(VFS::parentDirPath(archive));
    if (!entry.isFavoritesPlace())
        return PathCodec::encode(LocalVfs::diskPath(entry));
    QByteArray directory = parentDirectory(PathCodec::encode(FavoritePlaces::file()));
    while (directory.size() > 1 && !FileIdentity::of(directory).exists)
        directory = parentDirectory(directory);
    return directory;
}
} // namespace

LocalEntryWatcher::LocalEntryWatcher(LocalVfs *vfs)
    : EntryWatcher(vfs)
    , m_vfs(vfs)
    , m_reader(this)
{
    m_clock.start();
    m_listings.setMaxThreadCount(listingThreads);
    m_archiveListings.setMaxThreadCount(listingThreads);
}

LocalEntryWatcher::~LocalEntryWatcher()
{
    stop();
}

void LocalEntryWatcher::start()
{
    if (m_running)
        return;
    m_running = true;
    m_cancel.storeRelaxed(0);
    runningWatcher = this;
    callAtEnd<stopRunning>();
    if (m_reader.open())
        m_reader.start();
}

void LocalEntryWatcher::stop()
{
    LocalEntryWatcher *self = this;
    runningWatcher.compare_exchange_strong(self, nullptr);
    m_cancel.storeRelaxed(1);
    m_listings.clear();
    m_archiveListings.clear();
    m_listings.waitForDone(stopTimeoutMs);
    m_archiveListings.waitForDone(stopTimeoutMs);
    m_reader.stop(); // after those that watch through it
    m_registry.clear();
    m_poller.clear();
    m_running = false;
}

void LocalEntryWatcher::stopRunning()
{
    if (LocalEntryWatcher *const watcher = runningWatcher)
        watcher->stop();
}

void LocalEntryWatcher::listDir(const Entry &entry, VFS::EntryChildFilters filters)
{
    start();
    const QByteArray directory = entry.isNull() ? QByteArray() : watchedDirectory(entry);
    if (!directory.isEmpty())
        m_registry.beginListing(directory, entry, filters);
    QThreadPool &listings = ArchiveNodes::archiveOf(entry).isEmpty() ? m_listings : m_archiveListings;
    listings.start([=] { list(entry, filters, directory); });
}

void LocalEntryWatcher::list(const Entry &entry, VFS::EntryChildFilters filters, const QByteArray &directory)
{
    if (!directory.isEmpty())
        watch(directory); // first, so that there is no moment in which a change is neither listed nor noticed
    if (entry.isFavoritesPlace())
        followFavorites({entry, filters}, directory);
    int error = 0;
    const EntryList children = m_vfs->childs(entry, filters, &m_cancel, &error);
    if (error == EACCES || error == EPERM)
        rememberBadEntry(entry);
    if (m_cancel.loadRelaxed() != 0)
        return;
    if (!directory.isEmpty())
        m_registry.addLinks(directory, linksAmong(children));
    Q_EMIT dirListed(entry, filters, children);
    if (directory.isEmpty())
        return;
    if (error == ENOENT && ArchiveNodes::archiveOf(entry).isEmpty())
        m_registry.setMoved(directory);
    m_registry.endListing(directory);
    const QList<QByteArray> unused = m_registry.takeUnused(generousDirectories);
    for (const QByteArray &other : unused)
        unwatch(other);
    m_reader.wake();
}

void LocalEntryWatcher::watch(const QByteArray &directory)
{
    const int error = m_reader.watch(directory);
    const FileIdentity identity = FileIdentity::of(directory);
    m_registry.setIdentity(directory, identity);
    if (error == ENOSPC || error == EMFILE || error == ENFILE || error == ENOMEM) {
        m_poller.add(directory, identity);
        std::call_once(m_limitWarning, [] {
            qWarning("The system's limit of watched directories is reached; changes are looked for every %d s.",
                     int(DirectoryPoller::intervalMs / 1000));
        });
    } else {
        m_poller.remove(directory);
    }
}

void LocalEntryWatcher::unwatch(const QByteArray &directory)
{
    m_reader.unwatch(directory);
    m_poller.remove(directory);
    if (m_registry.contains(directory)) { // listed again just now
        watch(directory);
        m_registry.reset(directory);
    }
}

void LocalEntryWatcher::addBadEntry(const Entry &entry)
{
    if (entry.isNull() || !rememberBadEntry(entry))
        return;
    start();
    m_listings.start([=] {
        if (!m_vfs->isEntryExists(entry))
            Q_EMIT entryDeleted(entry);
    });
}

/// False for one that is known.
bool LocalEntryWatcher::rememberBadEntry(const Entry &entry)
{
    const std::lock_guard<std::mutex> lock(m_badMutex);
    const QString path = entry.path();
    if (m_bad.contains(path))
        return false;
    if (m_bad.size() >= mostBadEntries)
        m_bad.clear();
    m_bad.insert(path);
    return true;
}

void LocalEntryWatcher::lookAgain(const QString &path)
{
    m_registry.setMoved(PathCodec::encode(path), true);
    const auto wake = [this] {
        if (m_running)
            m_reader.wake();
    };
    QMetaObject::invokeMethod(this, wake, Qt::QueuedConnection);
}

void LocalEntryWatcher::onDirectoryEvent(const QByteArray &directory, quint32 mask, const QByteArray &name)
{
    if (mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_IGNORED | IN_UNMOUNT)) {
        m_registry.setMoved(directory, mask & IN_UNMOUNT);
        return;
    }
    if (name.isEmpty())
        return; // of the directory itself: told by the one above it
    const auto add = [&](PendingChanges::Kind kind) { m_registry.addChange(directory, name, kind, m_clock.elapsed()); };
    if (mask & IN_MOVED_TO)
        add(PendingChanges::Moved);
    else if (mask & IN_CREATE)
        add(PendingChanges::Created);
    else if (mask & (IN_DELETE | IN_MOVED_FROM))
        add(PendingChanges::Deleted);
    else if (mask & IN_MODIFY)
        add(PendingChanges::Changed);
    else if (mask & IN_CLOSE_WRITE)
        add(PendingChanges::Closed);
    else if (mask & IN_ATTRIB)
        add(PendingChanges::AttributesChanged);
}

void LocalEntryWatcher::onEventsLost()
{
    m_registry.resetAll();
}

int LocalEntryWatcher::onRound()
{
    const QList<QByteArray> polled = m_poller.changed(m_clock.elapsed());
    for (const QByteArray &directory : polled)
        m_registry.reset(directory);
    qint64 nextDue = PendingChanges::never;
    const std::vector<DirectoryNews> all = m_registry.takeNews(m_clock.elapsed(), changesPerRound, &nextDue);
    for (const DirectoryNews &news : all)
        tell(news);
    nextDue = std::min(nextDue, m_poller.nextDue());
    return nextDue == PendingChanges::never ? -1 : int(qMax<qint64>(nextDue - m_clock.elapsed(), 0));
}

/// The favorites are told one by one from elsewhere, as soon as everything is watched that may concern their file.
void LocalEntryWatcher::tell(DirectoryNews news)
{
    const auto group = std::find_if(news.shown.begin(), news.shown.end(),
                                    [](const ShownEntry &shown) { return shown.entry.isFavoritesPlace(); });
    const ShownEntry favorites = group == news.shown.end() ? ShownEntry() : *group;
    if (!favorites.entry.isNull())
        news.shown.erase(group);
    tellDirectory(news);
    if (!favorites.entry.isNull())
        followFavorites(favorites, news.directory);
}

/// @param directory  the watched one; another one is watched when the way to the file became longer or shorter
void LocalEntryWatcher::followFavorites(const ShownEntry &group, const QByteArray &directory)
{
    QByteArray watched = directory;
    for (QByteArray next = watchedDirectory(group.entry); next != watched; next = watchedDirectory(group.entry)) {
        m_registry.beginListing(next, group.entry, group.filters);
        watch(next);
        m_registry.endListing(next);
        watched = next;
    }
    m_vfs->followFavorites();
}

void LocalEntryWatcher::tellDirectory(const DirectoryNews &news)
{
    const FileIdentity now = FileIdentity::of(news.directory);
    if (!now.exists) {
        tellVanished(news);
        return;
    }
    // A directory above it may have got another name, which nobody tells: the path may lead to another one by now.
    if (news.reset || news.moved || !now.isSameNode(news.identity)) {
        tellReset(news);
        return;
    }
    const QString directory = PathCodec::decode(news.directory);
    const bool archivesAsFiles = std::all_of(news.shown.begin(), news.shown.end(), [](const ShownEntry &shown) {
        return shown.filters.testFlag(VFS::ArchivesAsFiles);
    });
    uint kinds = 0;
    for (const PendingChanges::Change &change : news.changes) {
        kinds |= change.kinds;
        tellChange(news.directory, change, archivesAsFiles);
    }
    for (const ShownEntry &shown : news.shown) {
        // New children belong to the directory, which nobody shows under a place.
        const bool isConcerned = ArchiveNodes::archiveOf(shown.entry).isEmpty()
            ? shown.entry.path() != directory && (kinds & PendingChanges::Created)
            : hasArchiveChanged(shown.entry, directory, news.changes);
        if (isConcerned)
            Q_EMIT entryReset(shown.entry);
    }
}

void LocalEntryWatcher::tellChange(const QByteArray &directory, const PendingChanges::Change &change,
                                   bool archivesAsFiles)
{
    const uint kinds = change.kinds;
    const QString path = childPath(PathCodec::decode(directory), change.name);
    const Entry entry = makeLocalEntry(path, archivesAsFiles);
    const bool wasLink = m_registry.takeLink(directory, change.name);
    if (entry.isSymLink())
        m_registry.addLinks(directory, {change.name});
    // What comes in one step may replace a node of another kind without anybody telling that this one is gone. A row
    // does not change its kind. Only files come so often that they are worth the memory of what was a link before.
    const bool mayReplace = (kinds & PendingChanges::Moved) == PendingChanges::Moved && !entry.isNull();
    if ((kinds & PendingChanges::Deleted) || (mayReplace && (wasLink || entry.type() != Entry::File)))
        Q_EMIT entryDeleted(Entry(new DeferredEntryData(path)));
    if (kinds & (PendingChanges::Created | PendingChanges::Deleted)) { // two names may have been exchanged
        {
            const std::lock_guard<std::mutex> lock(m_badMutex);
            m_bad.remove(path);
        }
        if (!entry.isNull())
            Q_EMIT entryCreated(entry);
        return;
    }
    if (entry.isNull())
        return; // its deletion is about to be told
    const bool otherwise = kinds & (PendingChanges::Changed | PendingChanges::AttributesChanged);
    if ((kinds & PendingChanges::Changed) || !otherwise)
        Q_EMIT entryChanged(entry);
    if (kinds & PendingChanges::AttributesChanged)
        Q_EMIT entryAttributesChanged(entry);
}

void LocalEntryWatcher::tellReset(const DirectoryNews &news)
{
    watch(news.directory); // the old watch may belong to what had this path before
    for (const ShownEntry &shown : news.shown)
        Q_EMIT entryReset(shown.entry);
}

void LocalEntryWatcher::tellVanished(const DirectoryNews &news)
{
    const QByteArray parent = parentDirectory(news.directory);
    const bool toldByParent =
        !news.unmounted && m_reader.isWatching(parent) && FileIdentity::of(parent).exists; // not if that moved away
    m_registry.remove(news.directory);
    unwatch(news.directory);
    const QString directory = PathCodec::decode(news.directory);
    for (const PendingChanges::Change &change : news.changes)
        Q_EMIT entryDeleted(Entry(new DeferredEntryData(childPath(directory, change.name))));
    for (const ShownEntry &shown : news.shown) {
        if (shown.entry.path() != directory)
            Q_EMIT entryReset(shown.entry);
        else if (!toldByParent)
            Q_EMIT entryDeleted(shown.entry);
    }
}

} // namespace VeskFM
