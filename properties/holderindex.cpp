// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "holderindex_p.h"

#include <veskfm/propertydataholder.h>

#include <QHashFunctions>

namespace VeskFM
{

namespace
{
constexpr int smallestBits = 6;
constexpr bool isTooFull(std::size_t count, std::size_t size)
{
    return count * 5 > size * 4; // probes stay short up to 80 %
}
} // namespace

uint HolderIndex::hash(const QString &key)
{
    const uint value = qHash(key, uint(qGlobalQHashSeed()));
    return value ? value : 1;
}

HolderIndex::Position HolderIndex::home(uint hash) const
{
    return (hash * 0x9e3779b9U) >> (32 - m_bits); // spread: names that count up have hashes that count up
}

PropertyDataHolder *HolderIndex::find(const QString &key, uint hash) const
{
    if (!m_count)
        return nullptr;
    for (Position position = home(hash); m_hashes[position]; position = next(position)) {
        if (m_hashes[position] == hash && m_holders[position]->m_key == key)
            return m_holders[position];
    }
    return nullptr;
}

void HolderIndex::insert(PropertyDataHolder *holder)
{
    if (isTooFull(m_count + 1, m_hashes.size()))
        resize(qMax(m_bits + 1, smallestBits));
    place(holder->m_keyHash, holder);
    ++m_count;
}

void HolderIndex::place(uint hash, PropertyDataHolder *holder)
{
    Position position = home(hash);
    while (m_hashes[position])
        position = next(position);
    m_hashes[position] = hash;
    m_holders[position] = holder;
}

void HolderIndex::remove(const PropertyDataHolder *holder)
{
    Position gap = home(holder->m_keyHash);
    while (m_holders[gap] != holder)
        gap = next(gap);
    // Whatever follows in the same run moves up, unless it would come to stand before its home.
    for (Position position = next(gap); m_hashes[position]; position = next(position)) {
        const Position mask = m_hashes.size() - 1;
        if (((position - home(m_hashes[position])) & mask) < ((position - gap) & mask))
            continue;
        m_hashes[gap] = m_hashes[position];
        m_holders[gap] = m_holders[position];
        gap = position;
    }
    m_hashes[gap] = 0;
    m_holders[gap] = nullptr;
    --m_count;
}

void HolderIndex::squeeze()
{
    int bits = m_bits;
    while (bits > smallestBits && m_count * 4 < (Position(1) << bits))
        --bits;
    if (bits < m_bits)
        resize(bits);
}

void HolderIndex::resize(int bits)
{
    const std::vector<uint> hashes(std::move(m_hashes));
    const std::vector<PropertyDataHolder *> holders(std::move(m_holders));
    m_bits = bits;
    m_hashes.assign(Position(1) << bits, 0);
    m_holders.assign(Position(1) << bits, nullptr);
    for (Position position = 0; position < hashes.size(); ++position) {
        if (hashes[position])
            place(hashes[position], holders[position]);
    }
}

QVector<PropertyDataHolder *> HolderIndex::holders() const
{
    QVector<PropertyDataHolder *> found;
    found.reserve(int(m_count));
    for (PropertyDataHolder *holder : m_holders) {
        if (holder)
            found.append(holder);
    }
    return found;
}

} // namespace VeskFM
