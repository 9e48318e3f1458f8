// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace VeskFM
{

class ModelItem;

/// A few hundred neighbours of a child list. An item knows its block, and so its row, without searching all siblings.
struct ChildBlock
{
    size_t position = 0; // in the list of blocks
    std::vector<ModelItem *> items;
};

/// The children of an item, in display order, as a list of blocks: to insert or to remove one moves some hundred
/// pointers, whatever the length of the list. Items are borrowed, and stand in one list at most.
class ChildList
{
public:
    int size() const { return m_size; }
    ModelItem *at(int row) const;             ///< @p row has to exist
    int indexOf(const ModelItem *item) const; ///< -1 when it is not in this list
    void insert(int row, ModelItem *item);    ///< @p row is 0..size()
    void removeAt(int row);
    void assign(const std::vector<ModelItem *> &items); ///< may contain items that are in the list already
    std::vector<ModelItem *> takeAll();                 ///< empties the list
    std::vector<ModelItem *> items() const;

    template <typename Visitor> void forEach(Visitor &&visitor) const
    {
        for (const auto &block : m_blocks) {
            for (ModelItem *item : block->items)
                visitor(item);
        }
    }
    /// The first row from @p from on whose item does not fulfil @p predicate, which is expected to hold for all rows
    /// up to some point. It probes the rows that std::partition_point would.
    template <typename Predicate> int partitionPoint(int from, Predicate &&predicate) const
    {
        int count = m_size - from;
        while (count > 0) {
            const int half = count / 2;
            if (count > prefetchLimit) { // what is looked at next lies anywhere in memory: fetch either meanwhile
                __builtin_prefetch(at(from + half / 2));
                __builtin_prefetch(at(from + half + 1 + (count - half - 1) / 2));
            }
            if (predicate(at(from + half))) {
                from += half + 1;
                count -= half + 1;
            } else {
                count = half;
            }
        }
        return from;
    }

private:
    static constexpr int prefetchLimit = 4; // rows; nearer ones are worth no extra look

    size_t blockOf(int row) const;
    void split(size_t position);
    void renumberFrom(size_t position);

    std::vector<std::unique_ptr<ChildBlock>> m_blocks; // none is empty
    std::vector<int> m_starts;                         // the first row of each block
    int m_size = 0;
};

} // namespace VeskFM
