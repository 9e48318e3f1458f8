// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "paneldelegate.h"

#include "paneltree.h"

#include <QPainter>
#include <QStyle>

PanelDelegate::PanelDelegate(PanelTree *tree)
    : EntryDelegate(tree)
    , m_tree(tree)
{
}

void PanelDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    item.rect = m_tree->itemRect(index);
    if (m_tree->style()->styleHint(QStyle::SH_ItemView_ShowDecorationSelected, &option, m_tree))
        paintBackground(painter, option, item.rect);
    paintExpander(painter, option, index);
    EntryDelegate::paint(painter, item, index);
}

/// Of what is beside the item, which has its own.
void PanelDelegate::paintBackground(QPainter *painter, const QStyleOptionViewItem &option, const QRect &item) const
{
    painter->save();
    painter->setClipRegion(QRegion(option.rect) - item);
    m_tree->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, m_tree);
    painter->restore();
}

// Asked anew each time: a leaf is found to be one when it is first painted.
void PanelDelegate::paintExpander(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOption expander = option;
    expander.rect = m_tree->expanderRect(index);
    if (expander.rect.isEmpty())
        return;
    expander.state |= QStyle::State_Item | QStyle::State_Children;
    expander.state.setFlag(QStyle::State_Open, m_tree->isExpanded(m_tree->treeIndexOf(index)));
    m_tree->style()->drawPrimitive(QStyle::PE_IndicatorBranch, &expander, painter, m_tree);
}

void PanelDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    EntryDelegate::initStyleOption(option, index);
    if (!m_tree->isHeading(index))
        return;
    option->features &= ~QStyleOptionViewItem::HasDecoration;
    option->icon = QIcon();
    option->font.setBold(true);
}
