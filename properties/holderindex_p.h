// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QVector>

#include <vector>

namespace VeskFM
{

class PropertyDataHolder;

/// Finds holders by their key, which each of them carries. An open-addressed table that costs about 20 bytes a holder,
/// where a QHash takes 56: with a holder for every row that counts.
class HolderIndex
{
public:
    static uint hash(const QString &key); ///< what the other operations take
    /// The holder with @p key, null when there is none.
    PropertyDataHolder *find(const QString &key, uint hash) const;
    void insert(PropertyDataHolder *holder);       ///< its key must not be there yet
    void remove(const PropertyDataHolder *holder); ///< must be there
    void squeeze();                                ///< gives memory back after many removals
    QVector<PropertyDataHolder *> holders() const; ///< in no particular order

private:
    using Position = std::vector<uint>::size_type;

    Position home(uint hash) const;
    Position next(Position position) const { return (position + 1) & (m_hashes.size() - 1); }
    void place(uint hash, PropertyDataHolder *holder);
    void resize(int bits);

    // Two arrays, as long as each other and a power of two: a probe reads hashes that lie side by side and touches a holder
    // only when it is most likely the right one.
    std::vector<uint> m_hashes; // 0: free
    std::vector<PropertyDataHolder *> m_holders;
    Position m_count = 0;
    int m_bits = 0; // 0: no table yet
};

} // namespace VeskFM
