// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "iconview.h"

#include "entrydelegate.h"
#include "layoutrepaint.h"

#include <veskfm/model.h>

using namespace VeskFM;

namespace
{
constexpr int cellPadding = 8;     // pixels between icons or names of neighbours
constexpr int nameCharacters = 14; // of average width, on one line
constexpr int nameLines = 2;
} // namespace

IconView::IconView(Model *model, QWidget *parent)
    : QListView(parent)
    , m_delegate(new EntryDelegate(this))
{
    setItemDelegate(m_delegate);
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true); // otherwise every row is asked for its size
    setLayoutMode(SinglePass); // of so uniform a grid that is quick, and in batches a change would scroll to the top
    setWordWrap(true);
    setTextElideMode(Qt::ElideMiddle);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows); // shares its selection with a table
    setSelectionRectVisible(true);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setVerticalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
    setModel(model);
    repaintOnLayoutChange(this);
}

void IconView::setCellIconSize(int pixels)
{
    setIconSize(QSize(pixels, pixels));
    const int width = qMax(pixels, fontMetrics().averageCharWidth() * nameCharacters) + 2 * cellPadding;
    const int height = pixels + nameLines * fontMetrics().lineSpacing() + 2 * cellPadding;
    m_delegate->setCellSize(QSize(width, height));
    setGridSize(QSize(width, height));
}

void IconView::startDrag(Qt::DropActions)
{
    Q_EMIT dragRequested();
}
