// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "paneltree.h"

#include "entrydelegate.h"
#include "favoritedrops.h"
#include "layoutrepaint.h"

#include <veskfm/iconsize.h>
#include <veskfm/treemodel.h>

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionViewItem>

#include <utility>

using namespace VeskFM;

PanelTree::PanelTree(TreeModel *model, QWidget *parent)
    : QTreeView(parent)
    , m_model(model)
{
    setItemDelegate(new EntryDelegate(this));
    setHeaderHidden(true);
    header()->setSectionResizeMode(QHeaderView::Stretch);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false); // the first click has opened the directory already
    setTextElideMode(Qt::ElideMiddle);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setIconSize(QSize(IconSize::Small, IconSize::Small));
    setIndentation(16);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setFrameShape(NoFrame);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setModel(model);
    repaintOnLayoutChange(this);
    connect(this, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        const Entry entry = entryAt(position);
        if (!entry.isNull())
            Q_EMIT menuRequested(entry, viewport()->mapToGlobal(position));
    });
}

Entry PanelTree::entryAt(const QPoint &position) const
{
    const QModelIndex index = indexAt(position);
    return index.isValid() ? m_model->entryByIndex(index) : Entry();
}

Entry PanelTree::currentEntry() const
{
    return currentIndex().isValid() ? m_model->entryByIndex(currentIndex()) : Entry();
}

// These keys mean what has the focus, not what is selected in a pane.
bool PanelTree::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isOwnKey(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QTreeView::event(event);
}

bool PanelTree::isOwnKey(const QKeyEvent &event)
{
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool isOther = event.key() == Qt::Key_Delete || event.key() == Qt::Key_F2;
    return isReturn ? isPlain || event.modifiers() == Qt::ControlModifier : isOther && isPlain;
}

void PanelTree::keyPressEvent(QKeyEvent *event)
{
    const Entry entry = currentEntry();
    switch (entry.isNull() || !isOwnKey(*event) ? 0 : event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT opened(entry, event->modifiers().testFlag(Qt::ControlModifier));
        break;
    case Qt::Key_Delete:
        Q_EMIT removalRequested(entry);
        break;
    case Qt::Key_F2:
        Q_EMIT renamingRequested(entry);
        break;
    default:
        QTreeView::keyPressEvent(event);
    }
}

void PanelTree::mousePressEvent(QMouseEvent *event)
{
    const Entry entry = event->button() == Qt::LeftButton ? entryAt(event->pos()) : Entry();
    m_pressed = entry.isFavoritePlace() ? entry : Entry();
    m_pressPosition = event->pos();
    QTreeView::mousePressEvent(event);
}

// The model lets no place be dragged, since it is none of the directory's business where a favorite goes.
void PanelTree::mouseMoveEvent(QMouseEvent *event)
{
    const bool far = (event->pos() - m_pressPosition).manhattanLength() >= QApplication::startDragDistance();
    if (!m_pressed.isNull() && event->buttons() == Qt::LeftButton && far)
        dragFavorite(this, std::exchange(m_pressed, {}));
    else
        QTreeView::mouseMoveEvent(event);
}

void PanelTree::mouseReleaseEvent(QMouseEvent *event)
{
    const bool dragged = state() == DraggingState
        || (event->pos() - m_pressPosition).manhattanLength() >= QApplication::startDragDistance();
    const QModelIndex pressed = currentIndex();
    QTreeView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->pos());
    const bool onItem = index.isValid() && visualRect(index).contains(event->pos()); // beside it is the expander
    if (dragged || !onItem)
        return;
    if (event->button() == Qt::MiddleButton)
        Q_EMIT opened(m_model->entryByIndex(index), true);
    else if (event->button() == Qt::LeftButton && index == pressed)
        Q_EMIT opened(m_model->entryByIndex(index), event->modifiers().testFlag(Qt::ControlModifier));
}

// The toolkit goes by what it knew when it laid the rows out, and a leaf is found to be one when it is first painted.
void PanelTree::drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    if (!m_model->hasChildren(index) || (!rootIsDecorated() && !index.parent().isValid()))
        return;
    QStyleOptionViewItem option = viewOptions();
    option.rect = QRect(rect.right() - indentation() + 1, rect.top(), indentation(), rect.height());
    option.state |= QStyle::State_Item | QStyle::State_Children;
    option.state.setFlag(QStyle::State_Open, isExpanded(index));
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    style()->drawPrimitive(QStyle::PE_IndicatorBranch, &option, painter, this);
}
