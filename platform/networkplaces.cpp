// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/networkplaces.h>

#include "localvfs.h"

#include <veskplatform/entrywatcher.h>

#include <atomic>

namespace VeskFM
{

namespace
{
std::atomic<NetworkPlaces *> installedPlaces{nullptr};
}

NetworkPlaces::NetworkPlaces(QObject *parent)
    : QObject(parent)
{
}

NetworkPlaces::~NetworkPlaces()
{
    NetworkPlaces *self = this;
    installedPlaces.compare_exchange_strong(self, nullptr);
}

NetworkPlaces *NetworkPlaces::ptr()
{
    return installedPlaces.load(std::memory_order_acquire);
}

NetworkPlaces *NetworkPlaces::install(NetworkPlaces *places)
{
    const VFS *const vfs = VFS::ptr();
    EntryWatcher *const watcher = vfs->entryWatcher();
    NetworkPlaces *const former = installedPlaces.exchange(places, std::memory_order_acq_rel);
    if (former)
        former->disconnect(watcher);
    if (places) {
        connect(places, &NetworkPlaces::entryCreated, watcher, &EntryWatcher::entryCreated, Qt::DirectConnection);
        connect(places, &NetworkPlaces::entryDeleted, watcher, &EntryWatcher::entryDeleted, Qt::DirectConnection);
        connect(places, &NetworkPlaces::entryChanged, watcher, &EntryWatcher::entryChanged, Qt::DirectConnection);
        connect(places, &NetworkPlaces::entryReset, watcher, &EntryWatcher::entryReset, Qt::DirectConnection);
    }
    for (const Entry &group : {vfs->networkEntry(), vfs->networkResourcesEntry()})
        Q_EMIT watcher->entryReset(group);
    if (const auto *const local = qobject_cast<const LocalVfs *>(vfs))
        local->lookAtFavorites(); // some of them are of the network
    return former;
}

int NetworkPlaces::orderIndex(const Entry &, const Entry &) const
{
    return 0;
}

bool NetworkPlaces::mayContainContainers(const Entry &) const
{
    return true;
}

} // namespace VeskFM
