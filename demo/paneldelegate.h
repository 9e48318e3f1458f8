// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "entrydelegate.h"

class PanelTree;

/// Draws a row of a panel's tree: its expander, then picture and name, as far to the right as its level asks. A heading is
/// in bold and has no picture: themes have none for most groups of places.
class PanelDelegate : public EntryDelegate
{
    Q_OBJECT

public:
    explicit PanelDelegate(PanelTree *tree);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    void paintBackground(QPainter *painter, const QStyleOptionViewItem &option, const QRect &item) const;
    void paintExpander(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;

    const PanelTree *m_tree;
};
