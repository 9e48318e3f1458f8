// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "directoryview.h"

#include "entrydelegate.h"
#include "layoutrepaint.h"

#include <veskfm/model.h>
#include <veskfm/settings.h>

#include <QHeaderView>
#include <QSignalBlocker>

using namespace VeskFM;

namespace
{
constexpr int columnPadding = 20;  // pixels
constexpr int nameCharacters = 24; // of average width, at least
} // namespace

DirectoryView::DirectoryView(Model *model, QWidget *parent)
    : QTreeView(parent)
    , m_model(model)
{
    auto *const delegate = new EntryDelegate(this);
    setItemDelegate(delegate);
    delegate->setRightAlignedColumn(model->propertyIndex(QStringLiteral("Size")));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true); // otherwise every row is asked for its size, all 100,000 of them
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setFrameShape(NoFrame);
    setModel(model);
    repaintOnLayoutChange(this);
    layOutColumns();

    connect(header(), &QHeaderView::sortIndicatorChanged, this, &DirectoryView::sortByHeader);
    connect(model, &Model::sortingChanged, this, &DirectoryView::showSorting);
    showSorting();
    const Settings *const settings = Settings::ptr();
    const auto showStripes = [this, settings] { setAlternatingRowColors(settings->alternateRowColorsInTable()); };
    connect(settings, &Settings::alternateRowColorsInTableChanged, this, showStripes);
    showStripes();
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
    for (const QString &name : {QStringLiteral("Size"), QStringLiteral("Modified")})
        m_importance += m_model->propertyIndex(name);
    for (int column = 1; column < names.size(); ++column) {
        if (!m_importance.contains(column))
            m_importance += column;
    }
    m_importance.removeAll(-1);
}

void DirectoryView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    hideWhatDoesNotFit();
}

void DirectoryView::hideWhatDoesNotFit()
{
    int room = viewport()->width() - iconSize().width() - fontMetrics().averageCharWidth() * nameCharacters;
    for (const int column : qAsConst(m_importance)) {
        const bool wasHidden = header()->isSectionHidden(column);
        header()->setSectionHidden(column, false); // a hidden one has no size
        room -= header()->sectionSize(column);
        header()->setSectionHidden(column, room < 0);
        if (wasHidden != header()->isSectionHidden(column))
            scheduleDelayedItemsLayout();
    }
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

void DirectoryView::startDrag(Qt::DropActions)
{
    Q_EMIT dragRequested();
}
