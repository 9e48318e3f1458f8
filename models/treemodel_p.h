// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "model_p.h"

#include <veskfm/treemodel.h>

namespace VeskFM
{

/// The steps of a model that shows containers on all levels.
class TreeModelPrivate : public ModelPrivate
{
public:
    explicit TreeModelPrivate(TreeModel *model);

    void fetchChildren(ModelItem *item) override;
    void resetItem(ModelItem *item) override;
    QModelIndex indexOfItem(ModelItem *item) const override;
    bool acceptEntry(const Entry &entry) const override;
    VFS::EntryChildFilters childFilters() const override;
    void initItem(ModelItem *item) override;
    void lateInitItem(ModelItem *item) override;

    /// The entries between @p top and @p entry, and @p entry itself; empty when it is @p top or not below it.
    static EntryList pathBelow(const Entry &top, const Entry &entry);
    /// Walks down from the root along @p path, whose first entry is a child of the root, and makes the rows that are
    /// missing. Returns the index of each level that there is.
    QModelIndexList openPath(const EntryList &path);

private:
    ModelItem *openChild(ModelItem *item, const Entry &entry);
};

} // namespace VeskFM
