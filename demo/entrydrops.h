// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QObject>

#include <functional>

class QAbstractItemView;
class QDropEvent;

/// Takes what is dropped on a view, in place of the view, and tells what is to go where.
class EntryDrops : public QObject
{
    Q_OBJECT

public:
    /// The directory or place that a drop goes to; null where nothing can be dropped. Asked for each move of the mouse.
    using Target = std::function<VeskFM::Entry(const QDropEvent &event)>;

    EntryDrops(QAbstractItemView *view, Target target); ///< becomes a child of @p view

Q_SIGNALS:
    /// @param position of the mouse, in the viewport
    void dropped(const VeskFM::EntryList &entries, const VeskFM::Entry &target, Qt::DropAction action,
                 const QPoint &position);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void scrollNearEdge(int y);
    void drop(QDropEvent *event);

    QAbstractItemView *m_view;
    Target m_target;
};
