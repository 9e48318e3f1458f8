// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/propspluginwidget.h>

namespace VeskFM
{

PropsPluginWidget::PropsPluginWidget(QWidget *parent)
    : QWidget(parent)
{
}

PropsPluginWidget::~PropsPluginWidget() = default;

} // namespace VeskFM
