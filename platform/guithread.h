// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

namespace VeskFM
{

/// Whether this is the thread of the application object, which must not wait for long.
bool isGuiThread();

} // namespace VeskFM
