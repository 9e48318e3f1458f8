// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QObject>

class QItemSelectionModel;

namespace VeskFM
{
class Model;
}

/// Carries the selection and the cursor over a reset of the model that keeps the rows, such as another sort order.
class SelectionKeeper : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it. Make it after the views, so that they have heard of a reset first.
    SelectionKeeper(VeskFM::Model *model, QItemSelectionModel *selection, QObject *parent = nullptr);

Q_SIGNALS:
    void restored(); ///< the cursor is on its row again

private:
    void remember();
    void restore();

    VeskFM::Model *m_model;
    QItemSelectionModel *m_selection;
    VeskFM::Entry m_currentEntry; // these two across a reset of the model
    VeskFM::EntryList m_selectedEntries;
};
