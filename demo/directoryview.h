// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/iconsize.h>
#include <veskplatform/entrylist.h>

#include <QTimer>
#include <QTreeView>

class EntryDelegate;

namespace VeskFM
{
class Model;
}

/// The table of one directory. A click on a header sorts, activating a row tells which entry was meant.
class DirectoryView : public QTreeView
{
    Q_OBJECT

public:
    explicit DirectoryView(VeskFM::Model *model, QWidget *parent = nullptr); ///< @p model must outlive the view

    VeskFM::IconSize entryIconSize() const;
    void setEntryIconSize(VeskFM::IconSize size);

    /// Selects the row of @p entry and scrolls to it. When it has none, the cursor goes to the first row at least.
    void showEntry(const VeskFM::Entry &entry);
    /// Text in the middle of the view while it has no entries.
    void setEmptyText(const QString &text);

Q_SIGNALS:
    void entryActivated(const VeskFM::Entry &entry);
    void entryIconSizeChanged(VeskFM::IconSize size);
    void selectedRowsChanged(); ///< by the user or because rows came and went
    /// @param target the directory under the pointer, else the one that is shown
    void entriesDropped(const VeskFM::EntryList &entries, const VeskFM::Entry &target, Qt::DropAction action);

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void repaintOnLayoutChange();
    void layOutColumns();
    void sortByHeader(int column, Qt::SortOrder order);
    void showSorting();
    void holdPicture();
    void releasePicture();
    VeskFM::Entry dropTarget(const QDropEvent *event) const;
    void rememberSelection();
    void restoreSelection();

    VeskFM::Model *m_model; // borrowed
    EntryDelegate *m_delegate;
    VeskFM::IconSize m_iconSize;
    QString m_emptyText;
    QTimer m_pictureTimer;        // running while the picture is held
    VeskFM::Entry m_currentEntry; // these two across a reset of the model
    VeskFM::EntryList m_selectedEntries;
};
