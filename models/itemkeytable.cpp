// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "itemkeytable.h"

#include <veskfm/modelitem.h>

#include <QDateTime>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace VeskFM
{

namespace
{

constexpr quint64 signBit = quint64(1) << 63;

quint64 ascending(qint64 number)
{
    return quint64(number) ^ signBit;
}

quint64 ascending(double number)
{
    const double positiveZero = number + 0.0; // both zeros are equal
    quint64 bits;
    std::memcpy(&bits, &positiveZero, sizeof bits);
    return bits & signBit ? ~bits : bits | signBit;
}

/// Fetches what reading the keys of @p items, now at @p position, soon needs. Rows lie anywhere in memory, and waiting
/// for it took a quarter of a sort.
void prefetch(const std::vector<ModelItem *> &items, size_t position)
{
    constexpr size_t distance = 8; // some hundred nanoseconds of work
    if (position + 2 * distance >= items.size())
        return;
    __builtin_prefetch(items[position + 2 * distance]);
    const ModelItem *const soon = items[position + distance];
    __builtin_prefetch(soon->entry().data());
    __builtin_prefetch(soon->dataHolder());
}

qint64 rankOf(const ItemKey &key)
{
    constexpr qint64 behindDotDot = qint64(1) << 40; // beyond any difference of place indexes or kinds
    constexpr qint64 behindPlaces = qint64(1) << 36;
    const qint64 group = key.isPlace ? key.placeIndex : behindPlaces + ItemComparison::typeRank(key.type);
    return key.isDotDot ? group : behindDotDot + group;
}

} // namespace

ItemKeyTable::ItemKeyTable(const std::vector<ModelItem *> &items, const ItemComparison &comparison)
    : m_comparison(comparison)
    , m_isDescending(comparison.isDescending())
{
    m_keys.reserve(items.size());
    for (size_t i = 0; i < items.size(); ++i) {
        prefetch(items, i);
        m_keys.push_back(comparison.key(items[i]));
    }
    m_isStrictWeakOrder = isOrderly();
    if (!m_isStrictWeakOrder)
        return;
    m_elements.reserve(items.size());
    for (const ItemKey &key : m_keys) {
        const Values values = comparison.ignoresValues() ? Values::Incomparable : kindOf(key);
        const bool isText = values == Values::Texts;
        const bool isNumber = !isText && values != Values::Incomparable;
        const KeyPrefix prefix = {isNumber ? numberPrefix(key) : 0, 0};
        m_elements.push_back({rankOf(key), prefix, quint32(m_elements.size()), isText});
    }
}

/// Within a group, values of different types are equal to each other pair by pair, or compare as texts, which orders
/// nothing as a whole; likewise a number that is none.
bool ItemKeyTable::isOrderly() const
{
    QVarLengthArray<std::pair<qint64, Values>, 8> groups;
    for (const ItemKey &key : m_keys) {
        if (key.isPlace) // goes by its index alone
            continue;
        if (ItemComparison::isCyclicType(key.type))
            return false;
        const Values values = kindOf(key);
        if (values == Values::Doubles && std::isnan(key.value.toDouble()))
            return false;
        const qint64 rank = rankOf(key);
        const auto group =
            std::find_if(groups.begin(), groups.end(), [rank](const auto &g) { return g.first == rank; });
        if (group == groups.end())
            groups.append({rank, values});
        else if (group->second != values)
            return false;
    }
    return true;
}

ItemKeyTable::Values ItemKeyTable::kindOf(const ItemKey &key)
{
    switch (key.value.userType()) { // that of a place is invalid
    case QMetaType::QString:
        return Values::Texts;
    case QMetaType::QDateTime:
        return Values::DateTimes;
    case QMetaType::Double:
        return Values::Doubles;
    case QMetaType::Int:
        return Values::Ints;
    case QMetaType::UInt:
        return Values::UInts;
    case QMetaType::LongLong:
        return Values::LongLongs;
    case QMetaType::ULongLong:
        return Values::ULongLongs;
    default:
        return Values::Incomparable;
    }
}

quint64 ItemKeyTable::numberPrefix(const ItemKey &key)
{
    switch (kindOf(key)) {
    case Values::DateTimes:
        return ascending(key.value.toDateTime().toMSecsSinceEpoch());
    case Values::Doubles:
        return ascending(key.value.toDouble());
    case Values::Ints:
    case Values::LongLongs:
        return ascending(key.value.toLongLong());
    default:
        return key.value.toULongLong();
    }
}

void ItemKeyTable::pack()
{
    if (m_comparison.texts() != ItemComparison::Texts::Collated) {
        packTexts();
        return;
    }
    m_sortKeys.reserve(m_keys.size());
    for (const Element &element : m_elements)
        m_sortKeys.push_back(m_comparison.collator().sortKey(element.isText ? text(element.key) : QString()));
}

void ItemKeyTable::packTexts()
{
    const auto first = std::find_if(m_elements.begin(), m_elements.end(), [](const Element &e) { return e.isText; });
    if (first == m_elements.end())
        return;
    qsizetype skip = text(first->key).size();
    for (const Element &element : m_elements) {
        if (element.isText)
            skip = commonPrefixLength(text(element.key), text(first->key), skip);
    }
    const bool natural = m_comparison.texts() == ItemComparison::Texts::Natural;
    for (Element &element : m_elements) {
        if (element.isText)
            element.prefix = natural ? naturalPrefix(text(element.key), skip) : codeUnitPrefix(text(element.key), skip);
    }
}

int ItemKeyTable::compareTexts(quint32 a, quint32 b) const
{
    if (!m_sortKeys.empty())
        return m_sortKeys[a].compare(m_sortKeys[b]);
    return m_comparison.compareTexts(text(a), text(b));
}

} // namespace VeskFM
