// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QVarLengthArray>

#include <vector>

namespace VeskFM
{

class ModelItem;

/// Finds the items of a model by their entry: a hash table with open addressing, since one node per row of a large
/// directory would cost more than the row itself. An entry may have several items.
///
/// It holds the items that stand in the list of their parent. They are borrowed.
class ItemIndex
{
public:
    using Items = QVarLengthArray<ModelItem *, 4>;

    static uint hashOf(const Entry &entry) { return qMax(1u, qHash(entry)); } ///< never 0

    void reserve(size_t count); ///< room for @p count items in all
    void insert(ModelItem *item, uint hash);
    void remove(ModelItem *item);           ///< ignored when it is not in the index
    void removeBelow(const ModelItem *top); ///< all at once: cheaper than one by one when they are most of the items
    size_t size() const { return m_size; }

    Items items(const Entry &entry, uint hash) const; ///< in no particular order
    /// Whether a child of @p parent shows @p entry. The ".." row counts if @p countDotDot.
    bool contains(const ModelItem *parent, const Entry &entry, uint hash, bool countDotDot) const;

private:
    size_t slotOf(uint hash) const;
    size_t next(size_t slot) const { return (slot + 1) & (m_hashes.size() - 1); }
    void rehash(size_t slots);

    std::vector<uint> m_hashes;       // 0 where free; the length is a power of two, or 0
    std::vector<ModelItem *> m_items; // apart, so that probing stays within few cache lines
    size_t m_size = 0;
};

} // namespace VeskFM
