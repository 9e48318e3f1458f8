// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrysorter.h"

#include <QCollator>

#include <algorithm>
#include <numeric>

using namespace VeskFM;

namespace
{

template <typename Key> std::vector<int> sortedBy(const std::vector<Key> &keys, bool descending)
{
    std::vector<int> places(keys.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(), [&keys, descending](int a, int b) {
        const Key &first = keys[size_t(descending ? b : a)];
        return first < keys[size_t(descending ? a : b)];
    });
    return places;
}

} // namespace

std::vector<int> sortedPlaces(const EntryStore &entries, EntryOrder order, bool descending)
{
    const size_t count = entries.size();
    if (order == EntryOrder::Size) {
        std::vector<qint64> sizes;
        for (size_t place = 0; place < count; ++place)
            sizes.push_back(entries.at(place).isDir() ? -1 : entries.at(place).fileSize());
        return sortedBy(sizes, descending);
    }
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    for (size_t place = 0; place < count; ++place)
        keys.push_back(
            collator.sortKey(order == EntryOrder::Name ? entries.at(place).fileName() : entries.at(place).path()));
    return sortedBy(keys, descending);
}
