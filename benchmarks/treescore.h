// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Prints one line of JSON: what events on the nodes of a tree of @p size expanded directories cost, in the model and in
/// a side panel, beside the same in a tree of a hundredth of them, with what is due. Returns whether all measures went
/// well.
bool printTreeScore(int size);
