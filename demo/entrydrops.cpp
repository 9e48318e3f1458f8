// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrydrops.h"

#include "favoritedrops.h"

#include <veskfm/clipboard.h>

#include <QAbstractItemView>
#include <QDropEvent>
#include <QRubberBand>
#include <QScrollBar>

using namespace VeskFM;

namespace
{
constexpr int scrollMargin = 24; // pixels from the edge

bool isKnown(const QMimeData *data)
{
    return !isFavoriteDrag(data) && !Clipboard::ptr()->actualMimeTypes(data).isEmpty();
}

} // namespace

EntryDrops::EntryDrops(QAbstractItemView *view, Target target)
    : QObject(view)
    , m_view(view)
    , m_target(std::move(target))
    , m_mark(new QRubberBand(QRubberBand::Rectangle, view->viewport()))
{
    view->setAcceptDrops(true);
    view->viewport()->installEventFilter(this);
}

bool EntryDrops::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter: // a row that does not take it is followed by one that may
        event->setAccepted(isKnown(static_cast<QDragEnterEvent *>(event)->mimeData()));
        return true;
    case QEvent::DragMove:
        move(static_cast<QDragMoveEvent *>(event));
        return true;
    case QEvent::DragLeave:
        m_mark->hide();
        return true;
    case QEvent::Drop:
        drop(static_cast<QDropEvent *>(event));
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void EntryDrops::move(QDragMoveEvent *event)
{
    scrollNearEdge(event->pos().y());
    const Place place = isKnown(event->mimeData()) ? m_target(*event) : Place();
    event->setAccepted(!place.target.isNull());
    m_mark->setGeometry(place.mark);
    m_mark->setVisible(!place.target.isNull() && !place.mark.isEmpty());
}

void EntryDrops::scrollNearEdge(int y)
{
    QScrollBar *const bar = m_view->verticalScrollBar();
    if (y < scrollMargin)
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (y > m_view->viewport()->height() - scrollMargin)
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
}

void EntryDrops::drop(QDropEvent *event)
{
    m_mark->hide();
    const Entry target = m_target(*event).target;
    const EntryList entries = Clipboard::ptr()->dropEntries(event->mimeData());
    if (target.isNull() || entries.isEmpty()) {
        event->ignore();
        return;
    }
    const Qt::DropAction action = event->dropAction();
    event->setDropAction(Qt::CopyAction); // the service takes the originals of a move away, not the source of the drag
    event->accept();
    Q_EMIT dropped(entries, target, action, event->pos());
}
