// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "directoryview.h"

#include "entrydelegate.h"
#include "listingstate.h"

#include <veskfm/clipboard.h>
#include <veskfm/model.h>

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

using namespace VeskFM;

namespace
{
constexpr int columnPadding = 20; // pixels
constexpr int longestHoldMs = 150;
constexpr int mostRowsToReselect = 1000; // each row is a range of its own for the selection model
} // namespace

DirectoryView::DirectoryView(Model *model, QWidget *parent)
    : QTreeView(parent)
    , m_model(model)
    , m_delegate(new EntryDelegate(this))
{
    setItemDelegate(m_delegate);
    m_delegate->setRightAlignedColumn(model->propertyIndex(QStringLiteral("Size")));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true); // otherwise every row is asked for its size, all 100,000 of them
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setFrameShape(NoFrame);
    setModel(model);
    repaintOnLayoutChange();
    layOutColumns();
    setEntryIconSize(IconSize::Medium);

    connect(header(), &QHeaderView::sortIndicatorChanged, this, &DirectoryView::sortByHeader);
    connect(model, &Model::sortingChanged, this, &DirectoryView::showSorting);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &DirectoryView::rememberSelection);
    connect(model, &QAbstractItemModel::modelReset, this, &DirectoryView::restoreSelection);
    connect(this, &QAbstractItemView::activated, this,
            [this](const QModelIndex &index) { Q_EMIT entryActivated(m_model->entryByIndex(index)); });
    m_pictureTimer.setSingleShot(true);
    m_pictureTimer.setInterval(longestHoldMs);
    connect(&m_pictureTimer, &QTimer::timeout, this, &DirectoryView::releasePicture);
    connect(model, &QAbstractItemModel::modelReset, this, &DirectoryView::holdPicture);
    connect(model, &Model::dirListed, this, &DirectoryView::releasePicture);
    showSorting();
}

// The model changes its layout for every event and every batch of refined rows, yet the rows keep their order and
// number: those change by insertion, removal and reset only. So a repaint of what is visible is all that is due. What
// the base classes do instead costs time for each row or each selected row, and the window would stand still in a
// large directory while another program works there.
void DirectoryView::repaintOnLayoutChange()
{
    disconnect(m_model, &QAbstractItemModel::layoutChanged, this, nullptr);
    disconnect(m_model, &QAbstractItemModel::layoutAboutToBeChanged, selectionModel(), nullptr);
    disconnect(m_model, &QAbstractItemModel::layoutChanged, selectionModel(), nullptr);
    connect(m_model, &QAbstractItemModel::layoutChanged, this, [this] { viewport()->update(); });
}

void DirectoryView::layOutColumns()
{
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::Interactive); // fitting the contents would ask every row
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const QStringList names = m_model->internalPropertyNames();
    const QHash<QString, QString> typicalTexts{
        {QStringLiteral("Type"), QStringLiteral("OpenDocument spreadsheet")},
        {QStringLiteral("Size"), QStringLiteral("1023.99 MB")},
        {QStringLiteral("Modified"), QStringLiteral("28 May 2026 22:48:58")},
        {QStringLiteral("Permissions"), QStringLiteral("drwxrwxrwx")},
    };
    for (int column = 1; column < names.size(); ++column) {
        const QString text = typicalTexts.value(names.at(column), QStringLiteral("username"));
        header()->resizeSection(column, fontMetrics().horizontalAdvance(text) + columnPadding);
    }
}

IconSize DirectoryView::entryIconSize() const
{
    return m_iconSize;
}

void DirectoryView::setEntryIconSize(IconSize size)
{
    m_iconSize = size;
    setIconSize(QSize(size.toInt(), size.toInt()));
    Q_EMIT entryIconSizeChanged(size);
}

void DirectoryView::showEntry(const Entry &entry)
{
    const QModelIndex index = entry.isNull() ? QModelIndex() : m_model->indexOfEntry(entry);
    if (index.isValid())
        setCurrentIndex(index);
    else if (!currentIndex().isValid()) // for the keyboard
        selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
}

void DirectoryView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void DirectoryView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_emptyText.isEmpty() || entryCount(*m_model) > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

void DirectoryView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier) || event->angleDelta().y() == 0) {
        QTreeView::wheelEvent(event);
        return;
    }
    IconSize size = m_iconSize;
    if (event->angleDelta().y() > 0 ? size.increase() : size.decrease())
        setEntryIconSize(size);
    event->accept();
}

void DirectoryView::keyPressEvent(QKeyEvent *event)
{
    // Return activates by itself only on some platforms' terms; a table of directories always enters on it.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentIndex().isValid()) {
        Q_EMIT entryActivated(m_model->entryByIndex(currentIndex()));
        return;
    }
    QTreeView::keyPressEvent(event);
}

void DirectoryView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectedRowsChanged();
}

/// The directory that a drop here goes to; null where nothing can be dropped.
Entry DirectoryView::dropTarget(const QDropEvent *event) const
{
    if (Clipboard::ptr()->actualMimeTypes(event->mimeData()).isEmpty())
        return {};
    const QModelIndex row = indexAt(event->pos()).siblingAtColumn(0);
    if (row.isValid() && m_model->flags(row).testFlag(Qt::ItemIsDropEnabled))
        return m_model->entryByIndex(row);
    return event->source() == this ? Entry() : m_model->actualRootEntry(); // they are there already
}

void DirectoryView::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void DirectoryView::dragMoveEvent(QDragMoveEvent *event)
{
    const bool possible = !dropTarget(event).isNull();
    event->setAccepted(possible || event->type() == QEvent::DragEnter); // the next row may take it
}

void DirectoryView::dropEvent(QDropEvent *event)
{
    const Entry target = dropTarget(event);
    if (target.isNull())
        return;
    const Qt::DropAction action = event->dropAction();
    event->setDropAction(Qt::CopyAction); // the service takes the originals of a move away, not the source of the drag
    event->accept();
    Q_EMIT entriesDropped(Clipboard::ptr()->dropEntries(event->mimeData()), target, action);
}

void DirectoryView::sortByHeader(int column, Qt::SortOrder order)
{
    m_model->sort(column, order);
    showSorting(); // also when the model refused the column: the header has moved its mark already
}

void DirectoryView::showSorting()
{
    const QSignalBlocker blocker(header());
    const bool descending = m_model->sortOrder() == Model::Descending;
    header()->setSortIndicator(m_model->propertySortIndex(), descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    header()->viewport()->update();
}

// A listing is answered within a few frames as a rule. Until then the old rows stay in the picture: an empty table that
// flashes up at every step and every typed letter of a filter tires the eye.
void DirectoryView::holdPicture()
{
    if (!isListing(*m_model))
        return;
    viewport()->setUpdatesEnabled(false);
    m_pictureTimer.start();
}

void DirectoryView::releasePicture()
{
    m_pictureTimer.stop();
    viewport()->setUpdatesEnabled(true);
}

void DirectoryView::rememberSelection()
{
    m_currentEntry = currentIndex().isValid() ? m_model->entryByIndex(currentIndex()) : Entry();
    const QModelIndexList rows = selectionModel()->selectedRows();
    m_selectedEntries = rows.size() <= mostRowsToReselect ? m_model->indexesToEntries(rows) : EntryList();
}

// After a sort the rows are back at once; after a rebuild there are none yet, and what was selected is forgotten.
void DirectoryView::restoreSelection()
{
    if (m_model->rowCount() > 0) {
        QItemSelection selection;
        for (const Entry &entry : qAsConst(m_selectedEntries)) {
            const QModelIndex index = m_model->indexOfEntry(entry);
            selection.select(index, index);
        }
        const QModelIndex current = m_currentEntry.isNull() ? QModelIndex() : m_model->indexOfEntry(m_currentEntry);
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        if (current.isValid())
            scrollTo(current);
    }
    m_currentEntry = Entry();
    m_selectedEntries.clear();
}
