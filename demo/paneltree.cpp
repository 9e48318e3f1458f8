// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "paneltree.h"

#include "favoritedrops.h"
#include "paneldelegate.h"
#include "visiblerows.h"

#include <veskfm/iconsize.h>
#include <veskfm/treemodel.h>

#include <QApplication>
#include <QKeyEvent>
#include <QStyle>

#include <utility>

using namespace VeskFM;

namespace
{
constexpr int indentation = 16; // pixels for each level, and for the expander
}

PanelTree::PanelTree(TreeModel *model, QWidget *parent)
    : QListView(parent)
    , m_model(model)
    , m_rows(new VisibleRows(model, this))
{
    setItemDelegate(new PanelDelegate(this));
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setIconSize(QSize(IconSize::Small, IconSize::Small));
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setFrameShape(NoFrame);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setModel(m_rows);
    connect(model, &QAbstractItemModel::layoutChanged, viewport(), QOverload<>::of(&QWidget::update));
    connect(this, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        const Entry entry = entryAt(position);
        if (!entry.isNull())
            Q_EMIT menuRequested(entry, viewport()->mapToGlobal(position));
    });
}

bool PanelTree::isExpanded(const QModelIndex &treeIndex) const
{
    return m_rows->isExpanded(treeIndex);
}

void PanelTree::expand(const QModelIndex &treeIndex)
{
    m_rows->expand(treeIndex);
}

void PanelTree::expandAll()
{
    m_rows->expandAll();
}

/// What is current below it would be out of sight: it becomes current itself.
void PanelTree::collapse(const QModelIndex &treeIndex)
{
    QModelIndex current = treeIndexOf(currentIndex()).parent();
    while (current.isValid() && current != treeIndex)
        current = current.parent();
    if (current.isValid())
        goTo(treeIndex);
    m_rows->collapse(treeIndex);
}

void PanelTree::setTopExpandable(bool on)
{
    m_isTopExpandable = on;
    viewport()->update();
}

void PanelTree::setTopIsHeading(bool on)
{
    m_isTopHeading = on;
    viewport()->update();
}

bool PanelTree::isHeading(const QModelIndex &row) const
{
    return m_isTopHeading && m_rows->level(row) == 0;
}

void PanelTree::goTo(const QModelIndex &treeIndex)
{
    const QModelIndex row = m_rows->mapFromSource(treeIndex);
    if (!row.isValid())
        return;
    setCurrentIndex(row);
    scrollTo(row);
}

QModelIndex PanelTree::treeIndexOf(const QModelIndex &row) const
{
    return m_rows->mapToSource(row);
}

QModelIndex PanelTree::treeIndexAt(const QPoint &position) const
{
    return treeIndexOf(indexAt(position));
}

Entry PanelTree::entryAt(const QPoint &position) const
{
    const QModelIndex index = treeIndexAt(position);
    return index.isValid() ? m_model->entryByIndex(index) : Entry();
}

Entry PanelTree::currentEntry() const
{
    return currentIndex().isValid() ? m_model->entryByIndex(treeIndexOf(currentIndex())) : Entry();
}

QModelIndex PanelTree::rowOf(const Entry &entry) const
{
    return m_rows->mapFromSource(m_model->indexOfEntry(entry));
}

QRect PanelTree::itemRect(const QModelIndex &row) const
{
    const int levels = m_rows->level(row) + m_isTopExpandable;
    const QRect whole = visualRect(row);
    return QStyle::visualRect(layoutDirection(), whole, whole.adjusted(levels * indentation, 0, 0, 0));
}

QRect PanelTree::expanderRect(const QModelIndex &row) const
{
    const int left = (m_rows->level(row) + m_isTopExpandable - 1) * indentation;
    const QRect whole = visualRect(row);
    if (left < 0 || !m_rows->isExpandable(row))
        return {};
    return QStyle::visualRect(layoutDirection(), whole,
                              {whole.left() + left, whole.top(), indentation, whole.height()});
}

// These keys mean what has the focus, not what is selected in a pane.
bool PanelTree::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isOwnKey(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QListView::event(event);
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
        if (event->modifiers() & ~Qt::KeypadModifier || !moveInTree(event->key()))
            QListView::keyPressEvent(event);
    }
}

/// What the keys do in trees: they open and close branches, and lead in and out where there is nothing to open or close.
bool PanelTree::moveInTree(int key)
{
    const QModelIndex row = currentIndex();
    const QModelIndex index = treeIndexOf(row);
    const bool canExpand = !expanderRect(row).isEmpty();
    const bool isOpen = canExpand && isExpanded(index);
    if (!index.isValid())
        return false;
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Minus:
        if (canExpand)
            setExpanded(index, key == Qt::Key_Plus);
        return canExpand;
    case Qt::Key_Asterisk:
        m_rows->expandAll(index);
        return true;
    case Qt::Key_Right:
        if (canExpand && !isOpen)
            expand(index);
        else
            goTo(m_model->index(0, 0, index));
        return true;
    case Qt::Key_Left:
        if (isOpen)
            collapse(index);
        else
            goTo(index.parent());
        return true;
    default:
        return false;
    }
}

void PanelTree::setExpanded(const QModelIndex &treeIndex, bool expanded)
{
    if (expanded)
        expand(treeIndex);
    else
        collapse(treeIndex);
}

void PanelTree::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex row = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && expanderRect(row).contains(event->pos())) {
        setExpanded(treeIndexOf(row), !isExpanded(treeIndexOf(row)));
        return;
    }
    const Entry entry = event->button() == Qt::LeftButton ? entryAt(event->pos()) : Entry();
    m_pressed = entry.isFavoritePlace() ? entry : Entry();
    m_pressPosition = event->pos();
    QListView::mousePressEvent(event);
}

// The model lets no place be dragged, since it is none of the directory's business where a favorite goes.
void PanelTree::mouseMoveEvent(QMouseEvent *event)
{
    const bool far = (event->pos() - m_pressPosition).manhattanLength() >= QApplication::startDragDistance();
    if (!m_pressed.isNull() && event->buttons() == Qt::LeftButton && far)
        dragFavorite(this, std::exchange(m_pressed, {}));
    else
        QListView::mouseMoveEvent(event);
}

void PanelTree::mouseReleaseEvent(QMouseEvent *event)
{
    const bool dragged = state() == DraggingState
        || (event->pos() - m_pressPosition).manhattanLength() >= QApplication::startDragDistance();
    const QModelIndex pressed = currentIndex();
    QListView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (dragged || !itemRect(index).contains(event->pos()))
        return;
    const Entry entry = m_model->entryByIndex(treeIndexOf(index));
    if (event->button() == Qt::MiddleButton)
        Q_EMIT opened(entry, true);
    else if (event->button() == Qt::LeftButton && index == pressed)
        Q_EMIT opened(entry, event->modifiers().testFlag(Qt::ControlModifier));
}
