// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "favoritedrops.h"

#include "paneltree.h"

#include <veskfm/clipboard.h>
#include <veskplatform/favorites.h>
#include <veskplatform/vfs.h>
#include <veskplatform/vfsplacebase.h>

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QRubberBand>

#include <algorithm>

using namespace VeskFM;

namespace
{
const QString favoriteFormat = QStringLiteral("application/x-vesk-favorite"); // holds its path
constexpr int markHeight = 3;                                                 // pixels

Entry draggedFavorite(const QMimeData *data)
{
    return VFS::ptr()->entry(QString::fromUtf8(data->data(favoriteFormat)));
}

bool areFavorable(const EntryList &entries)
{
    return !entries.isEmpty() && std::all_of(entries.cbegin(), entries.cend(), &Favorites::canAdd);
}

} // namespace

bool isFavoriteDrag(const QMimeData *data)
{
    return data->hasFormat(favoriteFormat);
}

void dragFavorite(PanelTree *places, const Entry &favorite)
{
    auto *const data = new QMimeData;
    data->setData(favoriteFormat, favorite.path().toUtf8());
    auto *const drag = new QDrag(places); // goes by itself
    drag->setMimeData(data);
    drag->setPixmap(places->currentIndex().data(Qt::DecorationRole).value<QIcon>().pixmap(places->iconSize()));
    drag->exec(Qt::MoveAction);
}

FavoriteDrops::FavoriteDrops(PanelTree *places, QWidget *window)
    : QObject(places)
    , m_places(places)
    , m_window(window)
    , m_mark(new QRubberBand(QRubberBand::Line, places->viewport()))
{
    places->viewport()->installEventFilter(this);
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

bool FavoriteDrops::eventFilter(QObject *watched, QEvent *event)
{
    return watched == m_window ? onWindowEvent(event) : onPanelEvent(event);
}

bool FavoriteDrops::onPanelEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        if (!isFavoriteDrag(static_cast<QDragEnterEvent *>(event)->mimeData()))
            return false;
        event->accept();
        return true;
    case QEvent::DragMove:
    case QEvent::Drop: {
        auto *const drop = static_cast<QDropEvent *>(event);
        const Gap gap = gapAt(*drop);
        m_mark->setGeometry(gap.mark);
        m_mark->setVisible(gap.exists && event->type() == QEvent::DragMove);
        drop->setAccepted(gap.exists);
        if (gap.exists && event->type() == QEvent::Drop)
            this->drop(*drop, gap.position);
        return gap.exists || isFavoriteDrag(drop->mimeData());
    }
    case QEvent::DragLeave:
        m_mark->hide();
        return false;
    default:
        return false;
    }
}

// Nobody below the window takes a favorite: such a drag only gets here where it is out of the panel.
bool FavoriteDrops::onWindowEvent(QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    auto *const drop = static_cast<QDropEvent *>(event);
    if (!isFavoriteDrag(drop->mimeData()))
        return false;
    drop->acceptProposedAction();
    QString error;
    if (type == QEvent::Drop && !Favorites::remove(draggedFavorite(drop->mimeData()), &error))
        Q_EMIT failed(error);
    return true;
}

FavoriteDrops::Gap FavoriteDrops::gapAt(const QDropEvent &event) const
{
    const bool isFavorite = isFavoriteDrag(event.mimeData());
    const Entry entry = m_places->entryAt(event.pos());
    if (!isFavorite && !areFavorable(Clipboard::ptr()->dropEntries(event.mimeData())))
        return {};
    const QModelIndex index = m_places->treeIndexAt(event.pos());
    const QRect row = m_places->itemRect(m_places->indexAt(event.pos()));
    const auto line = [&row](int y) { return QRect(row.left(), y - markHeight / 2, row.width(), markHeight); };
    if (entry.isFavoritesPlace())
        return {true, -1, row};
    if (!entry.isFavoritePlace())
        return {};
    const int edge = row.height() / (isFavorite ? 2 : 4);
    if (event.pos().y() <= row.top() + edge)
        return {true, index.row(), line(row.top())};
    if (event.pos().y() >= row.bottom() - edge)
        return {true, index.row() + 1, line(row.bottom())};
    return {};
}

void FavoriteDrops::drop(const QDropEvent &event, int position)
{
    QString error;
    if (isFavoriteDrag(event.mimeData())) {
        const Entry favorite = draggedFavorite(event.mimeData());
        const EntryList all = VFS::ptr()->placeBase()->childEntries(VFS::ptr()->favoritesEntry());
        const int former = all.indexOf(favorite);
        const int target = former >= 0 && former < position ? position - 1 : position; // it leaves a gap behind
        if (!Favorites::move(favorite, target, &error))
            Q_EMIT failed(error);
        return;
    }
    const EntryList entries = Clipboard::ptr()->dropEntries(event.mimeData());
    for (const Entry &entry : entries) {
        if (!Favorites::add(entry, position, &error))
            Q_EMIT failed(error);
        else if (position >= 0)
            ++position;
    }
}
