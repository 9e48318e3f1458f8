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
}

FindResults::~FindResults()
{
    releaseHolders();
    m_properties->stopProcessing();
}

void FindResults::clear(const Entry &start)
{
    beginResetModel();
    releaseHolders();
    m_entries = {};
    m_start = start.localPath().isEmpty() ? start.path() : start.localPath();
    if (!m_start.endsWith(QLatin1Char('/')))
        m_start += QLatin1Char('/');
    endResetModel();
}

void FindResults::append(const Entry *entries, int count)
{
    if (count <= 0)
        return;
    const int first = int(m_entries.size());
    beginInsertRows({}, first, first + count - 1);
    m_entries.insert(m_entries.end(), entries, entries + count);
    endInsertRows();
}

Entry FindResults::entry(int row) const
{
    return row >= 0 && size_t(row) < m_entries.size() ? m_entries[size_t(row)] : Entry();
}

QString FindResults::internalColumnName(int column) const
{
    return column == FolderColumn ? QString()
                                  : m_properties->propertyNameData(propertyOf(column), Model::SortKeyRole).toString();
}

int FindResults::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
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
    const Entry &found = m_entries[size_t(index.row())];
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
    const Entry &found = m_entries[size_t(row)];
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
