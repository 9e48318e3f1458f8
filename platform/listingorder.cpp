// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "listingorder.h"

#include "localentrydata.h"

namespace VeskFM
{

namespace
{
quint64 groupOf(int kind)
{
    switch (kind) {
    case Entry::Dir:
    case Entry::DirLink:
        return 1;
    case Entry::Archive:
    case Entry::ArchiveLink:
        return 2;
    default:
        return 3;
    }
}
} // namespace

ListingRow::ListingRow(LocalEntryData *rowData)
    : key(naturalPrefix(rowData->name(), 0))
    , data(rowData)
{
    constexpr int groupShift = 56; // in front, and what the name begins with one byte behind
    key.low = key.low >> 8 | key.high << groupShift;
    key.high = key.high >> 8 | groupOf(data->type()) << groupShift;
}

bool operator<(const ListingRow &a, const ListingRow &b)
{
    return a.key == b.key ? naturalCompare(a.data->name(), b.data->name()) < 0 : a.key < b.key;
}

} // namespace VeskFM
