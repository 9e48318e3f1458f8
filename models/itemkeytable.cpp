// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "itemkeytable.h"

#include <veskfm/modelitem.h>

#include <QDateTime>

#include <cmath>
#include <cstring>

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
    judge();
    if (!m_isStrictWeakOrder)
        return;
    const bool compares = m_values != Values::None && m_values != Values::Incomparable && !comparison.ignoresValues();
    m_valuesLeft = compares && m_values == Values::Texts;
    m_elements.reserve(items.size());
    for (const ItemKey &key : m_keys) {
        const bool isNumber = compares && m_values != Values::Texts && !key.isPlace;
        const KeyPrefix prefix = {isNumber ? numberPrefix(key.value) : 0, 0};
        m_elements.push_back({rankOf(key), prefix, quint32(m_elements.size())});
    }
}

/// Values of different types are equal to each other pair by pair, or compare as texts, which orders nothing as a
/// whole; likewise a number that is none.
void ItemKeyTable::judge()
{
    for (const ItemKey &key : m_keys) {
        if (key.isPlace)
            continue;
        const Values values = kindOf(key.value);
        if (m_values == Values::None)
            m_values = values;
        else if (values != m_values)
            m_values = Values::Mixed;
        if (ItemComparison::isCyclicType(key.type) || m_values == Values::Mixed
            || (values == Values::Doubles && std::isnan(key.value.toDouble()))) {
            m_isStrictWeakOrder = false;
            return;
        }
    }
}

ItemKeyTable::Values ItemKeyTable::kindOf(const QVariant &value)
{
    switch (value.userType()) {
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

quint64 ItemKeyTable::numberPrefix(const QVariant &value) const
{
    switch (m_values) {
    case Values::DateTimes:
        return ascending(value.toDateTime().toMSecsSinceEpoch());
    case Values::Doubles:
        return ascending(value.toDouble());
    case Values::Ints:
    case Values::LongLongs:
        return ascending(value.toLongLong());
    default:
        return value.toULongLong();
    }
}

void ItemKeyTable::pack()
{
    if (!m_valuesLeft || m_elements.empty())
        return;
    if (m_comparison.texts() != ItemComparison::Texts::Collated) {
        packTexts();
        return;
    }
    m_sortKeys.reserve(m_keys.size());
    for (const ItemKey &key : m_keys)
        m_sortKeys.push_back(m_comparison.collator().sortKey(key.value.toString()));
}

void ItemKeyTable::packTexts()
{
    quint32 first = 0;
    while (first < m_keys.size() && m_keys[first].isPlace)
        ++first;
    if (first == m_keys.size())
        return;
    qsizetype skip = text(first).size();
    for (quint32 key = first; key < m_keys.size(); ++key) {
        if (!m_keys[key].isPlace)
            skip = commonPrefixLength(text(key), text(first), skip);
    }
    const bool natural = m_comparison.texts() == ItemComparison::Texts::Natural;
    for (Element &element : m_elements) {
        if (!m_keys[element.key].isPlace)
            element.prefix = natural ? naturalPrefix(text(element.key), skip) : codeUnitPrefix(text(element.key), skip);
    }
}

int ItemKeyTable::compare(quint32 a, quint32 b) const
{
    if (m_keys[a].isPlace) // the rank told all: equal places are equal
        return 0;
    if (!m_sortKeys.empty())
        return m_sortKeys[a].compare(m_sortKeys[b]);
    return m_comparison.compareTexts(text(a), text(b));
}

} // namespace VeskFM
