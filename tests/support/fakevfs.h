// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>
#include <veskplatform/favoriteplace.h>
#include <veskplatform/storageplace.h>
#include <veskplatform/vfs.h>

#include <QSet>
#include <QUrl>

/// An entry of any kind, from nothing but what the test says. Set the fields before the entry is used.
class FakeEntryData : public VeskFM::EntryData
{
public:
    FakeEntryData(const QString &path, const QSet<int> &traits);

    QString path() const override { return m_path; }
    int type() const override { return kind; }
    bool is(VeskFM::EntryTrait trait) const override { return traits.contains(int(trait)); }
    QString localPath() const override { return local; }
    qint64 fileSize() const override { return size; }
    QString symLinkTarget() const override { return target; }

    QSet<int> traits; // of VeskFM::EntryTrait
    int kind = VeskFM::Entry::File;
    QString local; // empty unless set
    qint64 size = 0;
    QString target;

private:
    const QString m_path;
};

/// Stands in for the VFS while it lives: the local one, except for what the test sets.
class FakeVfs : public VeskFM::VFS
{
    Q_OBJECT

public:
    FakeVfs();
    ~FakeVfs() override;

    VeskFM::Entry home;
    VeskFM::StoragePlace storage;
    VeskFM::FavoritePlace favorite;
    bool slow = false;
    bool network = false; // not the home's

    VeskFM::Entry homeEntry() const override { return home; }
    VeskFM::StoragePlace storagePlace(const VeskFM::Entry &) const override { return storage; }
    VeskFM::FavoritePlace favoritePlace(const VeskFM::Entry &) const override { return favorite; }
    bool isOnSlowFileSystem(const QString &, const QString &) const override { return slow; }
    bool isOnNonHomeNetworkFileSystem(const VeskFM::Entry &) const override { return network; }

    VeskFM::Entry entry(const QString &path) const override { return m_local->entry(path); }
    VeskFM::Entry rootEntry() const override { return m_local->rootEntry(); }
    VeskFM::Entry favoritesEntry() const override { return m_local->favoritesEntry(); }
    VeskFM::Entry placesEntry() const override { return m_local->placesEntry(); }
    VeskFM::Entry storageDevicesEntry() const override { return m_local->storageDevicesEntry(); }
    VeskFM::Entry networkEntry() const override { return m_local->networkEntry(); }
    VeskFM::Entry networkResourcesEntry() const override { return m_local->networkResourcesEntry(); }
    VeskFM::Entry parent(const VeskFM::Entry &entry) const override { return m_local->parent(entry); }
    VeskFM::Entry sibling(const VeskFM::Entry &entry, const QString &name) const override;
    VeskFM::EntryList childs(const VeskFM::Entry &entry, EntryChildFilters filters, QAtomicInt *cancel) const override;
    VeskFM::EntryList pathEntryList(const VeskFM::Entry &entry) const override { return m_local->pathEntryList(entry); }
    VeskFM::EntryList pathEntryList(const VeskFM::Entry &entry, const VeskFM::Entry &from) const override;
    bool isEntryExists(const VeskFM::Entry &entry) const override { return m_local->isEntryExists(entry); }
    QString localPath(const QString &path) const override { return m_local->localPath(path); }
    QUrl placeUrl(const VeskFM::Entry &entry) const override { return m_local->placeUrl(entry); }
    QList<QUrl> urlsFromEntries(const VeskFM::EntryList &entries) const override;
    VeskFM::EntryList entriesFromUrls(const QList<QUrl> &urls) const override { return m_local->entriesFromUrls(urls); }
    bool mayContainContainers(const VeskFM::Entry &entry) const override;
    bool containsContainers(const VeskFM::Entry &entry) const override { return m_local->containsContainers(entry); }
    VeskFM::Entry symLinkTargetEntry(const VeskFM::Entry &entry) const override;
    VeskFM::VFSPlaceBase *placeBase() const override { return m_local->placeBase(); }
    VeskFM::ArchiveMountsManagerProxy *archiveMountsManager() const override { return m_local->archiveMountsManager(); }
    VeskFM::EntryWatcher *entryWatcher() const override { return m_local->entryWatcher(); }

private:
    VeskFM::VFS *const m_local;
};
