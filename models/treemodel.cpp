// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/treemodel.h>

#include "treemodel_p.h"
#include "waitcursor.h"

#include <veskplatform/entrywatcher.h>

#include <algorithm>

namespace VeskFM
{

namespace
{

ModelItem *itemOf(const QModelIndex &index)
{
    return static_cast<ModelItem *>(index.internalPointer());
}

} // namespace

TreeModelPrivate::TreeModelPrivate(TreeModel *model)
    : ModelPrivate(model)
{
}

void TreeModelPrivate::fetchChildren(ModelItem *item)
{
    if (item->isChildsInited())
        return;
    if (item->entry().isTrashDirPlace()) {
        item->setChildsInited(true);
        return;
    }
    item->setChildsIniting(true);
    VFS::ptr()->entryWatcher()->listDir(item->entry(), childFilters());
}

void TreeModelPrivate::resetItem(ModelItem *item)
{
    if (!item)
        return;
    const WaitCursor cursor;
    if (VFS::ptr()->isEntryExists(item->entry()))
        relistItem(item);
    else if (item->parent())
        removeItem(item);
}

QModelIndex TreeModelPrivate::indexOfItem(ModelItem *item) const
{
    QModelIndex index;
    if (!item)
        return index;
    const QList<int> path = item->exploreIndexPath();
    for (const int row : path)
        index = q->index(row, 0, index);
    return index;
}

bool TreeModelPrivate::acceptEntry(const Entry &entry) const
{
    if (!entry.isDir() && !entry.isPlace() && !entry.isArchiveMountPoint())
        return false;
    return filter.showHiddenEntries() || !entry.isHidden();
}

VFS::EntryChildFilters TreeModelPrivate::childFilters() const
{
    return VFS::ContainersOnly | ModelPrivate::childFilters();
}

void TreeModelPrivate::initItem(ModelItem *item)
{
    item->setHasNodeChilds(true);
}

void TreeModelPrivate::lateInitItem(ModelItem *item)
{
    item->setHasNodeChilds(!item->entry().isFile() && VFS::ptr()->mayContainContainers(item->entry()));
}

EntryList TreeModelPrivate::pathBelow(const Entry &top, const Entry &entry)
{
    EntryList path = VFS::ptr()->pathEntryList(entry, top);
    const QString topPath = top.localPath();
    const auto found =
        std::find_if(path.begin(), path.end(), [&topPath](const Entry &step) { return step.localPath() == topPath; });
    path.erase(path.begin(), found == path.end() ? found : found + 1);
    return path;
}

QModelIndexList TreeModelPrivate::openPath(const EntryList &path)
{
    QModelIndexList indexes;
    ModelItem *item = root.get();
    const int removals = m_removals;
    for (const Entry &entry : path) {
        ModelItem *const child = openChild(item, entry);
        if (removals != m_removals) // a slot that heard of a new row did that: nothing found so far is sure to be there
            return {};
        if (!child)
            break;
        indexes.append(q->index(child->row(), 0, indexes.isEmpty() ? QModelIndex() : indexes.last()));
        item = child;
    }
    return indexes;
}

/// The child of @p item for @p entry. Before the listing is there it is made, unasked whether it would be accepted: who
/// goes to a hidden directory wants to see where that is. The listing then finds it and adds the others around it.
ModelItem *TreeModelPrivate::openChild(ModelItem *item, const Entry &entry)
{
    ModelItem *const child = item->child(entry);
    if (child || item->isChildsInited())
        return child;
    if (item->isChildsIniting())
        return insertItem(item, entry);
    ModelItem *const made = insertItemSilently(item, entry);
    fetchChildren(item);
    return made;
}

TreeModel::TreeModel(QFlags<ModelFilter::EntryFilter> filters, QObject *parent)
    : TreeModel(*new TreeModelPrivate(this), TreeMode, filters, parent)
{
}

TreeModel::TreeModel(TreeModelPrivate &privatePart, Mode mode, QFlags<ModelFilter::EntryFilter> filters,
                     QObject *parent)
    : Model(privatePart, mode, filters, parent)
{
}

TreeModel::~TreeModel() = default;

QModelIndex TreeModel::index(int row, int column, const QModelIndex &parent) const
{
    const ModelItem *const item = parent.isValid() ? itemOf(parent) : d->root.get();
    ModelItem *const child = item ? item->child(row) : nullptr;
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex TreeModel::parent(const QModelIndex &index) const
{
    const ModelItem *const item = itemOf(index);
    ModelItem *const above = item ? item->parent() : nullptr;
    return above && above != d->root.get() ? createIndex(above->row(), 0, above) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex &parent) const
{
    if (!d->root)
        return 0;
    return parent.isValid() ? itemOf(parent)->childCount() : d->root->childCount();
}

bool TreeModel::hasChildren(const QModelIndex &parent) const
{
    const ModelItem *const item = parent.isValid() ? itemOf(parent) : d->root.get();
    if (!item)
        return QAbstractItemModel::hasChildren(parent);
    return !item->entry().isTrashDirPlace() && item->hasNodeChilds();
}

QModelIndexList TreeModel::pathIndexList(const Entry &entry)
{
    if (!d->root || entry.isNull())
        return {};
    return static_cast<TreeModelPrivate *>(d.get())->openPath(TreeModelPrivate::pathBelow(d->root->entry(), entry));
}

QModelIndex TreeModel::indexOfEntry(const Entry &entry)
{
    const QModelIndexList path = pathIndexList(entry);
    return path.isEmpty() ? QModelIndex() : path.last();
}

} // namespace VeskFM
