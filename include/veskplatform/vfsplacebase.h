// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

namespace VeskFM
{

/// The registry of places. Thread: any.
class VESKPLATFORM_EXPORT VFSPlaceBase
{
public:
    virtual ~VFSPlaceBase();
    virtual EntryList childEntries(const Entry &entry) const = 0; ///< the places under a place root
    /// Position of @p place under @p parent; smaller comes first, negative values are allowed.
    virtual int placeOrderIndex(const Entry &place, const Entry &parent) const = 0;
};

} // namespace VeskFM
