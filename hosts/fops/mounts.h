// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Deeper trees are refused: each level takes stack and descriptors. The longest paths of the system have half as many.
constexpr int deepestTree = 4000;

/// Whether two open nodes are on the same mount. A file system below another, or the same one mounted twice, differ; a
/// subvolume does not.
bool isSameMount(int a, int b);
