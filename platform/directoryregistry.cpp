// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "directoryregistry.h"

#include <algorithm>
#include <utility>

namespace VeskFM
{

namespace
{
using Lock = std::lock_guard<std::mutex>;

/// Besides the registry; a model keeps the entry that it asked to list, or a copy that shares its data.
bool isHeldElsewhere(const ShownEntry &shown)
{
    return shown.entry.data()->ref.loadRelaxed() > 1;
}
} // namespace

void DirectoryRegistry::beginListing(const QByteArray &directory, const Entry &entry, VFS::EntryChildFilters filters)
{
    const Lock lock(m_mutex);
    Record &record = m_records[directory];
    ++record.listings;
    std::vector<ShownEntry> &shown = record.shown;
    const auto outdated = [&entry](const ShownEntry &other) {
        return other.entry.data() == entry.data() || (other.entry == entry && !isHeldElsewhere(other));
    };
    shown.erase(std::remove_if(shown.begin(), shown.end(), outdated), shown.end());
    shown.push_back({entry, filters});
}

void DirectoryRegistry::setIdentity(const QByteArray &directory, const FileIdentity &identity)
{
    const Lock lock(m_mutex);
    const auto record = m_records.find(directory);
    if (record != m_records.end())
        record->identity = identity;
}

void DirectoryRegistry::endListing(const QByteArray &directory)
{
    const Lock lock(m_mutex);
    const auto record = m_records.find(directory);
    if (record != m_records.end() && record->listings > 0)
        --record->listings;
}

void DirectoryRegistry::addChange(const QByteArray &directory, const QByteArray &name, PendingChanges::Kind kind,
                                  qint64 now)
{
    const Lock lock(m_mutex);
    const auto record = m_records.find(directory);
    if (record == m_records.end())
        return;
    if (!record->changes)
        record->changes = std::make_shared<PendingChanges>();
    record->changes->add(name, kind, now);
    m_withNews.insert(record.key());
}

void DirectoryRegistry::addLinks(const QByteArray &directory, const QSet<QByteArray> &names)
{
    const Lock lock(m_mutex);
    const auto record = m_records.find(directory);
    if (record != m_records.end())
        record->links.unite(names);
}

bool DirectoryRegistry::takeLink(const QByteArray &directory, const QByteArray &name)
{
    const Lock lock(m_mutex);
    const auto record = m_records.find(directory);
    return record != m_records.end() && record->links.remove(name);
}

void DirectoryRegistry::setMoved(const QByteArray &directory, bool unmounted)
{
    const Lock lock(m_mutex);
    const auto setMoved = [this, unmounted](Records::iterator record) {
        record->moved = true;
        record->unmounted = record->unmounted || unmounted;
        m_withNews.insert(record.key());
    };
    const auto own = m_records.find(directory);
    if (own != m_records.end())
        setMoved(own);
    const QByteArray below = directory + '/';
    for (auto record = m_records.lowerBound(below); record != m_records.end() && record.key().startsWith(below);
         ++record)
        setMoved(record);
}

void DirectoryRegistry::reset(const QByteArray &directory)
{
    const Lock lock(m_mutex);
    const auto record = m_records.find(directory);
    if (record == m_records.end())
        return;
    record->reset = true;
    m_withNews.insert(record.key());
}

void DirectoryRegistry::resetAll()
{
    const Lock lock(m_mutex);
    for (auto record = m_records.begin(); record != m_records.end(); ++record) {
        record->reset = true;
        m_withNews.insert(record.key());
    }
}

std::vector<DirectoryNews> DirectoryRegistry::takeNews(qint64 now, size_t most, qint64 *nextDue)
{
    const Lock lock(m_mutex);
    std::vector<DirectoryNews> all;
    *nextDue = PendingChanges::never;
    for (auto directory = m_withNews.begin(); directory != m_withNews.end();) {
        const auto record = m_records.find(*directory);
        const bool isThere = record != m_records.end();
        if (isThere && record->listings > 0) {
            ++directory;
            continue;
        }
        DirectoryNews news;
        if (isThere && takeNewsOf(record.key(), &*record, now, most, &news)) {
            most -= std::min(most, news.changes.size());
            all.push_back(std::move(news));
        }
        if (isThere && record->changes) {
            *nextDue = std::min(*nextDue, record->changes->nextDue());
            ++directory;
        } else {
            directory = m_withNews.erase(directory);
        }
    }
    return all;
}

bool DirectoryRegistry::takeNewsOf(const QByteArray &directory, Record *record, qint64 now, size_t most,
                                   DirectoryNews *news)
{
    const bool whole = record->moved || record->reset;
    if (whole) {
        now = PendingChanges::never; // what waits is told before it, or left out
        most = std::numeric_limits<size_t>::max();
    }
    PendingChanges::Change change;
    while (record->changes && news->changes.size() < most && record->changes->takeDue(now, &change))
        news->changes.push_back(change);
    if (record->changes && record->changes->nextDue() == PendingChanges::never)
        record->changes.reset();
    if (!whole && news->changes.empty())
        return false;
    news->directory = directory;
    news->identity = record->identity;
    news->shown = record->shown;
    news->moved = std::exchange(record->moved, false);
    news->unmounted = std::exchange(record->unmounted, false);
    news->reset = std::exchange(record->reset, false);
    return true;
}

bool DirectoryRegistry::contains(const QByteArray &directory) const
{
    const Lock lock(m_mutex);
    return m_records.contains(directory);
}

void DirectoryRegistry::remove(const QByteArray &directory)
{
    const Lock lock(m_mutex);
    const auto record = m_records.find(directory);
    if (record != m_records.end() && record->listings == 0) // otherwise it is wanted again
        m_records.erase(record);
}

QList<QByteArray> DirectoryRegistry::takeUnused(int generous)
{
    const Lock lock(m_mutex);
    QList<QByteArray> unused;
    if (m_records.size() <= std::max(generous, 2 * m_usedAtSweep))
        return unused;
    for (auto record = m_records.begin(); record != m_records.end();) {
        const bool used =
            record->listings > 0 || std::any_of(record->shown.cbegin(), record->shown.cend(), isHeldElsewhere);
        if (used) {
            ++record;
        } else {
            unused.append(record.key());
            record = m_records.erase(record);
        }
    }
    m_usedAtSweep = m_records.size();
    return unused;
}

void DirectoryRegistry::clear()
{
    const Lock lock(m_mutex);
    m_records.clear();
    m_withNews.clear();
    m_usedAtSweep = 0;
}

} // namespace VeskFM
