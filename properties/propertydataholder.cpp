// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/propertydataholder.h>

#include "holderpool_p.h"

#include <veskfm/entrypropertyset.h>
#include <veskfm/propertyenumerator.h>
#include <veskplatform/entry.h>
#include <veskplatform/veskicon.h>

#include <QDebug>
#include <QIcon>

#include <exception>

namespace VeskFM
{

namespace
{

constexpr unsigned long allBits = ~0UL;

unsigned long bit(int index)
{
    return 1UL << (index & 63);
}

} // namespace

PropertyDataHolder::PropertyDataHolder(int count)
    : m_inlineSets{nullptr, nullptr}
    , m_setCount(qint8(qBound(0, count, maxSetCount)))
{
    if (m_setCount > inlineSetCount)
        m_heapSets = new EntryPropertySet *[size_t(m_setCount)] {};
    if (count < 0 || count > maxSetCount)
        qFatal("PropertyDataHolder: too many properties");
}

PropertyDataHolder::~PropertyDataHolder()
{
    PropertyEnumerator::removeSelfRequestsForAllEnumerators(this);
    PropertyEnumerator::removeSelfUpdatesForAllEnumerators(this);
    PropertyEnumerator::abandonRunningRequests(this);
    if (m_pool)
        m_pool->forget(this);
    for (int i = 0; i < m_setCount; ++i)
        delete sets()[i];
    if (m_setCount > inlineSetCount)
        delete[] m_heapSets;
}

void PropertyDataHolder::incrementReferenceCount()
{
    m_referenceCount.fetch_add(1);
}

bool PropertyDataHolder::decrementReferenceCount()
{
    if (m_referenceCount.fetch_sub(1) != 1)
        return true;
    m_prepared = 0;
    m_refined = 0;
    return false;
}

int PropertyDataHolder::referenceCount() const
{
    return m_referenceCount;
}

void PropertyDataHolder::setRefined()
{
    m_prepared = allBits;
    m_refined = allBits;
}

bool PropertyDataHolder::isRefined() const
{
    const unsigned long wanted = bit(m_setCount) - 1;
    return (m_refined & wanted) == wanted;
}

void PropertyDataHolder::setBit(std::atomic<unsigned long> *mask, int index)
{
    mask->fetch_or(bit(index));
}

void PropertyDataHolder::clearBit(std::atomic<unsigned long> *mask, int index)
{
    mask->fetch_and(~bit(index));
}

bool PropertyDataHolder::testBit(const std::atomic<unsigned long> *mask, int index)
{
    return *mask & bit(index);
}

void PropertyDataHolder::refinePropertyAtIndex(int property, const PropertyEnumerator *enumerator)
{
    if (property == 0 || !enumerator)
        return;
    int propertySet = -1;
    if (enumerator->indexInPropertySet(property, &propertySet) == -1 || propertySet < 0 || propertySet >= m_setCount)
        return;
    if (testBit(&m_refined, propertySet))
        return;
    clearBit(&m_prepared, propertySet);
    setBit(&m_refined, propertySet);
}

void PropertyDataHolder::invalidate(int property, const PropertyEnumerator *enumerator)
{
    ++m_invalidations; // first: a worker that did not see it has set the masks by now
    m_prepared = 0;
    m_refined = 0;
    refinePropertyAtIndex(property, enumerator);
}

void PropertyDataHolder::updatePresentation(const Entry &entry)
{
    for (int i = 0; i < m_setCount; ++i) {
        if (EntryPropertySet *set = sets()[i])
            set->updatePresentation(entry, testBit(&m_refined, i));
    }
}

EntryPropertySet *PropertyDataHolder::preparePropertySet(const Entry &entry, int propertySet,
                                                         const PropertyEnumerator *enumerator)
{
    EntryPropertySet *set = setAt(propertySet, enumerator);
    if (!set || testBit(&m_prepared, propertySet))
        return set;
    set->prepare(entry);
    setBit(&m_prepared, propertySet);
    if (testBit(&m_refined, propertySet) && set->canRefineData(entry))
        refineSet(set, entry);
    return set;
}

void PropertyDataHolder::refineAllProperties(const Entry &entry, PropertyEnumerator *enumerator)
{
    m_prepared = 0;
    m_refined = allBits;
    for (int i = 0; i < m_setCount; ++i) {
        if (i == 0 || sets()[i])
            preparePropertySet(entry, i, enumerator);
    }
}

void PropertyDataHolder::delayedRefineAllProperties(const Entry &entry, PropertyEnumerator *enumerator)
{
    if (!enumerator)
        return;
    // Every missing set is made here: once the worker has called setRefined(), a set that came later would pass for
    // prepared without ever having been.
    QVector<EntryPropertySet *> unrefined;
    for (int i = 0; i < m_setCount; ++i) {
        if (testBit(&m_refined, i))
            continue;
        EntryPropertySet *set = setAt(i, enumerator);
        if (!set)
            continue;
        if (!testBit(&m_prepared, i)) {
            set->prepare(entry);
            setBit(&m_prepared, i);
        }
        unrefined.append(set);
    }
    if (!unrefined.isEmpty())
        enumerator->updatePropertySets(unrefined, this, entry);
}

QVariant PropertyDataHolder::propertyValueData(const Entry &entry, int property, int role,
                                               const PropertyEnumerator *enumerator)
{
    int propertySet = -1;
    const int index = enumerator ? enumerator->indexInPropertySet(property, &propertySet) : -1;
    const EntryPropertySet *set = preparePropertySet(entry, propertySet, enumerator);
    if (!set)
        return {};
    const QVariant value = set->value(entry, index, role);
    if (property == 0 && role == Qt::DecorationRole)
        return decorated(value, entry, enumerator);
    return value;
}

QVariant PropertyDataHolder::decorated(const QVariant &icon, const Entry &entry, const PropertyEnumerator *enumerator)
{
    QVector<EntryPropertySet *> sets;
    const QVector<int> providers = enumerator->propertySetsProvidingEmblems();
    for (int propertySet : providers) {
        if (EntryPropertySet *set = preparePropertySet(entry, propertySet, enumerator))
            sets.append(set);
    }

    static constexpr Qt::Corner corners[] = {Qt::BottomLeftCorner, Qt::BottomRightCorner, Qt::TopRightCorner,
                                             Qt::TopLeftCorner};
    const QStringList names = enumerator->emblems(entry, sets);
    QMap<Qt::Corner, QString> emblems;
    for (int i = 0; i < names.size() && i < int(std::size(corners)); ++i) {
        if (!names.at(i).isEmpty()) // a corner without an emblem
            emblems.insert(corners[i], names.at(i));
    }
    return QVariant::fromValue(VeskIcon::withEmblems(icon.value<QIcon>(), emblems));
}

EntryPropertySet *PropertyDataHolder::setAt(int propertySet, const PropertyEnumerator *enumerator)
{
    if (propertySet < 0 || propertySet >= m_setCount)
        return nullptr;
    EntryPropertySet *&set = sets()[propertySet];
    if (!set && enumerator)
        set = enumerator->createPropertySet(propertySet);
    return set;
}

void PropertyDataHolder::refineSet(EntryPropertySet *set, const Entry &entry)
{
    // Plug-ins read files that anybody may have written; one of them failing must not take the file manager along.
    try {
        set->refineData(entry);
    } catch (const std::exception &error) {
        qWarning() << "Computing the properties of" << entry.path() << "failed:" << error.what();
    } catch (...) {
        qWarning() << "Computing the properties of" << entry.path() << "failed";
    }
}

} // namespace VeskFM
