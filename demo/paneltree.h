// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QTreeView>

namespace VeskFM
{
class TreeModel;
}

/// A tree of containers in the side panel. A click or Return opens one, with the middle button or Ctrl in the other pane.
class PanelTree : public QTreeView
{
    Q_OBJECT

public:
    explicit PanelTree(VeskFM::TreeModel *model, QWidget *parent = nullptr); ///< @p model must outlive the view

    VeskFM::Entry entryAt(const QPoint &position) const; ///< in the viewport; null beside the rows
    VeskFM::Entry currentEntry() const;

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
    void drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const override;

private:
    static bool isOwnKey(const QKeyEvent &event);

    VeskFM::TreeModel *m_model; // borrowed
    QPoint m_pressPosition;
    VeskFM::Entry m_pressed; // a favorite that may be dragged away; null otherwise
};
