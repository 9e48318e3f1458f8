// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <Qt>

class QAbstractItemView;

/// Drags the selected rows of @p view, with a small picture that leaves to be seen what is below the pointer.
void dragSelection(QAbstractItemView *view, Qt::DropActions actions);
