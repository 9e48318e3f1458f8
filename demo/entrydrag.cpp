// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrydrag.h"

#include <veskfm/clipboard.h>

#include <QAbstractItemView>
#include <QDrag>
#include <QIcon>
#include <QMimeData>
#include <QPainter>

using namespace VeskFM;

namespace
{
constexpr int pictureSize = 48;           // pixels
constexpr int badgePadding = 4;           // likewise
constexpr QPoint pointerOffset(-12, -12); // the picture is below and to the right of the pointer

QPixmap picture(const QAbstractItemView &view, int count)
{
    const QIcon icon = view.currentIndex().siblingAtColumn(0).data(Qt::DecorationRole).value<QIcon>();
    QPixmap result = icon.pixmap(view.window()->windowHandle(), QSize(pictureSize, pictureSize));
    if (count == 1 || result.isNull())
        return result;
    const QString text = view.locale().toString(count);
    QPainter painter(&result);
    QRect badge = view.fontMetrics().boundingRect(text).adjusted(-badgePadding, 0, badgePadding, 0);
    badge.moveBottomRight(QRect(QPoint(), result.size() / result.devicePixelRatio()).bottomRight());
    painter.fillRect(badge, view.palette().highlight());
    painter.setPen(view.palette().color(QPalette::HighlightedText));
    painter.drawText(badge, Qt::AlignCenter, text);
    return result;
}

} // namespace

void dragEntries(QAbstractItemView *view, const EntryList &entries, Qt::DropActions actions)
{
    if (entries.isEmpty())
        return;
    auto *const drag = new QDrag(view); // goes by itself
    drag->setMimeData(Clipboard::ptr()->dragMimeData(entries));
    drag->setPixmap(picture(*view, entries.size()));
    drag->setHotSpot(pointerOffset);
    drag->exec(actions, Qt::CopyAction);
}
