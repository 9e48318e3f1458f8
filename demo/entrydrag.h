// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

class QAbstractItemView;

/// Drags @p entries from @p view, with a small picture that leaves to be seen what is below the pointer. Returns when
/// they have been dropped.
void dragEntries(QAbstractItemView *view, const VeskFM::EntryList &entries, Qt::DropActions actions);
