// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "findresults.h"

#include <veskfm/clipboard.h>
#include <veskfm/model.h>
#include <veskfm/propertydataholder.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>
#include <veskplatform/vfs.h>

#include <QMimeData>
#include <QtConcurrentRun>

#include <algorithm>
#include <numeric>

using namespace VeskFM;

namespace
{
constexpr int mostHolders = 1000; // more rows than fit on any screen
}

FindResults::FindResults(QObject *parent)
    : QAbstractTableModel(parent)
    , m_properties(Props::ptr()->propertyEnumerator())
{
    m_properties->startProcessing();
    connect(m_properties, &PropertyEnumerator::dataHoldersUpdated, this, &FindResults::showValues);
    connect(&m_sorter, &QFutureWatcherBase::finished, this, &FindResults::takeSorted);
}

FindResults::~FindResults()
{
    releaseHolders();
    m_entries.clearInBackground();
    m_properties->stopProcessing();
}

void FindResults::clear(const Entry &start)
{
    beginResetModel();
    releaseHolders();
    m_sorter.setFuture({}); // what is being sorted is not wanted any more
    m_entries.clearInBackground();
    m_places.clear();
    m_start = start.localPath().isEmpty() ? start.path() : start.localPath();
    if (!m_start.endsWith(QLatin1Char('/')))
        m_start += QLatin1Char('/');
    endResetModel();
}

void FindResults::append(Entry *entries, int count)
{
    if (count <= 0)
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + count - 1);
    for (int i = 0; i < count; ++i) {
        m_places.push_back(int(m_entries.size()));
        m_entries.append(std::move(entries[i]));
    }
    endInsertRows();
}

Entry FindResults::entry(int row) const
{
    return row >= 0 && row < rowCount() ? m_entries.at(size_t(m_places[size_t(row)])) : Entry();
}

QString FindResults::internalColumnName(int column) const
{
    return column == FolderColumn ? QString()
                                  : m_properties->propertyNameData(propertyOf(column), Model::SortKeyRole).toString();
}

bool FindResults::isSortable(int column) const
{
    return column <= FolderColumn || internalColumnName(column) == QLatin1String("Size");
}

void FindResults::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || !isSortable(column))
        return;
    const EntryOrder by = column == NameColumn ? EntryOrder::Name
        : column == FolderColumn               ? EntryOrder::Folder
                                               : EntryOrder::Size;
    m_sorter.setFuture(QtConcurrent::run(&sortedPlaces, m_entries, by, order == Qt::DescendingOrder));
}

void FindResults::takeSorted()
{
    if (m_sorter.isCanceled()) // nothing was asked for
        return;
    const std::vector<int> sorted = m_sorter.result();
    m_sorter.setFuture({});
    beginResetModel();
    releaseHolders();
    std::copy(sorted.begin(), sorted.end(), m_places.begin()); // there may be more rows by now, behind them
    std::iota(m_places.begin() + long(sorted.size()), m_places.end(), int(sorted.size()));
    endResetModel();
}

int FindResults::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_places.size());
}

int FindResults::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_properties->count() + 1;
}

/// The number in the engine; the folder, which it does not know, stands behind the name.
int FindResults::propertyOf(int column)
{
    return column < FirstPropertyColumn ? 0 : column - 1;
}

QVariant FindResults::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Entry found = entry(index.row());
    if (index.column() != FolderColumn)
        return holder(index.row())->propertyValueData(found, propertyOf(index.column()), role, m_properties);
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? folderOf(found) : QVariant();
}

QVariant FindResults::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (section != FolderColumn)
        return m_properties->propertyNameData(propertyOf(section), role);
    return role == Qt::DisplayRole ? tr("Folder") : QVariant();
}

Qt::ItemFlags FindResults::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

QStringList FindResults::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

QMimeData *FindResults::mimeData(const QModelIndexList &indexes) const
{
    EntryList entries;
    for (const QModelIndex &index : indexes) {
        if (index.column() == NameColumn)
            entries.append(entry(index.row()));
    }
    return entries.isEmpty() ? nullptr : Clipboard::ptr()->dragMimeData(entries);
}

Qt::DropActions FindResults::supportedDragActions() const
{
    return Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
}

QString FindResults::folderOf(const Entry &entry) const
{
    const QString folder = VFS::parentDirPath(entry.path()) + QLatin1Char('/');
    const QString shown = folder.startsWith(m_start) ? folder.mid(m_start.size()) : folder;
    return shown.size() > 1 ? shown.chopped(1) : shown;
}

PropertyDataHolder *FindResults::holder(int row) const
{
    if (PropertyDataHolder *const known = m_holders.value(row))
        return known;
    if (m_rowsWithHolders.size() >= mostHolders)
        releaseHolder(m_rowsWithHolders.dequeue());
    const Entry found = entry(row);
    PropertyDataHolder *const made = m_properties->allocPropertyDataHolder(found);
    m_holders.insert(row, made);
    m_rowsOfHolders.insert(made, row);
    m_rowsWithHolders.enqueue(row);
    if (!made->isRefined())
        made->delayedRefineAllProperties(found, m_properties);
    return made;
}

void FindResults::releaseHolder(int row) const
{
    PropertyDataHolder *const released = m_holders.take(row);
    m_rowsOfHolders.remove(released);
    m_properties->releasePropertyDataHolder(released);
}

void FindResults::releaseHolders()
{
    while (!m_rowsWithHolders.isEmpty())
        releaseHolder(m_rowsWithHolders.dequeue());
}

void FindResults::showValues(const EntryPropertyRequestList &requests)
{
    for (const EntryPropertyRequest &request : requests) {
        const int row = m_rowsOfHolders.value(request.holder, -1);
        if (row >= 0)
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
}
