// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placegroup.h"

#include <veskplatform/entrywatcher.h>

#include <algorithm>
#include <vector>

namespace VeskFM
{

namespace
{
using Lock = std::lock_guard<std::mutex>;

/// The most of @p numbers that ascend as they stand; true for each of those. Negative ones are left out.
std::vector<bool> longestAscent(const std::vector<int> &numbers)
{
    std::vector<size_t> ends; // of the best ascent of each length, by position in numbers
    std::vector<size_t> before(numbers.size());
    for (size_t i = 0; i < numbers.size(); ++i) {
        if (numbers[i] < 0)
            continue;
        const auto place = std::lower_bound(ends.begin(), ends.end(), numbers[i],
                                            [&](size_t end, int number) { return numbers[end] < number; });
        before[i] = place == ends.begin() ? i : *(place - 1);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<bool> belongs(numbers.size());
    for (size_t left = ends.size(), i = ends.empty() ? 0 : ends.back(); left > 0; --left, i = before[i])
        belongs[i] = true;
    return belongs;
}
} // namespace

PlaceGroup::PlaceGroup(const Entry &group, EntryWatcher *watcher)
    : m_group(group)
    , m_watcher(watcher)
{
}

EntryList PlaceGroup::entries() const
{
    const Lock lock(m_mutex);
    EntryList entries;
    for (const Known &place : m_places)
        entries.append(place.entry);
    return entries;
}

Entry PlaceGroup::entry(const QString &path) const
{
    const Lock lock(m_mutex);
    const int row = m_rows.value(path, -1);
    return row < 0 ? Entry() : m_places.at(row).entry;
}

int PlaceGroup::indexOf(const QString &path) const
{
    const Lock lock(m_mutex);
    return m_rows.value(path, -1);
}

PlaceGroup::News PlaceGroup::replace(const QVector<FoundPlace> &found)
{
    const Lock lock(m_mutex);
    News news;
    news.wasEmpty = m_places.isEmpty();
    std::vector<int> formerRows;
    for (const FoundPlace &place : found)
        formerRows.push_back(m_rows.value(place.path, -1));
    const std::vector<bool> stays = longestAscent(formerRows);

    QVector<Known> places;
    QHash<QString, int> rows;
    std::vector<bool> isKept(size_t(m_places.size()));
    for (int i = 0; i < found.size(); ++i) {
        const FoundPlace &place = found.at(i);
        if (!stays[size_t(i)]) {
            auto *const data = new PlaceEntryData(place.path, place.facts);
            places.append({Entry(data), data});
            news.created.append(places.last().entry);
        } else {
            const Known &known = m_places.at(formerRows[size_t(i)]);
            isKept[size_t(formerRows[size_t(i)])] = true;
            places.append(known);
            const auto former = known.data->facts();
            if (*former != place.facts) {
                known.data->setFacts(place.facts);
                news.changed.append(known.entry);
            }
            if (former->localPath != place.facts.localPath)
                news.otherContents.append(known.entry);
        }
        rows.insert(place.path, i);
    }
    for (int row = 0; row < m_places.size(); ++row) {
        if (!isKept[size_t(row)])
            news.deleted.append(m_places.at(row).entry);
    }
    m_places = places;
    m_rows = rows;
    return news;
}

void PlaceGroup::tell(const News &news) const
{
    for (const Entry &entry : news.deleted)
        Q_EMIT m_watcher->entryDeleted(entry);
    const bool allContainers =
        std::all_of(news.created.begin(), news.created.end(), [](const Entry &entry) { return entry.isDirPlace(); });
    if (news.wasEmpty && !allContainers) {
        // A tree has taken the expander from the empty group, and gives it back for containers only. Nothing collapses.
        Q_EMIT m_watcher->entryReset(m_group);
    } else {
        for (const Entry &entry : news.created)
            Q_EMIT m_watcher->entryCreated(entry);
    }
    for (const Entry &entry : news.changed)
        Q_EMIT m_watcher->entryChanged(entry);
    for (const Entry &entry : news.otherContents)
        Q_EMIT m_watcher->entryReset(entry);
}

} // namespace VeskFM
