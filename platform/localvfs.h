// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "filesystemkinds.h"
#include "localplaces.h"

#include <veskplatform/vfs.h>

namespace VeskFM
{

class LocalEntryWatcher;

/// The VFS over the local disk, with the virtual places around it.
///
/// The path of a file or directory is its absolute path without needless slashes and dots; see PathCodec for names that
/// are no text. A child of a place is a plain entry, too: a place shows the directory behind it.
class LocalVfs : public VFS
{
    Q_OBJECT

public:
    explicit LocalVfs(QObject *parent = nullptr);
    ~LocalVfs() override;

    Entry entry(const QString &path) const override;
    Entry rootEntry() const override;
    Entry homeEntry() const override; ///< the directory itself, so that its rows follow the disk
    Entry favoritesEntry() const override;
    Entry placesEntry() const override;
    Entry storageDevicesEntry() const override;
    Entry networkEntry() const override;
    Entry networkResourcesEntry() const override;

    Entry parent(const Entry &entry) const override;
    /// Null where there is no such node, and for a name that cannot be one.
    Entry sibling(const Entry &entry, const QString &name) const override;
    EntryList childs(const Entry &entry, EntryChildFilters filters, QAtomicInt *cancel) const override;
    /// Like childs(), and tells in @p error why a directory could not be read (errno).
    EntryList childs(const Entry &entry, EntryChildFilters filters, QAtomicInt *cancel, int *error) const;
    EntryList pathEntryList(const Entry &entry) const override;
    EntryList pathEntryList(const Entry &entry, const Entry &from) const override; ///< empty unless below @p from
    bool isEntryExists(const Entry &entry) const override;
    QString localPath(const QString &path) const override;
    QUrl placeUrl(const Entry &entry) const override;
    QList<QUrl> urlsFromEntries(const EntryList &entries) const override;
    EntryList entriesFromUrls(const QList<QUrl> &urls) const override; ///< without what does not exist
    bool mayContainContainers(const Entry &entry) const override;
    bool containsContainers(const Entry &entry) const override;
    bool isOnSlowFileSystem(const QString &path, const QString &localPath) const override;
    bool isOnNonHomeNetworkFileSystem(const Entry &entry) const override;
    Entry symLinkTargetEntry(const Entry &entry) const override;
    StoragePlace storagePlace(const Entry &entry) const override;
    FavoritePlace favoritePlace(const Entry &entry) const override;

    VFSPlaceBase *placeBase() const override;
    ArchiveMountsManagerProxy *archiveMountsManager() const override;
    EntryWatcher *entryWatcher() const override;

    /// The path of the disk behind @p entry; empty for a place without one. Of what lies in an archive, the VFS path.
    static QString diskPath(const Entry &entry);
    /// An absolute path as it names the node: no needless slashes and dots, ".." as the system takes it, names as
    /// PathCodec writes them. Empty for what cannot be a path of the disk.
    static QString canonicalPath(const QString &path);

    void followFavorites() const; ///< for who watches their file: at first, and after each change
    void lookAtFavorites() const; ///< takes over what became different, and tells it; in the application's thread
    void lookAtStorage() const;   ///< likewise

private:
    const Entry m_home;
    LocalEntryWatcher *const m_watcher; // child
    mutable LocalPlaces m_places;
    FileSystemKinds m_fileSystems;
};

} // namespace VeskFM
