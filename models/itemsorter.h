// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <vector>

namespace VeskFM
{

class ItemComparison;
class ModelItem;

using ModelItems = std::vector<ModelItem *>;

/// @p items in the order of @p comparison; equal ones stay as they stand.
ModelItems sortedItems(const ModelItems &items, const ItemComparison &comparison);

/// The list that comes out when each of @p arrived, one after the other, is put into @p present before all that it is
/// equal to: equal ones end up in reverse order of arrival, and before those that were there.
ModelItems insertedItems(const ModelItems &present, const ModelItems &arrived, const ItemComparison &comparison);

} // namespace VeskFM
