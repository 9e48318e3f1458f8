// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "entrystore.h"

/// What entries are ordered by: texts with the numbers in them by their value, sizes of files with folders first.
enum class EntryOrder { Name, Folder, Size };

/// The places of @p entries in that order; of equal ones in the order that they have. Takes seconds for a million.
///
/// Thread: any.
std::vector<int> sortedPlaces(const EntryStore &entries, EntryOrder order, bool descending);
