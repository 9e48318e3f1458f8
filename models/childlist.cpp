// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "childlist.h"

#include <veskfm/modelitem.h>

#include <algorithm>

namespace VeskFM
{

namespace
{
constexpr size_t blockCapacity = 512;
constexpr size_t blockFill = 384; // of a sorted list: room for some insertions before the first split
} // namespace

size_t ChildList::blockOf(int row) const
{
    return size_t(std::upper_bound(m_starts.begin(), m_starts.end(), row) - m_starts.begin()) - 1;
}

ModelItem *ChildList::at(int row) const
{
    const size_t position = blockOf(row);
    return m_blocks[position]->items[size_t(row - m_starts[position])];
}

int ChildList::indexOf(const ModelItem *item) const
{
    const ChildBlock *const block = item->m_block;
    if (!block || block->position >= m_blocks.size() || m_blocks[block->position].get() != block)
        return -1; // in no list, or in another one
    // Views ask for the same rows over and over, for each index that they keep whenever another row comes or goes.
    if (item->m_place >= block->items.size() || block->items[item->m_place] != item)
        item->m_place = quint16(std::find(block->items.begin(), block->items.end(), item) - block->items.begin());
    return m_starts[block->position] + item->m_place;
}

void ChildList::insert(int row, ModelItem *item)
{
    if (m_blocks.empty()) {
        m_blocks.push_back(std::make_unique<ChildBlock>());
        m_starts.push_back(0);
    }
    size_t position = blockOf(row);
    if (m_blocks[position]->items.size() >= blockCapacity) {
        split(position);
        position = blockOf(row);
    }
    ChildBlock *const block = m_blocks[position].get();
    block->items.insert(block->items.begin() + (row - m_starts[position]), item);
    item->m_block = block;
    ++m_size;
    for (size_t i = position + 1; i < m_starts.size(); ++i)
        ++m_starts[i];
}

void ChildList::removeAt(int row)
{
    const size_t position = blockOf(row);
    std::vector<ModelItem *> &items = m_blocks[position]->items;
    const auto place = items.begin() + (row - m_starts[position]);
    (*place)->m_block = nullptr;
    items.erase(place);
    --m_size;
    for (size_t i = position + 1; i < m_starts.size(); ++i)
        --m_starts[i];
    if (items.empty()) {
        m_blocks.erase(m_blocks.begin() + std::ptrdiff_t(position));
        m_starts.erase(m_starts.begin() + std::ptrdiff_t(position));
        renumberFrom(position);
    }
}

void ChildList::assign(const std::vector<ModelItem *> &items)
{
    std::vector<std::unique_ptr<ChildBlock>> blocks;
    std::vector<int> starts;
    for (size_t first = 0; first < items.size(); first += blockFill) {
        const size_t end = std::min(first + blockFill, items.size());
        auto block = std::make_unique<ChildBlock>();
        block->position = blocks.size();
        block->items.assign(items.begin() + std::ptrdiff_t(first), items.begin() + std::ptrdiff_t(end));
        for (ModelItem *item : block->items)
            item->m_block = block.get();
        starts.push_back(int(first));
        blocks.push_back(std::move(block));
    }
    m_blocks = std::move(blocks);
    m_starts = std::move(starts);
    m_size = int(items.size());
}

std::vector<ModelItem *> ChildList::items() const
{
    std::vector<ModelItem *> all;
    all.reserve(size_t(m_size));
    for (const auto &block : m_blocks)
        all.insert(all.end(), block->items.begin(), block->items.end());
    return all;
}

std::vector<ModelItem *> ChildList::takeAll()
{
    std::vector<ModelItem *> all = items();
    for (ModelItem *item : all)
        item->m_block = nullptr;
    assign({});
    return all;
}

void ChildList::split(size_t position)
{
    std::vector<ModelItem *> &full = m_blocks[position]->items;
    const auto middle = full.begin() + std::ptrdiff_t(full.size() / 2);
    auto block = std::make_unique<ChildBlock>();
    block->items.assign(middle, full.end());
    full.erase(middle, full.end());
    for (ModelItem *item : block->items)
        item->m_block = block.get();
    const std::ptrdiff_t next = std::ptrdiff_t(position) + 1;
    m_starts.insert(m_starts.begin() + next, m_starts[position] + int(full.size()));
    m_blocks.insert(m_blocks.begin() + next, std::move(block));
    renumberFrom(position + 1);
}

void ChildList::renumberFrom(size_t position)
{
    for (; position < m_blocks.size(); ++position)
        m_blocks[position]->position = position;
}

} // namespace VeskFM
