// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "favoriteplaces.h"
#include "storageplaces.h"

#include <veskplatform/favoriteplace.h>
#include <veskplatform/vfsplacebase.h>

#include <QCoreApplication>

#include <initializer_list>

class QAtomicInt;

namespace VeskFM
{

/// The virtual places of the local VFS: the computer, the groups under it, and the places in the groups.
///
/// A place has a path of its own, such as "places:/home", so that it is another node than the directory that stands
/// behind it. Favorites and storage devices come and go; what is in the network is for NetworkPlaces to say.
///
/// Thread: any.
class LocalPlaces : public VFSPlaceBase
{
    Q_DECLARE_TR_FUNCTIONS(LocalPlaces)

public:
    /// @param watcher  borrowed; tells what changes
    /// @param context  borrowed; lives in the application's thread, from where it is told
    LocalPlaces(LocalEntryWatcher *watcher, QObject *context);

    Entry computer() const { return m_computer; }
    Entry favorites() const { return m_favorites; }
    Entry places() const { return m_places; }
    Entry storageDevices() const { return m_storageDevices; }
    Entry network() const { return m_network; }
    Entry networkResources() const { return m_networkResources; }

    /// Whether @p path is one of those given to places; anything else is a path of the disk.
    static bool isPlacePath(const QString &path);

    Entry entry(const QString &path) const; ///< null for no place
    Entry parent(const Entry &place) const; ///< null for the computer
    EntryList childEntries(const Entry &entry) const override;
    EntryList childEntries(const Entry &entry, QAtomicInt *cancel) const;        ///< may block inside the network
    int placeOrderIndex(const Entry &place, const Entry &parent) const override; ///< -1 for what is not there
    bool mayContainContainers(const Entry &place) const;
    FavoritePlace favoritePlace(const Entry &entry) const;
    StoragePlace storagePlace(const Entry &entry) const;

    FavoritePlaces *favoritePlaces() const { return &m_favoritePlaces; }
    StoragePlaces *storagePlaces() const { return &m_storagePlaces; }

private:
    static Entry makePlace(const QString &path, const QString &name, const QString &localPath,
                           std::initializer_list<EntryTrait> traits);
    static Entry networkEntry(const Entry &place);

    Entry m_computer;
    Entry m_favorites;
    Entry m_places;
    Entry m_storageDevices;
    Entry m_network;
    Entry m_networkResources;
    EntryList m_groups;
    EntryList m_fixedPlaces;
    mutable FavoritePlaces m_favoritePlaces;
    mutable StoragePlaces m_storagePlaces;
};

} // namespace VeskFM
