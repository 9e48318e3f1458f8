// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "selectionkeeper.h"

#include <veskfm/model.h>

#include <QItemSelectionModel>

using namespace VeskFM;

namespace
{
constexpr int mostRowsToReselect = 1000; // each row is a range of its own for the selection model
} // namespace

SelectionKeeper::SelectionKeeper(Model *model, QItemSelectionModel *selection, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_selection(selection)
{
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &SelectionKeeper::remember);
    connect(model, &QAbstractItemModel::modelReset, this, &SelectionKeeper::restore);
}

void SelectionKeeper::remember()
{
    const QModelIndex current = m_selection->currentIndex();
    m_currentEntry = current.isValid() ? m_model->entryByIndex(current) : Entry();
    const QModelIndexList rows = m_selection->selectedRows();
    m_selectedEntries = rows.size() <= mostRowsToReselect ? m_model->indexesToEntries(rows) : EntryList();
}

// After a sort the rows are back at once; after a rebuild there are none yet, and what was selected is forgotten.
void SelectionKeeper::restore()
{
    if (m_model->rowCount() > 0) {
        QItemSelection selection;
        for (const Entry &entry : qAsConst(m_selectedEntries)) {
            const QModelIndex index = m_model->indexOfEntry(entry);
            selection.select(index, index);
        }
        const QModelIndex current = m_currentEntry.isNull() ? QModelIndex() : m_model->indexOfEntry(m_currentEntry);
        m_selection->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        m_selection->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        if (current.isValid())
            Q_EMIT restored();
    }
    m_currentEntry = Entry();
    m_selectedEntries.clear();
}
