// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entryviews.h"

#include "containers.h"
#include "directoryview.h"
#include "iconview.h"
#include "listingcurtain.h"
#include "listingstate.h"
#include "selectionkeeper.h"

#include <veskfm/model.h>

#include <QKeyEvent>
#include <QLabel>
#include <QWheelEvent>

using namespace VeskFM;

namespace
{
constexpr int namePadding = 4;      // pixels between an icon and its name
constexpr int emptyTextMargin = 40; // pixels
const IconSize defaultSizes[] = {IconSize::Small, IconSize::VeryLarge};
} // namespace

EntryViews::EntryViews(Model *model, QWidget *parent)
    : QStackedWidget(parent)
    , m_model(model)
    , m_table(new DirectoryView(model, this))
    , m_icons(new IconView(model, this))
    , m_emptyText(new QLabel(this))
{
    m_table->setObjectName(QStringLiteral("table"));
    m_icons->setObjectName(QStringLiteral("icons"));
    delete m_icons->selectionModel();
    m_icons->setSelectionModel(m_table->selectionModel());
    adopt(m_table);
    adopt(m_icons);
    connect(m_table, &DirectoryView::dragRequested, this, &EntryViews::dragRequested);
    connect(m_icons, &IconView::dragRequested, this, &EntryViews::dragRequested);
    applyIconSize(Table);
    applyIconSize(Icons);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &EntryViews::selectionChanged);
    connect(model, &QAbstractItemModel::modelReset, this, &EntryViews::selectionChanged);
    auto *const keeper = new SelectionKeeper(model, selectionModel(), this);
    connect(keeper, &SelectionKeeper::restored, this, [this] { view()->scrollTo(view()->currentIndex()); });
    new ListingCurtain(model, this);

    m_emptyText->setObjectName(QStringLiteral("emptyText"));
    m_emptyText->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_emptyText->setAlignment(Qt::AlignCenter);
    m_emptyText->setWordWrap(true);
    m_emptyText->setEnabled(false); // pale
    m_emptyText->hide();
}

void EntryViews::adopt(QAbstractItemView *view)
{
    addWidget(view);
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view, &QAbstractItemView::activated, this,
            [this](const QModelIndex &index) { Q_EMIT entryActivated(m_model->entryByIndex(index)); });
    connect(view, &QWidget::customContextMenuRequested, this,
            [this, view](const QPoint &position) { Q_EMIT menuRequested(view->viewport()->mapToGlobal(position)); });
    auto *const drops = new EntryDrops(view, [this, view](const QDropEvent &event) { return dropPlace(view, event); });
    connect(drops, &EntryDrops::dropped, this, &EntryViews::entriesDropped);
}

EntryViews::Mode EntryViews::mode() const
{
    return currentWidget() == m_icons ? Icons : Table;
}

void EntryViews::setMode(Mode mode)
{
    if (mode == this->mode())
        return;
    const bool hadFocus = view()->hasFocus();
    const QModelIndex current = view()->currentIndex();
    setCurrentIndex(mode);
    if (hadFocus)
        view()->setFocus();
    if (current.isValid())
        view()->scrollTo(current);
    m_emptyText->raise();
    Q_EMIT modeChanged(mode);
    Q_EMIT entryIconSizeChanged(m_sizes[mode]);
}

IconSize EntryViews::entryIconSize() const
{
    return m_sizes[mode()];
}

void EntryViews::setEntryIconSize(IconSize size)
{
    setEntryIconSize(mode(), size);
}

void EntryViews::setEntryIconSize(Mode mode, IconSize size)
{
    if (m_sizes[mode] == size)
        return;
    m_sizes[mode] = size;
    applyIconSize(mode);
    if (mode == this->mode())
        Q_EMIT entryIconSizeChanged(size);
}

void EntryViews::applyIconSize(Mode mode)
{
    const int pixels = m_sizes[mode].toInt();
    if (mode == Icons)
        m_icons->setCellIconSize(pixels);
    else
        m_table->setIconSize(QSize(pixels, pixels));
}

void EntryViews::zoom(int steps)
{
    IconSize size = entryIconSize();
    if (steps > 0 ? size.increase() : size.decrease())
        setEntryIconSize(size);
}

void EntryViews::resetZoom()
{
    setEntryIconSize(defaultSizes[mode()]);
}

QAbstractItemView *EntryViews::view() const
{
    return mode() == Icons ? static_cast<QAbstractItemView *>(m_icons) : m_table;
}

QItemSelectionModel *EntryViews::selectionModel() const
{
    return m_table->selectionModel();
}

EntryList EntryViews::selectedEntries() const
{
    QItemSelection ranges = selectionModel()->selection(); // to list the rows of a large one takes long
    std::sort(ranges.begin(), ranges.end(),
              [](const QItemSelectionRange &a, const QItemSelectionRange &b) { return a.top() < b.top(); });
    EntryList entries;
    for (const QItemSelectionRange &range : qAsConst(ranges)) {
        for (int row = qMax(firstRow(), range.top()); range.left() == 0 && row <= range.bottom(); ++row)
            entries.append(m_model->entryByIndex(m_model->index(row, 0)));
    }
    return entries;
}

Entry EntryViews::currentEntry() const
{
    const QModelIndex current = selectionModel()->currentIndex();
    return current.isValid() ? m_model->entryByIndex(current) : Entry();
}

void EntryViews::selectAll()
{
    selectionModel()->select(allRows(), QItemSelectionModel::ClearAndSelect);
}

void EntryViews::invertSelection()
{
    selectionModel()->select(allRows(), QItemSelectionModel::Toggle);
}

// A rubber band takes the ".." row, too, and nobody wants the parent directory deleted.
int EntryViews::firstRow() const
{
    return m_model->rowCount() - entryCount(*m_model);
}

QItemSelection EntryViews::allRows() const
{
    const QModelIndex first = m_model->index(firstRow(), 0);
    const QModelIndex last = m_model->index(m_model->rowCount() - 1, m_model->columnCount() - 1);
    return first.isValid() ? QItemSelection(first, last) : QItemSelection();
}

void EntryViews::showEntry(const Entry &entry)
{
    const QModelIndex index = entry.isNull() ? QModelIndex() : m_model->indexOfEntry(entry);
    if (index.isValid())
        view()->setCurrentIndex(index);
    else if (!view()->currentIndex().isValid()) // for the keyboard
        selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
}

QRect EntryViews::nameRect(const QModelIndex &index) const
{
    QRect rect = view()->visualRect(index);
    if (mode() == Icons)
        rect.setTop(rect.top() + view()->iconSize().height() + namePadding);
    else
        rect.setLeft(rect.left() + view()->iconSize().width() + namePadding);
    return rect;
}

void EntryViews::setEmptyText(const QString &text)
{
    m_emptyText->setText(text);
    m_emptyText->setVisible(!text.isEmpty());
    m_emptyText->raise();
}

void EntryViews::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    m_emptyText->setGeometry(rect().adjusted(emptyTextMargin, emptyTextMargin, -emptyTextMargin, -emptyTextMargin));
}

bool EntryViews::eventFilter(QObject *watched, QEvent *event)
{
    auto *const watchedView = qobject_cast<QAbstractItemView *>(watched);
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto *const key = static_cast<QKeyEvent *>(event);
        return watchedView && onKey(watchedView, key->key(), key->modifiers());
    }
    case QEvent::Wheel: {
        const auto *const wheel = static_cast<QWheelEvent *>(event);
        return onWheel(wheel->angleDelta().y(), wheel->modifiers());
    }
    case QEvent::FocusIn:
        if (watchedView)
            Q_EMIT focused();
        return false;
    default:
        return QStackedWidget::eventFilter(watched, event);
    }
}

// Return activates by itself only on some platforms' terms; a view of directories always enters on it.
bool EntryViews::onKey(QAbstractItemView *view, int key, Qt::KeyboardModifiers modifiers)
{
    modifiers &= ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier)
        return false;
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && view->currentIndex().isValid()) {
        Q_EMIT entryActivated(m_model->entryByIndex(view->currentIndex()));
        return true;
    }
    if (key == Qt::Key_Tab) {
        Q_EMIT tabPressed();
        return true;
    }
    if (key == Qt::Key_Escape)
        Q_EMIT escapePressed();
    return false;
}

bool EntryViews::onWheel(int delta, Qt::KeyboardModifiers modifiers)
{
    if (!modifiers.testFlag(Qt::ControlModifier) || delta == 0)
        return false;
    zoom(delta > 0 ? 1 : -1);
    return true;
}

EntryDrops::Place EntryViews::dropPlace(QAbstractItemView *view, const QDropEvent &event) const
{
    const QModelIndex row = view->indexAt(event.pos()).siblingAtColumn(0);
    const Entry entry = row.isValid() ? m_model->entryByIndex(row) : Entry();
    if (canTakeFiles(entry))
        return {entry, view->visualRect(row)};
    if (event.source() == view || !canTakeFiles(m_model->actualRootEntry())) // they are there already
        return {};
    return {m_model->actualRootEntry(), QRect()};
}
