// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/entrymatchwidget.h>

namespace VeskFM
{

EntryMatchWidget::EntryMatchWidget(QWidget *parent)
    : QWidget(parent)
{
}

EntryMatchWidget::~EntryMatchWidget() = default;

} // namespace VeskFM
