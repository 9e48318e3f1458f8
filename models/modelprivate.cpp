// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "model_p.h"
#include "waitcursor.h"

#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>
#include <veskplatform/entrywatcher.h>

namespace VeskFM
{

ModelPrivate::ModelPrivate(Model *model)
    : q(model)
{
}

ModelPrivate::~ModelPrivate() = default;

void ModelPrivate::initialise(Model::Mode initialMode, ModelFilter::EntryFilters filters)
{
    mode = initialMode;
    filter.setEntryFilters(filters);
    filter.flushChanges();
    registerEntryMetaTypes();

    EntryWatcher *const watcher = VFS::ptr()->entryWatcher();
    propertyEnumerator = Props::ptr()->propertyEnumerator();
    filter.setPropertyEnumerator(propertyEnumerator);
    for (int i = 0; i < propertyEnumerator->count(); ++i)
        internalPropertyNames.append(propertyEnumerator->propertyNameData(i, Model::SortKeyRole).toString());
    sizePropertyIndex = internalPropertyNames.indexOf(QStringLiteral("Size"));

    const auto listen = [this, watcher](auto signal, void (ModelPrivate::*handler)(const Entry &)) {
        QObject::connect(
            watcher, signal, q, [this, handler](const Entry &entry) { (this->*handler)(entry); }, Qt::QueuedConnection);
    };
    listen(&EntryWatcher::entryCreated, &ModelPrivate::onEntryCreated);
    listen(&EntryWatcher::entryDeleted, &ModelPrivate::onEntryDeleted);
    listen(&EntryWatcher::entryChanged, &ModelPrivate::onEntryChanged);
    listen(&EntryWatcher::entryAttributesChanged, &ModelPrivate::onEntryChanged);
    listen(&EntryWatcher::entryReset, &ModelPrivate::onEntryReset);
    QObject::connect(
        watcher, &EntryWatcher::dirListed, q,
        [this](const Entry &entry, VFS::EntryChildFilters askedFor, const EntryList &children) {
            onDirListed(entry, askedFor, children);
        },
        Qt::QueuedConnection);
    QObject::connect(
        propertyEnumerator, &PropertyEnumerator::dataHoldersUpdated, q,
        [this] {
            Q_EMIT q->layoutAboutToBeChanged();
            Q_EMIT q->layoutChanged();
        },
        Qt::QueuedConnection);
    propertyEnumerator->startProcessing();
}

void ModelPrivate::setRoot(const Entry &entry)
{
    const Entry chosen = entry; // it may be that of the old root
    const WaitCursor cursor;
    q->beginResetModel();
    deleteRoot();
    root = std::make_unique<ModelItem>(chosen, q, nullptr);
    fetchChildren(root.get());
    q->endResetModel();
}

void ModelPrivate::deleteRoot()
{
    if (!root)
        return;
    ++m_removals;
    itemIndex.removeBelow(root.get());
    root.reset();
}

void ModelPrivate::fetchChildren(ModelItem *item)
{
    if (item->isChildsInited() || item->isChildsIniting())
        return;
    item->setChildsIniting(true);
    const Entry entry = item->entry(); // a view may react to the signal with another rebuild
    announceListingState(item);
    VFS::ptr()->entryWatcher()->listDir(entry, childFilters());
}

void ModelPrivate::announceListingState(ModelItem *item)
{
    const QModelIndex index = indexOfItem(item);
    Q_EMIT q->dataChanged(index, index, {Model::ListingRole});
}

void ModelPrivate::resetItem(ModelItem *item)
{
    if (!item)
        return;
    const WaitCursor cursor;
    if (VFS::ptr()->isEntryExists(item->entry()))
        relistItem(item);
}

void ModelPrivate::relistItem(ModelItem *item)
{
    item->refresh();
    if (!removeChildren(item))
        return;
    item->setChildsInited(false);
    fetchChildren(item);
}

QModelIndex ModelPrivate::indexOfItem(ModelItem *item) const
{
    if (!item || item == root.get())
        return {};
    return q->index(item->row(), 0, QModelIndex());
}

bool ModelPrivate::acceptEntry(const Entry &entry) const
{
    return filter.isAllowedEntry(entry);
}

VFS::EntryChildFilters ModelPrivate::childFilters() const
{
    return archivesAreFiles ? VFS::ArchivesAsFiles : VFS::PlainListing;
}

EntryList ModelPrivate::childEntries(const Entry &entry) const
{
    return VFS::ptr()->childs(entry, childFilters(), nullptr);
}

void ModelPrivate::initItem(ModelItem *) {}

void ModelPrivate::lateInitItem(ModelItem *) {}

ModelItem *ModelPrivate::insertItemSilently(ModelItem *parent, const Entry &entry)
{
    auto *const item = new ModelItem(entry, q, parent);
    parent->insertChild(parent->estimatedChildIndex(item), item);
    return item;
}

ModelItem *ModelPrivate::insertItem(ModelItem *parent, const Entry &entry)
{
    auto *const item = new ModelItem(entry, q, parent);
    const int row = parent->estimatedChildIndex(item);
    q->beginInsertRows(indexOfItem(parent), row, row);
    parent->insertChild(row, item);
    q->endInsertRows();
    return item;
}

void ModelPrivate::removeItem(ModelItem *item)
{
    ModelItem *const parent = item->parent();
    const int row = item->row();
    q->beginRemoveRows(indexOfItem(parent), row, row);
    ++m_removals;
    parent->removeChild(item);
    delete item;
    q->endRemoveRows();
}

bool ModelPrivate::removeChildren(ModelItem *item)
{
    const int count = item->childCount();
    if (count == 0)
        return true;
    q->beginRemoveRows(indexOfItem(item), 0, count - 1);
    const int removals = ++m_removals;
    item->deleteChildren();
    q->endRemoveRows();
    return removals == m_removals;
}

QList<ModelItem *> ModelPrivate::finds(const Entry &entry) const
{
    return root ? root->finds(entry) : QList<ModelItem *>();
}

} // namespace VeskFM
