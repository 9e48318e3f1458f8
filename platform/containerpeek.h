// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace VeskFM
{

/// Whether the directory @p path of the disk may hold directories, links to some, or archives: a short look at the names
/// in it. True when that does not decide it, and at once where a look could wait for another machine.
///
/// Thread: any, the GUI thread among them.
bool mayHoldContainers(const QString &path);

} // namespace VeskFM
