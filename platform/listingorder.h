// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "naturalcompare.h"

#include <veskplatform/entry.h>

namespace VeskFM
{

class LocalEntryData;

/// One row of a listing under way, with the beginning of its sort key.
///
/// Rows are ordered as views show them: directories, archives, files; each by name as naturalCompare() has it.
struct ListingRow
{
    ListingRow(LocalEntryData *data); ///< borrows @p data

    KeyPrefix key;
    LocalEntryData *data;
};

/// Whether @p a is shown before @p b.
bool operator<(const ListingRow &a, const ListingRow &b);

} // namespace VeskFM
