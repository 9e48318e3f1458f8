// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localvfs.h"

#include "archivefile.h"
#include "archivenodes.h"
#include "containerpeek.h"
#include "deferredentrydata.h"
#include "directorylister.h"
#include "localarchivemounts.h"
#include "localentrydata.h"
#include "localentrywatcher.h"
#include "localurls.h"
#include "pathcodec.h"
#include "walklister.h"

#include <QDir>

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

namespace VeskFM
{

namespace
{
struct FreeDeleter
{
    void operator()(char *text) const { free(text); }
};

bool isLocal(const Entry &entry)
{
    return entry.path().startsWith(QLatin1Char('/'));
}

/// Resolves everything up to the last ".." as the system does: behind a link, ".." is not what stands before it.
QByteArray withoutDotDot(const QByteArray &path)
{
    int end = path.endsWith("/..") ? path.size() : path.lastIndexOf("/../") + 3;
    if (end < 3)
        return path;
    const std::unique_ptr<char, FreeDeleter> resolved(realpath(path.left(end).constData(), nullptr));
    return resolved ? QByteArray(resolved.get()) + path.mid(end) : QByteArray();
}

/// A path that leads through an archive: in there, ".." is a matter of names. Empty for any other path.
QString pathInArchive(const QString &path)
{
    const QString archive = ArchiveFile::around(path);
    const QString inner = QDir::cleanPath(path.mid(archive.size() + 1));
    const bool leadsOut = inner == QLatin1String("..") || inner.startsWith(QLatin1String("../"));
    return archive.isEmpty() || leadsOut ? QString() : QDir::cleanPath(archive + QLatin1Char('/') + inner);
}

/// The home directory as one of the fixed roots. Met in a listing it is a directory like any other.
class HomeEntryData : public DeferredEntryData
{
public:
    HomeEntryData()
        : DeferredEntryData(localHomePath())
    {
    }
    bool is(EntryTrait trait) const override
    {
        return trait == EntryTrait::HomeDirPlace || DeferredEntryData::is(trait);
    }
};

} // namespace

LocalVfs::LocalVfs(QObject *parent)
    : VFS(parent)
    , m_home(new HomeEntryData)
    , m_watcher(new LocalEntryWatcher(this))
    , m_places(m_watcher, this)
{
    LocalArchiveMounts::removeStale();
}

LocalVfs::~LocalVfs()
{
    delete m_watcher; // its threads still use the rest
}

QString LocalVfs::diskPath(const Entry &entry)
{
    return isLocal(entry) ? entry.path() : entry.localPath();
}

QString LocalVfs::canonicalPath(const QString &path)
{
    const QByteArray bytes = withoutDotDot(PathCodec::encode(path));
    return bytes.startsWith('/') ? QDir::cleanPath(PathCodec::decode(bytes)) : pathInArchive(path);
}

Entry LocalVfs::entry(const QString &path) const
{
    if (LocalPlaces::isPlacePath(path))
        return m_places.entry(path);
    const QString canonical = canonicalPath(path);
    const Entry found = canonical.isEmpty() ? Entry() : makeLocalEntry(canonical);
    return found.isNull() && !canonical.isEmpty() ? ArchiveNodes::entry(canonical) : found;
}

Entry LocalVfs::rootEntry() const
{
    return m_places.computer();
}

Entry LocalVfs::homeEntry() const
{
    return m_home;
}

Entry LocalVfs::favoritesEntry() const
{
    return m_places.favorites();
}

Entry LocalVfs::placesEntry() const
{
    return m_places.places();
}

Entry LocalVfs::storageDevicesEntry() const
{
    return m_places.storageDevices();
}

Entry LocalVfs::networkEntry() const
{
    return m_places.network();
}

Entry LocalVfs::networkResourcesEntry() const
{
    return m_places.networkResources();
}

Entry LocalVfs::parent(const Entry &entry) const
{
    if (!isLocal(entry))
        return m_places.parent(entry);
    if (const ArchiveNodeData *const node = ArchiveNodeData::of(entry))
        return ArchiveNodes::parent(*node);
    const QString directory = parentDirPath(entry.path());
    return directory.isEmpty() ? m_places.computer() : Entry(new DeferredEntryData(directory));
}

Entry LocalVfs::sibling(const Entry &entry, const QString &name) const
{
    const QString directory = parentDirPath(entry.path());
    if (!isLocal(entry) || directory.isEmpty() || name.isEmpty() || name.contains(QLatin1Char('/'))
        || name == QLatin1String(".") || name == QLatin1String(".."))
        return {};
    return this->entry(directory + QLatin1Char('/') + name);
}

EntryList LocalVfs::childs(const Entry &entry, EntryChildFilters filters, QAtomicInt *cancel) const
{
    int error = 0;
    return childs(entry, filters, cancel, &error);
}

EntryList LocalVfs::childs(const Entry &entry, EntryChildFilters filters, QAtomicInt *cancel, int *error) const
{
    if (!ArchiveNodes::archiveOf(entry).isEmpty())
        return ArchiveNodes::childs(entry, filters, cancel, error);
    const QString directory = diskPath(entry);
    if (directory.isEmpty()) {
        EntryList places = m_places.childEntries(entry, cancel);
        if (entry == m_places.computer())
            places.append(makeLocalEntry(QStringLiteral("/")));
        return places;
    }
    const bool isWalk = filters.testFlag(RecursiveListing) && !filters.testFlag(ContainersOnly);
    DirectoryListing listing = isWalk ? listForWalk(directory, filters.testFlag(ArchivesAsFiles), cancel)
                                      : listDirectory(directory, filters, cancel);
    *error = listing.error;
    return listing.entries;
}

EntryList LocalVfs::pathEntryList(const Entry &entry) const
{
    EntryList chain;
    for (Entry step = entry; !step.isNull(); step = parent(step))
        chain.prepend(step);
    return chain;
}

EntryList LocalVfs::pathEntryList(const Entry &entry, const Entry &from) const
{
    EntryList chain;
    for (Entry step = entry; !step.isNull(); step = parent(step)) {
        chain.prepend(step);
        if (step == from)
            return chain;
        if (isLocal(step) && step.path() == diskPath(from)) { // the directory behind a place stands for the place
            chain.first() = from;
            return chain;
        }
    }
    return {};
}

bool LocalVfs::isEntryExists(const Entry &entry) const
{
    if (!isLocal(entry))
        return !m_places.entry(entry.path()).isNull();
    struct stat facts;
    const QByteArray bytes = PathCodec::encode(entry.path());
    if (!bytes.isEmpty() && lstat(bytes.constData(), &facts) == 0)
        return true;
    return !bytes.isEmpty() && errno == ENOTDIR && !ArchiveNodes::entry(entry.path()).isNull();
}

QString LocalVfs::localPath(const QString &path) const
{
    QString disk;
    if (path.startsWith(QLatin1Char('/')))
        disk = path;
    else if (path.startsWith(QLatin1String("file:")))
        disk = pathFromFileUrl(QUrl(path));
    else
        return m_places.entry(path).localPath();
    const bool isMarkedAsDir = disk.endsWith(QLatin1Char('/')); // stays: some compare paths exactly
    disk = canonicalPath(disk);
    if (!ArchiveFile::around(disk).isEmpty())
        return entry(disk).localPath();
    if (isMarkedAsDir && !disk.endsWith(QLatin1Char('/')))
        disk += QLatin1Char('/');
    return PathCodec::isPortable(disk) ? disk : QString();
}

QUrl LocalVfs::placeUrl(const Entry &entry) const
{
    if (entry.isNull())
        return {};
    return isLocal(entry) ? fileUrlOfPath(entry.path()) : QUrl(entry.path());
}

QList<QUrl> LocalVfs::urlsFromEntries(const EntryList &entries) const
{
    QList<QUrl> urls;
    for (const Entry &entry : entries) {
        if (entry.isNull())
            continue;
        const ArchiveNodeData *const node = ArchiveNodeData::of(entry);
        const QString mounted = node ? node->pathInMount() : QString();
        const QString disk = mounted.isEmpty() ? diskPath(entry) : mounted;
        urls.append(disk.isEmpty() ? QUrl(entry.path()) : fileUrlOfPath(disk));
    }
    return urls;
}

EntryList LocalVfs::entriesFromUrls(const QList<QUrl> &urls) const
{
    EntryList entries;
    for (const QUrl &url : urls) {
        const QString disk = pathFromFileUrl(url);
        const QString inArchive = LocalArchiveMounts::instance().archivePathOf(disk);
        const Entry found = entry(!inArchive.isEmpty() ? inArchive : disk.isEmpty() ? url.toString() : disk);
        if (!found.isNull())
            entries.append(found);
    }
    return entries;
}

bool LocalVfs::mayContainContainers(const Entry &entry) const
{
    if (const ArchiveNodeData *const node = ArchiveNodeData::of(entry))
        return ArchiveNodes::hasDirs(*node);
    if (entry.isArchiveMountPoint())
        return true;
    if (entry.isPlace())
        return m_places.mayContainContainers(entry);
    return entry.isDir() && mayHoldContainers(entry.path());
}

bool LocalVfs::containsContainers(const Entry &entry) const
{
    const QString directory = diskPath(entry);
    if (directory.isEmpty() || !ArchiveNodes::archiveOf(entry).isEmpty())
        return !childs(entry, ContainersOnly, nullptr).isEmpty();
    return hasContainer(directory);
}

bool LocalVfs::isOnSlowFileSystem(const QString &path, const QString &localPath) const
{
    const QString disk = localPath.isEmpty() ? path : localPath;
    return LocalPlaces::isPlacePath(disk)
        || m_fileSystems.isNetwork(disk); // a place without a directory is a network's
}

bool LocalVfs::isOnNonHomeNetworkFileSystem(const Entry &entry) const
{
    const QString path = diskPath(entry);
    return m_fileSystems.isNetwork(path) && !m_fileSystems.isSame(path, m_home.path());
}

Entry LocalVfs::symLinkTargetEntry(const Entry &entry) const
{
    return entry.isSymLink() ? this->entry(entry.symLinkTarget()) : Entry();
}

StoragePlace LocalVfs::storagePlace(const Entry &entry) const
{
    return m_places.storagePlace(entry);
}

FavoritePlace LocalVfs::favoritePlace(const Entry &entry) const
{
    return m_places.favoritePlace(entry);
}

void LocalVfs::followFavorites() const
{
    m_places.favoritePlaces()->follow();
}

void LocalVfs::lookAtFavorites() const
{
    m_places.favoritePlaces()->update();
}

void LocalVfs::lookAtStorage() const
{
    m_places.storagePlaces()->update();
}

VFSPlaceBase *LocalVfs::placeBase() const
{
    return &m_places;
}

ArchiveMountsManagerProxy *LocalVfs::archiveMountsManager() const
{
    return &LocalArchiveMounts::instance();
}

EntryWatcher *LocalVfs::entryWatcher() const
{
    return m_watcher;
}

} // namespace VeskFM
