// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrydrag.h"

#include <QAbstractItemView>
#include <QDrag>
#include <QIcon>
#include <QMimeData>
#include <QPainter>

namespace
{
constexpr int pictureSize = 48;           // pixels
constexpr int badgePadding = 4;           // likewise
constexpr QPoint pointerOffset(-12, -12); // the picture is below and to the right of the pointer

QPixmap picture(const QAbstractItemView &view, const QModelIndexList &rows)
{
    const QIcon icon = rows.first().data(Qt::DecorationRole).value<QIcon>();
    QPixmap result = icon.pixmap(view.window()->windowHandle(), QSize(pictureSize, pictureSize));
    if (rows.size() == 1 || result.isNull())
        return result;
    const QString count = view.locale().toString(rows.size());
    QPainter painter(&result);
    QRect badge = view.fontMetrics().boundingRect(count).adjusted(-badgePadding, 0, badgePadding, 0);
    badge.moveBottomRight(QRect(QPoint(), result.size() / result.devicePixelRatio()).bottomRight());
    painter.fillRect(badge, view.palette().highlight());
    painter.setPen(view.palette().color(QPalette::HighlightedText));
    painter.drawText(badge, Qt::AlignCenter, count);
    return result;
}

} // namespace

void dragSelection(QAbstractItemView *view, Qt::DropActions actions)
{
    const QModelIndexList rows = view->selectionModel()->selectedRows();
    QMimeData *const data = rows.isEmpty() ? nullptr : view->model()->mimeData(rows);
    if (!data)
        return;
    auto *const drag = new QDrag(view); // goes by itself
    drag->setMimeData(data);
    drag->setPixmap(picture(*view, rows));
    drag->setHotSpot(pointerOffset);
    drag->exec(actions, Qt::CopyAction);
}
