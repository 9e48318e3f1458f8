// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "itemindex.h"

#include <veskfm/modelitem.h>

namespace VeskFM
{

namespace
{
constexpr size_t smallestTable = 16;
constexpr bool isCrowded(size_t items, size_t slots)
{
    return items * 4 > slots * 3;
}
} // namespace

size_t ItemIndex::slotOf(uint hash) const
{
    return (hash * 0x9e3779b97f4a7c15ULL >> 32) & (m_hashes.size() - 1); // spreads hashes that differ little
}

void ItemIndex::reserve(size_t count)
{
    size_t slots = std::max(smallestTable, m_hashes.size());
    while (isCrowded(count, slots))
        slots *= 2;
    if (slots != m_hashes.size())
        rehash(slots);
}

void ItemIndex::rehash(size_t slots)
{
    const std::vector<uint> hashes = std::move(m_hashes);
    const std::vector<ModelItem *> items = std::move(m_items);
    m_hashes.assign(slots, 0);
    m_items.resize(slots);
    m_size = 0;
    for (size_t i = 0; i < items.size(); ++i) {
        if (hashes[i])
            insert(items[i], hashes[i]);
    }
}

void ItemIndex::insert(ModelItem *item, uint hash)
{
    reserve(m_size + 1);
    size_t slot = slotOf(hash);
    while (m_hashes[slot])
        slot = next(slot);
    m_hashes[slot] = hash;
    m_items[slot] = item;
    item->m_hash = hash;
    ++m_size;
}

void ItemIndex::remove(ModelItem *item)
{
    if (m_size == 0)
        return;
    size_t hole = slotOf(item->m_hash);
    while (m_hashes[hole] && m_items[hole] != item)
        hole = next(hole);
    if (!m_hashes[hole])
        return;
    // Whatever stands behind the hole and could have been put there moves up, so that probing may stop at holes.
    const size_t mask = m_hashes.size() - 1;
    for (size_t slot = next(hole); m_hashes[slot]; slot = next(slot)) {
        const size_t wanted = slotOf(m_hashes[slot]);
        if (((slot - wanted) & mask) < ((slot - hole) & mask))
            continue;
        m_hashes[hole] = m_hashes[slot];
        m_items[hole] = m_items[slot];
        hole = slot;
    }
    m_hashes[hole] = 0;
    --m_size;
}

void ItemIndex::removeBelow(const ModelItem *top)
{
    const std::vector<uint> hashes = std::move(m_hashes);
    const std::vector<ModelItem *> items = std::move(m_items);
    m_hashes.clear();
    m_items.clear();
    m_size = 0;
    for (size_t i = 0; i < items.size(); ++i) {
        if (hashes[i] && !items[i]->isBelow(top))
            insert(items[i], hashes[i]);
    }
}

ItemIndex::Items ItemIndex::items(const Entry &entry, uint hash) const
{
    Items found;
    if (m_size == 0)
        return found;
    for (size_t slot = slotOf(hash); m_hashes[slot]; slot = next(slot)) {
        if (m_hashes[slot] == hash && m_items[slot]->entry() == entry)
            found.append(m_items[slot]);
    }
    return found;
}

bool ItemIndex::contains(const ModelItem *parent, const Entry &entry, uint hash, bool countDotDot) const
{
    if (m_size == 0)
        return false;
    for (size_t slot = slotOf(hash); m_hashes[slot]; slot = next(slot)) {
        if (m_hashes[slot] != hash)
            continue;
        const ModelItem *const item = m_items[slot];
        if (item->parent() == parent && (countDotDot || !item->isDotDotDir()) && item->entry() == entry)
            return true;
    }
    return false;
}

} // namespace VeskFM
