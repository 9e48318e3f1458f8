// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/treemodel.h>

namespace VeskFM
{

class PlacesModelPrivate;

/// The tree of a side panel: the groups of places (favorites, places, storage devices, network, network resources), the
/// places in them, and the directories below those. Extra entries of the application come behind the groups,
/// unless they are places that the registry sorts otherwise.
///
/// It shows these from the start: their rows arrive from the event loop after the construction, as after rebuild().
/// Places stand in the order of the place registry. What Settings::hiddenTreeItems() names is left out, and changes of
/// that setting are followed row by row, so that expanded branches stay.
///
/// The names of roots in that setting are those of rootName():
/// | name               | root                                   |
/// |--------------------|----------------------------------------|
/// | "Favorites"        | the group VFS::favoritesEntry()        |
/// | "Places"           | the group VFS::placesEntry()           |
/// | "StorageDevices"   | the group VFS::storageDevicesEntry()   |
/// | "Network"          | the group VFS::networkEntry()          |
/// | "NetworkResources" | the group VFS::networkResourcesEntry() |
/// | "FileSystem"       | the place of the file system's root    |
/// | "Home"             | the place of the home directory        |
/// | "Trash"            | the place of the trash                 |
///
/// Thread: the GUI thread.
class VESKFM_EXPORT PlacesModel : public TreeModel
{
    Q_OBJECT

public:
    explicit PlacesModel(QObject *parent = nullptr);
    ~PlacesModel() override;

    /// The name of a root in Settings::hiddenTreeItems(); empty for any other entry, which cannot be hidden so.
    static QString rootName(const Entry &entry);

    /// Shows @p entry, a container, as a row of the top level until it is removed, whatever is hidden. While it does
    /// not exist it has no row. Ignored when it is null, a file, or there already.
    void addExtraEntry(const Entry &entry);
    void removeExtraEntry(const Entry &entry);
    EntryList extraEntries() const; ///< in the order in which they were added

    /// Opens the shown place that is nearest to @p entry, and from there the way down; empty when none leads there.
    /// Places that are hidden are not opened.
    QModelIndexList pathIndexList(const Entry &entry) override;

private:
    Q_DISABLE_COPY(PlacesModel)
    PlacesModelPrivate *places() const;
};

} // namespace VeskFM
