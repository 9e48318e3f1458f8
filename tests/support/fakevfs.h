// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>
#include <veskplatform/favoriteplace.h>
#include <veskplatform/storageplace.h>
#include <veskplatform/vfs.h>

#include <QUrl>
#include <QVector>

namespace VeskFM
{

/// An entry of any kind, from nothing but what the test says. Set the fields before the entry is used.
class FakeEntryData : public EntryData
{
public:
    FakeEntryData(const QString &path, const QVector<EntryTrait> &initialTraits)
        : traits(initialTraits)
        , m_path(path)
    {
    }

    QString path() const override { return m_path; }
    int type() const override { return kind; }
    bool is(EntryTrait trait) const override { return traits.contains(trait); }
    QString localPath() const override { return local; }
    qint64 fileSize() const override { return size; }
    QString symLinkTarget() const override { return target; }

    QVector<EntryTrait> traits;
    int kind = Entry::File;
    QString local; // empty unless set
    qint64 size = 0;
    QString target;

private:
    const QString m_path;
};

inline Entry fakeEntry(const QString &path, const QVector<EntryTrait> &traits = {}, const QString &localPath = {})
{
    auto *const data = new FakeEntryData(path, traits);
    data->local = localPath;
    return Entry(data);
}

/// Stands in for the VFS while it lives: the local one, except for what the test sets.
class FakeVfs : public VFS
{
public:
    FakeVfs() { install(this); }
    ~FakeVfs() override { install(nullptr); }

    Entry home;
    StoragePlace storage;
    FavoritePlace favorite;
    bool slow = false;
    bool network = false; // not the home's

    Entry homeEntry() const override { return home; }
    StoragePlace storagePlace(const Entry &) const override { return storage; }
    FavoritePlace favoritePlace(const Entry &) const override { return favorite; }
    bool isOnSlowFileSystem(const QString &, const QString &) const override { return slow; }
    bool isOnNonHomeNetworkFileSystem(const Entry &) const override { return network; }

    Entry entry(const QString &path) const override { return m_local->entry(path); }
    Entry rootEntry() const override { return m_local->rootEntry(); }
    Entry favoritesEntry() const override { return m_local->favoritesEntry(); }
    Entry placesEntry() const override { return m_local->placesEntry(); }
    Entry storageDevicesEntry() const override { return m_local->storageDevicesEntry(); }
    Entry networkEntry() const override { return m_local->networkEntry(); }
    Entry networkResourcesEntry() const override { return m_local->networkResourcesEntry(); }
    Entry parent(const Entry &e) const override { return m_local->parent(e); }
    Entry sibling(const Entry &e, const QString &name) const override { return m_local->sibling(e, name); }
    EntryList childs(const Entry &e, EntryChildFilters f, QAtomicInt *c) const override
    {
        return m_local->childs(e, f, c);
    }
    EntryList pathEntryList(const Entry &e) const override { return m_local->pathEntryList(e); }
    EntryList pathEntryList(const Entry &e, const Entry &from) const override
    {
        return m_local->pathEntryList(e, from);
    }
    bool isEntryExists(const Entry &e) const override { return m_local->isEntryExists(e); }
    QString localPath(const QString &path) const override { return m_local->localPath(path); }
    QUrl placeUrl(const Entry &e) const override { return m_local->placeUrl(e); }
    QList<QUrl> urlsFromEntries(const EntryList &list) const override { return m_local->urlsFromEntries(list); }
    EntryList entriesFromUrls(const QList<QUrl> &urls) const override { return m_local->entriesFromUrls(urls); }
    bool mayContainContainers(const Entry &e) const override { return m_local->mayContainContainers(e); }
    bool containsContainers(const Entry &e) const override { return m_local->containsContainers(e); }
    Entry symLinkTargetEntry(const Entry &e) const override { return m_local->symLinkTargetEntry(e); }
    VFSPlaceBase *placeBase() const override { return m_local->placeBase(); }
    ArchiveMountsManagerProxy *archiveMountsManager() const override { return m_local->archiveMountsManager(); }
    EntryWatcher *entryWatcher() const override { return m_local->entryWatcher(); }

private:
    VFS *const m_local = VFS::ptr(); // before it is replaced
};

} // namespace VeskFM
