// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "entrysorter.h"

#include <veskfm/entrypropertyrequest.h>
#include <veskplatform/entrylist.h>

#include <QAbstractTableModel>
#include <QFutureWatcher>
#include <QHash>
#include <QQueue>

#include <vector>

namespace VeskFM
{
class PropertyEnumerator;
}

/// Entries from anywhere as rows: name, folder, and the other columns of the property engine. Values are asked of the
/// engine for rows that are shown only, and computed in the background.
class FindResults : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, FolderColumn, FirstPropertyColumn };

    explicit FindResults(QObject *parent = nullptr);
    ~FindResults() override;

    void clear(const VeskFM::Entry &start);         ///< folders are shown relative to @p start from now on
    void append(VeskFM::Entry *entries, int count); ///< takes them out of the array
    VeskFM::Entry entry(int row) const;             ///< null out of range
    QString internalColumnName(int column) const;   ///< empty for the folder

    /// Puts the rows into another order as soon as a worker has found it; rows that come meanwhile and later follow behind.
    /// Ignored for a column that has no order here.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    bool isSortable(int column) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override;

private:
    static int propertyOf(int column);
    void takeSorted();
    QString folderOf(const VeskFM::Entry &entry) const;
    VeskFM::PropertyDataHolder *holder(int row) const;
    void releaseHolder(int row) const;
    void releaseHolders();
    void showValues(const VeskFM::EntryPropertyRequestList &requests);

    VeskFM::PropertyEnumerator *const m_properties; // borrowed from Props
    EntryStore m_entries;
    std::vector<int> m_places; // in the store, by row
    QFutureWatcher<std::vector<int>> m_sorter;
    QString m_start;                                                        // path, with "/" at its end
    mutable QHash<int, VeskFM::PropertyDataHolder *> m_holders;             // by row, one reference each
    mutable QHash<const VeskFM::PropertyDataHolder *, int> m_rowsOfHolders; // the other way round
    mutable QQueue<int> m_rowsWithHolders;                                  // the oldest first
};
