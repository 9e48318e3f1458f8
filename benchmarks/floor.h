// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

class QString;

/// What listing costs at the least: reads @p directory, asks the facts of every entry and sorts by ready keys that put
/// directories first and numbers in their order, on this thread alone.
/// Returns milliseconds, or -1 when the directory cannot be read.
double measureFloor(const QString &directory);
