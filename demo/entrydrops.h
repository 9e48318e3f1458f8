// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QObject>
#include <QRect>

#include <functional>

class QAbstractItemView;
class QDragMoveEvent;
class QDropEvent;
class QRubberBand;

/// Takes what is dropped on a view, in place of the view, and tells what is to go where.
class EntryDrops : public QObject
{
    Q_OBJECT

public:
    struct Place
    {
        VeskFM::Entry target; ///< the directory or place that a drop goes to; null where nothing can be dropped
        QRect mark;           ///< what to mark in the viewport; empty for nothing
    };
    using Target = std::function<Place(const QDropEvent &event)>; ///< asked for each move of the mouse

    EntryDrops(QAbstractItemView *view, Target target); ///< becomes a child of @p view

Q_SIGNALS:
    /// @param position of the mouse, in the viewport
    void dropped(const VeskFM::EntryList &entries, const VeskFM::Entry &target, Qt::DropAction action,
                 const QPoint &position);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void move(QDragMoveEvent *event);
    void scrollNearEdge(int y);
    void drop(QDropEvent *event);

    QAbstractItemView *m_view;
    Target m_target;
    QRubberBand *m_mark;
};
