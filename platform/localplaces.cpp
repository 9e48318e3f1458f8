// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localplaces.h"

#include "containerpeek.h"
#include "localentrydata.h"
#include "localentrywatcher.h"

#include <veskplatform/networkplaces.h>

#include <QAtomicInt>

namespace VeskFM
{

LocalPlaces::LocalPlaces(LocalEntryWatcher *watcher, QObject *context)
    : m_computer(makePlace(QStringLiteral("computer:/"), tr("Computer"), QString(),
                           {EntryTrait::Root, EntryTrait::ComputerPlace}))
    , m_favorites(makePlace(QStringLiteral("favorites:/"), tr("Favorites"), QString(), {EntryTrait::FavoritesPlace}))
    , m_places(makePlace(QStringLiteral("places:/"), tr("Places"), QString(), {}))
    , m_storageDevices(
          makePlace(QStringLiteral("storage:/"), tr("Storage devices"), QString(), {EntryTrait::StorageDevicesPlace}))
    , m_network(makePlace(QStringLiteral("network:/"), tr("Network"), QString(), {EntryTrait::NetworkPlace}))
    , m_networkResources(makePlace(QStringLiteral("network-resources:/"), tr("Network resources"), QString(),
                                   {EntryTrait::NetworkResourcesPlace}))
    , m_groups({m_favorites, m_places, m_storageDevices, m_network, m_networkResources})
    , m_fixedPlaces(
          {makePlace(QStringLiteral("places:/file-system"), tr("File system"), QStringLiteral("/"),
                     {EntryTrait::FileSystemRootPlace}),
           makePlace(QStringLiteral("places:/home"), tr("Home"), localHomePath(), {EntryTrait::HomeDirPlace}),
           makePlace(QStringLiteral("places:/trash"), tr("Trash"), localTrashPath(), {EntryTrait::TrashDirPlace})})
    , m_favoritePlaces(m_favorites, watcher, context)
    , m_storagePlaces(m_storageDevices, watcher, context)
{
}

bool LocalPlaces::isPlacePath(const QString &path)
{
    return !path.isEmpty() && !path.startsWith(QLatin1Char('/'));
}

Entry LocalPlaces::makePlace(const QString &path, const QString &name, const QString &localPath,
                             std::initializer_list<EntryTrait> traits)
{
    return Entry(new PlaceEntryData(path, PlaceFacts(name, localPath, traits)));
}

Entry LocalPlaces::entry(const QString &path) const
{
    if (path == m_computer.path())
        return m_computer;
    for (const EntryList &list : {m_groups, m_fixedPlaces}) {
        for (const Entry &place : list) {
            if (place.path() == path)
                return place;
        }
    }
    if (!FavoritePlaces::target(path).isEmpty())
        return m_favoritePlaces.entry(path);
    if (!StoragePlaces::deviceId(path).isEmpty())
        return m_storagePlaces.entry(path);
    const NetworkPlaces *const network = NetworkPlaces::ptr();
    return network && isPlacePath(path) ? network->entry(path) : Entry();
}

/// What NetworkPlaces has behind a place that is none of those here, or a favorite; null for others.
Entry LocalPlaces::networkEntry(const Entry &place)
{
    const NetworkPlaces *const network = NetworkPlaces::ptr();
    if (!network)
        return {};
    const QString target = FavoritePlaces::target(place.path());
    return network->entry(target.isEmpty() ? place.path() : target);
}

Entry LocalPlaces::parent(const Entry &place) const
{
    if (m_groups.contains(place))
        return m_computer;
    if (m_fixedPlaces.contains(place))
        return m_places;
    if (!FavoritePlaces::target(place.path()).isEmpty())
        return m_favorites;
    if (!StoragePlaces::deviceId(place.path()).isEmpty())
        return m_storageDevices;
    const NetworkPlaces *const network = NetworkPlaces::ptr();
    return network && place != m_computer ? network->parent(place) : Entry();
}

EntryList LocalPlaces::childEntries(const Entry &entry) const
{
    return childEntries(entry, nullptr);
}

EntryList LocalPlaces::childEntries(const Entry &entry, QAtomicInt *cancel) const
{
    if (entry == m_computer)
        return m_groups;
    if (entry == m_places)
        return m_fixedPlaces;
    if (entry == m_favorites)
        return m_favoritePlaces.entries();
    if (entry == m_storageDevices)
        return m_storagePlaces.entries();
    const NetworkPlaces *const network = NetworkPlaces::ptr();
    if (!network)
        return {};
    const bool isGroup = entry == m_network || entry == m_networkResources;
    const Entry place = isGroup ? entry : networkEntry(entry);
    return place.isNull() ? EntryList() : network->childs(place, cancel);
}

int LocalPlaces::placeOrderIndex(const Entry &place, const Entry &parent) const
{
    if (parent == m_favorites)
        return m_favoritePlaces.indexOf(place.path());
    if (parent == m_storageDevices)
        return m_storagePlaces.indexOf(place.path());
    if (parent == m_computer)
        return m_groups.indexOf(place);
    if (parent == m_places)
        return m_fixedPlaces.indexOf(place);
    const NetworkPlaces *const network = NetworkPlaces::ptr();
    return network ? network->orderIndex(place, parent) : -1;
}

bool LocalPlaces::mayContainContainers(const Entry &place) const
{
    if (m_groups.contains(place))
        return !childEntries(place, nullptr).isEmpty();
    if (place == m_computer)
        return true;
    if (place.isDirPlace()) // the directory may be gone, or was never there
        return place.localPath().isEmpty() || mayHoldContainers(place.localPath());
    const Entry network = networkEntry(place);
    return !network.isNull() && NetworkPlaces::ptr()->mayContainContainers(network);
}

FavoritePlace LocalPlaces::favoritePlace(const Entry &entry) const
{
    return entry.isFavoritePlace() ? FavoritePlace(entry.fileName()) : FavoritePlace();
}

StoragePlace LocalPlaces::storagePlace(const Entry &entry) const
{
    return entry.isStoragePlace() ? m_storagePlaces.storagePlace(entry.path()) : StoragePlace();
}

} // namespace VeskFM
