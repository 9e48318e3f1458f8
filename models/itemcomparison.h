// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QCollator>
#include <QVariant>

namespace VeskFM
{

class ModelItem;

/// What the place of an item among its siblings depends on, read once.
struct ItemKey
{
    bool isDotDot = false;
    bool isPlace = false;
    int placeIndex = 0; // of places
    int type = 0;       // of all others: the kind code, links counted as what they point to
    QVariant value;     // of all others: the value of the sort property
};

/// The order of rows: the ".." row, then places by their order index, then groups of kinds, then the sort property,
/// which alone obeys the sort order. It is set up once for a sort or a search among the children of an item.
class ItemComparison
{
public:
    explicit ItemComparison(const ModelItem *parent);

    ItemKey key(const ModelItem *item) const;
    bool lessThan(const ItemKey &a, const ItemKey &b) const;
    bool lessThan(const ModelItem *a, const ModelItem *b) const { return lessThan(key(a), key(b)); }

    /// How two texts compare as values.
    enum class Texts { Natural, CodeUnits, Collated };
    Texts texts() const { return m_texts; }
    int compareTexts(const QString &a, const QString &b) const;
    const QCollator &collator() const { return m_collator; } ///< for Texts::Collated

    bool isDescending() const;
    bool ignoresValues() const; ///< an order that is none keeps what is there

    /// Whether @p type (of a key) makes groups of kinds go round in a circle: it lies between directories and archives,
    /// goes before the one and behind the other, and directories go before archives.
    static bool isCyclicType(int type);
    /// Ascending in the order of the groups, for types that are not cyclic.
    static qint64 typeRank(int type);

private:
    int compareValues(const QVariant &a, const QVariant &b) const;

    int m_order;
    int m_property;
    Texts m_texts;
    QCollator m_collator;
    Entry m_parentEntry;
};

} // namespace VeskFM
