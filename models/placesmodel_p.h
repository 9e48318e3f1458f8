// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "treemodel_p.h"

#include <veskfm/placesmodel.h>

namespace VeskFM
{

/// The steps of a tree whose top level is put together from the groups of places and the extra entries.
class PlacesModelPrivate : public TreeModelPrivate
{
public:
    explicit PlacesModelPrivate(PlacesModel *model);

    void fetchChildren(ModelItem *item) override;
    void resetItem(ModelItem *item) override;
    bool acceptEntry(const Entry &entry) const override;

    void start();             ///< shows the places, and follows the setting and the watcher
    bool showsPlaces() const; ///< not when somebody has rebuilt the model on a directory
    void addExtra(const Entry &entry);
    void removeExtra(const Entry &entry);
    EntryList pathTo(const Entry &entry) const; ///< from a row of the top level down

    EntryList extras;

private:
    bool isHiddenRoot(const Entry &entry) const;
    bool acceptBelow(const Entry &parent, const Entry &entry) const;
    EntryList topLevel() const;
    void fillTopLevel();
    void followSetting();
    void updateRows(const Entry &parent, const EntryList &wanted);
    void removeVanished(const Entry &place, const EntryList &children);
    void removeRow(const Entry &parent, const Entry &entry);
    ModelItem *listedItem(const Entry &entry) const;
    EntryList nearestPlace(const Entry &entry) const;

    QStringList m_hiddenRoots; // names
    EntryList m_listedAgain;   // places with rows, once for each listing under way
};

} // namespace VeskFM
