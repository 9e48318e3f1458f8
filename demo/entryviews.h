// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "entrydrops.h"

#include <veskfm/iconsize.h>
#include <veskplatform/entrylist.h>

#include <QItemSelection>
#include <QStackedWidget>

class DirectoryView;
class IconView;
class QAbstractItemView;
class QDropEvent;
class QLabel;

namespace VeskFM
{
class Model;
}

/// A directory as a table or as icons, with one selection for both.
class EntryViews : public QStackedWidget
{
    Q_OBJECT

public:
    enum Mode { Table, Icons };

    explicit EntryViews(VeskFM::Model *model, QWidget *parent = nullptr); ///< @p model must outlive the views

    Mode mode() const;
    void setMode(Mode mode);
    VeskFM::IconSize entryIconSize() const; ///< of the mode that is shown; each has its own
    void setEntryIconSize(VeskFM::IconSize size);
    VeskFM::IconSize entryIconSize(Mode mode) const { return m_sizes[mode]; }
    void setEntryIconSize(Mode mode, VeskFM::IconSize size);
    void zoom(int steps); ///< up, or down when negative
    void resetZoom();
    QAbstractItemView *view() const; ///< the one that is shown
    DirectoryView *table() const { return m_table; }

    QItemSelectionModel *selectionModel() const;
    VeskFM::EntryList selectedEntries() const; ///< in the order of the rows
    VeskFM::Entry currentEntry() const;        ///< null without a cursor
    void selectAll();
    void invertSelection();
    /// Selects the row of @p entry and scrolls to it. When it has none, the cursor goes to the first row at least.
    void showEntry(const VeskFM::Entry &entry);
    QRect nameRect(const QModelIndex &index) const; ///< in the viewport of view()

    /// Text in the middle of the view while it has no entries.
    void setEmptyText(const QString &text);

Q_SIGNALS:
    void entryActivated(const VeskFM::Entry &entry);
    void modeChanged(EntryViews::Mode mode);
    void entryIconSizeChanged(VeskFM::IconSize size); ///< of the mode that is shown, also when that is another one now
    void selectionChanged();                          ///< by the user or because rows came and went
    /// @param target the directory under the pointer, else the one that is shown
    void entriesDropped(const VeskFM::EntryList &entries, const VeskFM::Entry &target, Qt::DropAction action);
    void dragRequested(); ///< of what is selected
    void menuRequested(const QPoint &globalPosition);
    void focused();
    void tabPressed();
    void escapePressed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void adopt(QAbstractItemView *view);
    void applyIconSize(Mode mode);
    int firstRow() const;
    QItemSelection allRows() const;
    bool onKey(QAbstractItemView *view, int key, Qt::KeyboardModifiers modifiers);
    bool onWheel(int delta, Qt::KeyboardModifiers modifiers);
    EntryDrops::Place dropPlace(QAbstractItemView *view, const QDropEvent &event) const;

    VeskFM::Model *m_model; // borrowed
    DirectoryView *m_table;
    IconView *m_icons;
    QLabel *m_emptyText;
    VeskFM::IconSize m_sizes[2] = {VeskFM::IconSize::Small, VeskFM::IconSize::VeryLarge};
};
