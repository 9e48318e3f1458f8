// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "itemcomparison.h"
#include "naturalcompare.h"

#include <vector>

namespace VeskFM
{

/// The keys of many items, each read once, in a form that compares fast.
///
/// An Element is what a sort moves about. Most pairs differ in its numbers; the rest looks at the texts.
class ItemKeyTable
{
public:
    struct Element
    {
        qint64 rank;      // "..", places and groups of kinds
        KeyPrefix prefix; // of the value, ascending whatever the sort order; zero before pack()
        quint32 key;      // position of the item in the list that the table was made from
        bool isText;      // as all of the same rank are: where prefixes are equal, the texts tell
    };

    ItemKeyTable(const std::vector<ModelItem *> &items, const ItemComparison &comparison);

    /// Whether the comparison is a strict weak order on these items. If not, nothing but lessThan() of two keys in the
    /// order of a literal search tells where an item goes.
    bool isStrictWeakOrder() const { return m_isStrictWeakOrder; }
    bool lessThan(quint32 a, quint32 b) const { return m_comparison.lessThan(m_keys[a], m_keys[b]); }

    const std::vector<Element> &elements() const { return m_elements; } ///< for a strict weak order only
    void pack();                                                        ///< worth it before a sort
    bool operator()(const Element &a, const Element &b) const           ///< less than
    {
        if (a.rank != b.rank)
            return a.rank < b.rank;
        if (!(a.prefix == b.prefix))
            return m_isDescending ? b.prefix < a.prefix : a.prefix < b.prefix;
        if (!a.isText)
            return false;
        return (m_isDescending ? compareTexts(b.key, a.key) : compareTexts(a.key, b.key)) < 0;
    }

private:
    enum class Values : quint8 { Texts, DateTimes, Doubles, Ints, UInts, LongLongs, ULongLongs, Incomparable };

    static Values kindOf(const ItemKey &key);
    bool isOrderly() const;
    static quint64 numberPrefix(const ItemKey &key);
    void packTexts();
    const QString &text(quint32 key) const { return *static_cast<const QString *>(m_keys[key].value.constData()); }
    int compareTexts(quint32 a, quint32 b) const;

    const ItemComparison &m_comparison;
    const bool m_isDescending;
    bool m_isStrictWeakOrder;
    std::vector<ItemKey> m_keys;
    std::vector<Element> m_elements;
    std::vector<QCollatorSortKey> m_sortKeys; // by key, for collated texts once packed
};

} // namespace VeskFM
