// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "entrydelegate.h"

/// Draws the groups of a list of places as headings: themes have no pictures for most of them.
class PlaceDelegate : public EntryDelegate
{
    Q_OBJECT

public:
    using EntryDelegate::EntryDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
