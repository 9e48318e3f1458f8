// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>
#include <veskplatform/favoriteplace.h>
#include <veskplatform/storageplace.h>

#include <QFlags>
#include <QList>
#include <QObject>
#include <QUrl>

class QAtomicInt;

namespace VeskFM
{

class ArchiveMountsManagerProxy;
class EntryWatcher;
class VFSPlaceBase;

/// The virtual file system: everything that a file manager shows comes from here.
///
/// Without another one installed, ptr() gives a VFS over the local disk.
///
/// Thread: ptr() and all const queries may be called from any threads at the same time.
class VESKPLATFORM_EXPORT VFS : public QObject
{
    Q_OBJECT

public:
    /// Which children a listing returns. Values add up.
    enum EntryChildFilter {
        PlainListing = 0,
        RecursiveListing = 1, ///< for walks over a whole tree
        NoArchiveDescent = 2, ///< added by walks that do not enter archives
        ContainersOnly = 4,   ///< directories, places and whatever else can be opened as a directory
        ArchivesAsFiles = 8
    };
    Q_DECLARE_FLAGS(EntryChildFilters, EntryChildFilter)

    explicit VFS(QObject *parent = nullptr);
    ~VFS() override;

    /// The installed VFS, else the local one, made on first use and never deleted.
    static VFS *ptr();
    /// Puts @p vfs in place of the local VFS; null restores the local one. Call it before models exist, or between
    /// tests. Returns what was installed before (null for the local VFS); the caller keeps the ownership of both.
    static VFS *install(VFS *vfs);

    virtual Entry entry(const QString &path) const = 0; ///< null where there is no such node

    virtual Entry rootEntry() const = 0;
    virtual Entry homeEntry() const = 0;
    virtual Entry favoritesEntry() const = 0;
    virtual Entry placesEntry() const = 0;
    virtual Entry storageDevicesEntry() const = 0;
    virtual Entry networkEntry() const = 0;
    virtual Entry networkResourcesEntry() const = 0;

    virtual Entry parent(const Entry &entry) const = 0; ///< null for the root
    virtual Entry sibling(const Entry &entry, const QString &name) const = 0;
    /// Lists the children in the VFS's order; blocks. A non-zero @p cancel (which may be null) stops it early.
    virtual EntryList childs(const Entry &entry, EntryChildFilters filters, QAtomicInt *cancel) const = 0;
    virtual EntryList pathEntryList(const Entry &entry) const = 0; ///< from the root down to @p entry
    virtual EntryList pathEntryList(const Entry &entry, const Entry &from) const = 0; ///< from @p from down
    virtual bool isEntryExists(const Entry &entry) const = 0;
    virtual QString localPath(const QString &path) const = 0; ///< of a VFS path or of a URL text
    virtual QUrl placeUrl(const Entry &entry) const = 0;
    virtual QList<QUrl> urlsFromEntries(const EntryList &entries) const = 0;
    virtual EntryList entriesFromUrls(const QList<QUrl> &urls) const = 0;
    virtual bool mayContainContainers(const Entry &entry) const = 0; ///< fast: asked on the GUI thread
    virtual bool containsContainers(const Entry &entry) const = 0;
    /// Whether reading content should be avoided there.
    virtual bool isOnSlowFileSystem(const QString &path, const QString &localPath) const = 0;
    virtual bool isOnNonHomeNetworkFileSystem(const Entry &entry) const = 0;
    virtual Entry symLinkTargetEntry(const Entry &entry) const = 0;
    virtual StoragePlace storagePlace(const Entry &entry) const = 0;
    virtual FavoritePlace favoritePlace(const Entry &entry) const = 0;

    virtual VFSPlaceBase *placeBase() const = 0;                         ///< not null, owned by the VFS
    virtual ArchiveMountsManagerProxy *archiveMountsManager() const = 0; ///< not null, owned by the VFS
    virtual EntryWatcher *entryWatcher() const = 0;                      ///< not null, owned by the VFS

    /// The directory part of a path: "/a/b" gives "/a", "/a" gives "/", "/" gives an empty text.
    static QString parentDirPath(const QString &path);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VFS::EntryChildFilters)

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::VFS::EntryChildFilters)
