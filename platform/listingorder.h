// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QStringView>

namespace VeskFM
{

class LocalEntryData;

/// One row of a listing under way, with the beginning of its sort key packed into two numbers.
///
/// Rows are ordered as views show them: directories, archives, files; each by name, runs of ASCII digits by their
/// value, the rest by code unit, and names that are equal so far by plain code units.
struct ListingRow
{
    ListingRow(LocalEntryData *data); ///< borrows @p data

    quint64 high;
    quint64 low;
    LocalEntryData *data;
};

/// Whether @p a is shown before @p b.
bool operator<(const ListingRow &a, const ListingRow &b);

/// Compares names as ListingRow orders them; negative, zero or positive.
int compareNaturally(QStringView a, QStringView b);

} // namespace VeskFM
