// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What a model does with what the watcher tells.

#include "itemcomparison.h"
#include "itemsorter.h"
#include "model_p.h"

#include <algorithm>

namespace VeskFM
{

namespace
{

bool isContainer(const Entry &entry)
{
    return entry.isDir() || entry.isDirPlace() || entry.isArchiveMountPoint();
}

} // namespace

/// Calls @p handler for each item that shows @p entry, unless it went away meanwhile: with one above it that was handled
/// before, or by a slot.
template <typename Handler> void ModelPrivate::forEachShowing(const Entry &entry, Handler &&handler)
{
    const QList<ModelItem *> items = finds(entry);
    for (ModelItem *item : items) {
        if (item == items.first() || finds(entry).contains(item))
            handler(item);
    }
}

void ModelPrivate::onDirListed(const Entry &entry, VFS::EntryChildFilters filters, const EntryList &children)
{
    if (filters != childFilters()) // the watcher answers every model: another one asked for this listing
        return;
    forEachShowing(entry, [&](ModelItem *item) {
        if (!item->isChildsInited())
            addListedChildren(item, children);
    });
}

void ModelPrivate::addListedChildren(ModelItem *item, const EntryList &children)
{
    const Entry entry = item->entry();
    const std::vector<ModelItem *> former = item->childItems();
    const std::vector<ModelItem *> added = acceptedChildren(item, children);
    item->setChildItems(insertedItems(former, added, ItemComparison(item)));
    if (std::any_of(added.begin(), added.end(), [](const ModelItem *child) { return !child->entry().isFile(); }))
        item->setHasNodeChilds(true);
    item->setChildsIniting(false);
    item->setChildsInited(true);

    const int removals = m_removals;
    if (!announceRows(item, former))
        return;
    announceListingState(item);
    if (removals == m_removals)
        Q_EMIT q->dirListed(entry);
}

/// New items for the ".." row and for those of @p children that are to be shown and are not yet, in that order. They
/// have their place in the index, and still have to be put into the list.
std::vector<ModelItem *> ModelPrivate::acceptedChildren(ModelItem *item, const EntryList &children)
{
    std::vector<ModelItem *> accepted;
    accepted.reserve(size_t(children.size()) + 1);
    itemIndex.reserve(itemIndex.size() + size_t(children.size()) + 1);
    const auto accept = [&](const Entry &entry, uint hash) {
        accepted.push_back(new ModelItem(entry, q, item));
        itemIndex.insert(accepted.back(), hash);
    };
    if (showDotDot) {
        const Entry parent = VFS::ptr()->parent(item->entry());
        if (!parent.isNull() && parent != VFS::ptr()->rootEntry()) {
            accept(parent, ItemIndex::hashOf(parent));
            accepted.back()->setDotDotDir(true);
        }
    }
    const bool countDotDot = propertySortIndex != 0; // as ModelItem::child() does
    for (const Entry &child : children) {
        const uint hash = ItemIndex::hashOf(child);
        if (!itemIndex.contains(item, child, hash, countDotDot) && acceptEntry(child))
            accept(child, hash);
    }
    return accepted;
}

/// Announces the rows that came between the @p former ones, run by run. They are in the list already: a listing of
/// thousands of entries so costs a few signals. Returns false when a slot has removed items.
bool ModelPrivate::announceRows(ModelItem *item, const std::vector<ModelItem *> &former)
{
    const std::vector<ModelItem *> rows = item->childItems();
    if (rows.size() == former.size())
        return true;
    const QModelIndex parent = indexOfItem(item);
    if (!parent.isValid() && item != root.get())
        return true; // from a listing for others, too deep for a flat model to have an index
    const int removals = m_removals;
    const auto announce = [&](size_t first, size_t end) {
        if (first < end) {
            q->beginInsertRows(parent, int(first), int(end) - 1);
            q->endInsertRows();
        }
        return removals == m_removals;
    };
    size_t from = 0;
    for (ModelItem *old : former) {
        const auto position = std::find(rows.begin() + std::ptrdiff_t(from), rows.end(), old);
        const size_t end = size_t(position - rows.begin());
        if (!announce(from, end))
            return false;
        from = end + 1;
    }
    return announce(from, rows.size());
}

void ModelPrivate::onEntryCreated(const Entry &entry)
{
    if (!finds(entry).isEmpty()) { // also when it is shown elsewhere, as by the ".." row, and has no row here
        refreshItems(entry);
        return;
    }
    if (!acceptEntry(entry))
        return;
    forEachShowing(VFS::ptr()->parent(entry), [&](ModelItem *parent) {
        if (parent->isChildsInited()) {
            insertItem(parent, entry);
        } else if (isContainer(entry) && !parent->hasNodeChilds()) {
            parent->setHasNodeChilds(true); // a tree shows an expander without listing
            const QModelIndex index = indexOfItem(parent);
            Q_EMIT q->dataChanged(index, index);
        }
    });
}

void ModelPrivate::onEntryChanged(const Entry &entry)
{
    if (!finds(entry).isEmpty())
        refreshItems(entry);
}

void ModelPrivate::refreshItems(const Entry &fresh)
{
    Q_EMIT q->layoutAboutToBeChanged();
    const QList<ModelItem *> items = finds(fresh);
    for (ModelItem *item : items) {
        item->takeFresher(fresh);
        item->refresh();
    }
    Q_EMIT q->layoutChanged();
}

void ModelPrivate::onEntryDeleted(const Entry &entry)
{
    forEachShowing(entry, [this](ModelItem *item) {
        if (item->parent())
            removeItem(item);
    });
}

void ModelPrivate::onEntryReset(const Entry &entry)
{
    forEachShowing(entry, [this](ModelItem *item) { resetItem(item); });
}

} // namespace VeskFM
