// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

namespace VeskFM
{

/// Removes a directory of ours with all that it holds, read-only directories, too. Follows no links. What cannot be removed
/// stays.
/// @param directory open; @p name is in it
void removeTree(int directory, const QByteArray &name);

} // namespace VeskFM
