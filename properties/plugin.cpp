// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/plugin.h>

namespace VeskFM
{

Plugin::Plugin() = default;
Plugin::~Plugin() = default;

} // namespace VeskFM
