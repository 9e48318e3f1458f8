// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Prints one line of JSON: how long a walk over @p size generated entries takes, compared with find(1) on the same
/// warm tree, and how long the window behind it stalls, with what is due. Returns whether all measures went well.
bool printFindScore(int size);
