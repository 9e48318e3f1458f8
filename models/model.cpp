// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/model.h>

#include "model_p.h"
#include "waitcursor.h"

#include <veskfm/clipboard.h>
#include <veskfm/entryviewparameters.h>
#include <veskfm/propertyenumerator.h>
#include <veskplatform/entrywatcher.h>

#include <QDataStream>
#include <QSet>

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

Model::Model(Mode mode, QFlags<ModelFilter::EntryFilter> filters, QObject *parent)
    : Model(*new ModelPrivate(this), mode, filters, parent)
{
}

Model::Model(ModelPrivate &privatePart, Mode mode, QFlags<ModelFilter::EntryFilter> filters, QObject *parent)
    : QAbstractItemModel(parent)
    , d(&privatePart)
{
    d->initialise(mode, filters);
}

Model::~Model()
{
    d->deleteRoot(); // while the private part, which the items need, is still whole
}

QModelIndex Model::index(int row, int column, const QModelIndex &parent) const
{
    ModelItem *const child = d->root ? d->root->child(row) : nullptr;
    return child && hasIndex(row, column, parent) ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex Model::parent(const QModelIndex &) const
{
    return {};
}

int Model::rowCount(const QModelIndex &parent) const
{
    const ModelItem *const item = itemOf(parent);
    return d->root && (!item || item == d->root.get()) ? d->root->childCount() : 0;
}

int Model::columnCount(const QModelIndex &) const
{
    return ModelItem::columnCount(this);
}

bool Model::hasChildren(const QModelIndex &parent) const
{
    return !parent.isValid() && rowCount() > 0;
}

QVariant Model::data(const QModelIndex &index, int role) const
{
    ModelItem *const item = index.isValid() ? itemOf(index) : d->root.get();
    if (!item)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        // Each time, not once: the watcher may have forgotten, and a text that is asked for is on the screen.
        if (d->sizePropertyIndex != -1 && item->data(BadEntryRole, d->sizePropertyIndex).toBool())
            VFS::ptr()->entryWatcher()->addBadEntry(item->entry());
        break;
    case Qt::DecorationRole:
        if (item->needsRefine()) // it is painted: now the expensive values are worth it
            item->delayedRefine();
        break;
    case SizeValueRole:
        return d->sizePropertyIndex == -1 ? QVariant() : item->data(SizeValueRole, d->sizePropertyIndex);
    default:
        break;
    }
    return item->data(role, index.column());
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal ? ModelItem::headerData(this, section, role) : QVariant();
}

QStringList Model::mimeTypes() const
{
    return {QStringLiteral("text/uri-list"), QStringLiteral("text/uri-copy-list"),
            QStringLiteral("text/uri-move-list")};
}

QMimeData *Model::mimeData(const QModelIndexList &indexes) const
{
    EntryList entries;
    QSet<Entry> known; // a selected row has an index for each column
    for (const QModelIndex &index : indexes) {
        const Entry entry = index.isValid() ? entryByIndex(index) : Entry();
        if (!index.isValid() || known.contains(entry))
            continue;
        known.insert(entry);
        entries.append(entry);
    }
    return Clipboard::ptr()->dragMimeData(entries);
}

bool Model::dropMimeData(const QMimeData *, Qt::DropAction, int, int, const QModelIndex &)
{
    return false;
}

Qt::DropActions Model::supportedDropActions() const
{
    return Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
}

void Model::fetchMore(const QModelIndex &parent)
{
    ModelItem *const item = itemOf(parent); // an invalid index has none: the root is fetched by rebuild()
    if (item && !item->isChildsInited())
        d->fetchChildren(item);
}

bool Model::canFetchMore(const QModelIndex &parent) const
{
    const ModelItem *const item = parent.isValid() ? itemOf(parent) : d->root.get();
    return item && !item->isChildsInited();
}

Qt::ItemFlags Model::flags(const QModelIndex &index) const
{
    const ModelItem *const item = itemOf(index);
    if (!item)
        return Qt::ItemIsEnabled;
    Qt::ItemFlags flags = Qt::ItemIsEnabled;
    flags.setFlag(Qt::ItemIsSelectable, !item->isDotDotDir());
    if (index.column() != 0)
        return flags;
    const Entry &entry = item->entry();
    flags.setFlag(Qt::ItemIsDragEnabled, d->mode == DesktopMode || !entry.isPlace());
    flags.setFlag(Qt::ItemIsDropEnabled, entry.isDir() || entry.isDirPlace() || entry.isArchiveMountPoint());
    return flags;
}

void Model::sort(int column, Qt::SortOrder order)
{
    rebuildWithPropertySortIndex(column, order == Qt::DescendingOrder ? Descending : Ascending);
}

QModelIndexList Model::pathIndexList(const Entry &entry)
{
    if (!d->root || entry.isNull())
        return {};
    const EntryList path = VFS::ptr()->pathEntryList(entry);
    const QString rootPath = d->root->entry().localPath();
    const auto isRoot = [&rootPath](const Entry &step) { return step.localPath() == rootPath; };
    if (std::none_of(path.cbegin(), path.cend(), isRoot))
        return {};
    d->fetchChildren(d->root.get());
    return {d->indexOfItem(d->root->child(entry))};
}

QModelIndex Model::indexOfEntry(const Entry &entry)
{
    return d->root ? d->indexOfItem(d->root->child(entry)) : QModelIndex();
}

Entry Model::actualRootEntry() const
{
    return d->root ? d->root->entry() : Entry();
}

Entry Model::entryByIndex(const QModelIndex &index) const
{
    const ModelItem *const item = index.isValid() ? itemOf(index) : d->root.get();
    return item ? item->entry() : Entry();
}

EntryList Model::indexesToEntries(const QModelIndexList &indexes) const
{
    EntryList entries;
    for (const QModelIndex &index : indexes) {
        if (index.column() == 0)
            entries.append(entryByIndex(index));
    }
    return entries;
}

bool Model::isHiddenChild(const Entry &entry) const
{
    for (Entry step = entry; !step.isNull(); step = VFS::ptr()->parent(step)) {
        if (step.isHidden())
            return true;
    }
    return false;
}

QDataStream &operator<<(QDataStream &stream, const Model::Mode &mode)
{
    return stream << qint32(mode);
}

QDataStream &operator>>(QDataStream &stream, Model::Mode &mode)
{
    qint32 value = 0;
    stream >> value;
    mode = Model::Mode(value);
    return stream;
}

} // namespace VeskFM
