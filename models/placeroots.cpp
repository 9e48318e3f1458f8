// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placeroots.h"

#include <veskplatform/vfs.h>
#include <veskplatform/vfsplacebase.h>

#include <algorithm>

namespace VeskFM
{

namespace
{

struct NamedGroup
{
    const char *name;
    Entry (VFS::*entry)() const;
};

const NamedGroup groups[] = {{"Favorites", &VFS::favoritesEntry},
                             {"Places", &VFS::placesEntry},
                             {"StorageDevices", &VFS::storageDevicesEntry},
                             {"Network", &VFS::networkEntry},
                             {"NetworkResources", &VFS::networkResourcesEntry}};

EntryList inDisplayOrder(const EntryList &places, const Entry &parent)
{
    const VFSPlaceBase *const registry = VFS::ptr()->placeBase();
    QList<QPair<int, int>> order; // display order, position in the list
    for (int i = 0; i < places.size(); ++i)
        order.append({registry->placeOrderIndex(places.at(i), parent), i});
    std::sort(order.begin(), order.end());
    EntryList ordered;
    for (const auto &place : qAsConst(order))
        ordered.append(places.at(place.second));
    return ordered;
}

} // namespace

EntryList placeGroups()
{
    EntryList found;
    for (const NamedGroup &group : groups) {
        const Entry entry = (VFS::ptr()->*group.entry)();
        if (!entry.isNull())
            found.append(entry);
    }
    return inDisplayOrder(found, VFS::ptr()->rootEntry());
}

EntryList placesOfGroup(const Entry &group)
{
    return inDisplayOrder(VFS::ptr()->placeBase()->childEntries(group), group);
}

QString placeRootName(const Entry &entry)
{
    if (entry.isFileSystemRootPlace())
        return QStringLiteral("FileSystem");
    if (entry.isHomeDirPlace())
        return QStringLiteral("Home");
    if (entry.isTrashDirPlace())
        return QStringLiteral("Trash");
    if (!entry.isPlace())
        return {};
    for (const NamedGroup &group : groups) {
        if (entry == (VFS::ptr()->*group.entry)())
            return QLatin1String(group.name);
    }
    return {};
}

} // namespace VeskFM
