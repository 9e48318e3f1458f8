// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "itemsorter.h"

#include "itemkeytable.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace VeskFM
{

namespace
{

using Element = ItemKeyTable::Element;

/// The last resort, for items that the comparison puts into no proper order: what comes out depends on each single
/// comparison, so they are made in just this way.
ModelItems insertedOneByOne(const ModelItems &all, size_t present, const ItemKeyTable &table)
{
    std::vector<quint32> list(present);
    std::iota(list.begin(), list.end(), 0);
    const auto less = [&table](quint32 a, quint32 b) { return table.lessThan(a, b); };
    for (quint32 key = quint32(present); key < all.size(); ++key)
        list.insert(std::lower_bound(list.begin(), list.end(), key, less), key);
    ModelItems result;
    result.reserve(all.size());
    for (quint32 key : list)
        result.push_back(all[key]);
    return result;
}

ModelItems itemsOf(const std::vector<Element> &elements, const ModelItems &items)
{
    ModelItems result;
    result.reserve(elements.size());
    for (const Element &element : elements)
        result.push_back(items[element.key]);
    return result;
}

} // namespace

ModelItems sortedItems(const ModelItems &items, const ItemComparison &comparison)
{
    ItemKeyTable table(items, comparison);
    if (!table.isStrictWeakOrder()) {
        std::vector<quint32> keys(items.size());
        std::iota(keys.begin(), keys.end(), 0);
        std::stable_sort(keys.begin(), keys.end(), [&table](quint32 a, quint32 b) { return table.lessThan(a, b); });
        ModelItems result;
        for (quint32 key : keys)
            result.push_back(items[key]);
        return result;
    }
    if (std::is_sorted(table.elements().begin(), table.elements().end(), std::cref(table)))
        return items;
    table.pack();
    std::vector<Element> elements = table.elements();
    std::stable_sort(elements.begin(), elements.end(), std::cref(table));
    return itemsOf(elements, items);
}

ModelItems insertedItems(const ModelItems &present, const ModelItems &arrived, const ItemComparison &comparison)
{
    ModelItems all = present;
    all.insert(all.end(), arrived.begin(), arrived.end());
    ItemKeyTable table(all, comparison);
    const auto less = std::cref(table);
    const auto presentEnd = std::ptrdiff_t(present.size());
    if (!table.isStrictWeakOrder()
        || !std::is_sorted(table.elements().begin(), table.elements().begin() + presentEnd, less))
        return insertedOneByOne(all, present.size(), table);

    // The last to arrive stands before what it is equal to. A listing in descending order needs no sort.
    std::vector<Element> fresh(table.elements().rbegin(), table.elements().rend() - presentEnd);
    if (!std::is_sorted(fresh.begin(), fresh.end(), less)) {
        table.pack();
        fresh.assign(table.elements().rbegin(), table.elements().rend() - presentEnd);
        std::stable_sort(fresh.begin(), fresh.end(), less);
    }
    std::vector<Element> merged;
    merged.reserve(all.size());
    std::merge(fresh.begin(), fresh.end(), table.elements().begin(), table.elements().begin() + presentEnd,
               std::back_inserter(merged), less);
    return itemsOf(merged, all);
}

} // namespace VeskFM
