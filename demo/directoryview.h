// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTreeView>

namespace VeskFM
{
class Model;
}

/// The table of one directory. A click on a header sorts. Columns that a narrow table has no room for are hidden.
class DirectoryView : public QTreeView
{
    Q_OBJECT

public:
    explicit DirectoryView(VeskFM::Model *model, QWidget *parent = nullptr); ///< @p model must outlive the view

Q_SIGNALS:
    void dragRequested(); ///< of the selected rows

protected:
    void startDrag(Qt::DropActions actions) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOutColumns();
    void hideWhatDoesNotFit();
    void sortByHeader(int column, Qt::SortOrder order);
    void showSorting();

    VeskFM::Model *m_model;    // borrowed
    QVector<int> m_importance; // columns, those first that are hidden last
};
