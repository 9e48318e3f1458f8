// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QListView>

namespace VeskFM
{
class TreeModel;
}
class VisibleRows;

/// A tree of containers in the side panel. A click or Return opens one, with the middle button or Ctrl in the other pane.
///
/// As a view it shows a list, which stays quick however much is expanded (see VisibleRows); its own functions take and
/// give indexes of the tree where nothing else is said.
class PanelTree : public QListView
{
    Q_OBJECT

public:
    explicit PanelTree(VeskFM::TreeModel *model, QWidget *parent = nullptr); ///< @p model must outlive the view

    bool isExpanded(const QModelIndex &treeIndex) const;
    void expand(const QModelIndex &treeIndex);
    void expandAll(); ///< what the model has listed
    void collapse(const QModelIndex &treeIndex);
    void setTopExpandable(bool on);          ///< off: the rows at the top have no expanders. On at first
    void setTopIsHeading(bool on);           ///< the rows at the top are drawn as headings. Off at first
    void goTo(const QModelIndex &treeIndex); ///< to the row of it, which has to be visible; scrolls there

    QModelIndex treeIndexOf(const QModelIndex &row) const; ///< of a row of this view
    QModelIndex treeIndexAt(const QPoint &position) const;
    VeskFM::Entry entryAt(const QPoint &position) const; ///< in the viewport; null beside the rows
    VeskFM::Entry currentEntry() const;

    QModelIndex rowOf(const VeskFM::Entry &entry) const; ///< a row of this view; invalid while it is not visible

    // Of a row of this view; rectangles are in the viewport.
    bool isHeading(const QModelIndex &row) const;
    QRect itemRect(const QModelIndex &row) const;     ///< of picture and name, with all that is free behind them
    QRect expanderRect(const QModelIndex &row) const; ///< empty for a leaf

Q_SIGNALS:
    void opened(const VeskFM::Entry &entry, bool inOtherPane);
    void menuRequested(const VeskFM::Entry &entry, const QPoint &globalPosition);
    void removalRequested(const VeskFM::Entry &entry);
    void renamingRequested(const VeskFM::Entry &entry);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    static bool isOwnKey(const QKeyEvent &event);
    bool moveInTree(int key);
    void setExpanded(const QModelIndex &treeIndex, bool expanded);

    VeskFM::TreeModel *m_model; // borrowed
    VisibleRows *m_rows;
    bool m_isTopExpandable = true;
    bool m_isTopHeading = false;
    QPoint m_pressPosition;
    VeskFM::Entry m_pressed; // a favorite that may be dragged away; null otherwise
};
