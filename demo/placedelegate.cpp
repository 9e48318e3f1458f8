// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placedelegate.h"

void PlaceDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    EntryDelegate::initStyleOption(option, index);
    if (index.parent().isValid())
        return;
    option->features &= ~QStyleOptionViewItem::HasDecoration;
    option->icon = QIcon();
    option->font.setBold(true);
}
