// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QString>
#include <QVariant>

#include <atomic>
#include <list>

namespace VeskFM
{

class Entry;
class EntryPropertySet;
class HolderPool;
class PropertyEnumerator;

/// The computed property values of one entry, shared by all rows that show it.
///
/// A holder has one slot per property set of its enumerator: slot 0 is the built-in set, then one for each plug-in. It
/// remembers per set whether the cheap data is there (*prepared*) and whether the expensive data is wanted or there
/// (*refined*). Holders come from PropertyEnumerator::allocPropertyDataHolder() and go back by
/// PropertyEnumerator::releasePropertyDataHolder(); the enumerator owns them. One that somebody else made works
/// too, and belongs to the enumerator once its last reference was released there.
///
/// Property numbers are those of the whole enumerator, see PropertyEnumerator::indexInPropertySet().
///
/// Thread: the enumerator's. One worker of the enumerator may refine the sets and call setRefined() meanwhile, therefore
/// masks and reference count are atomic. The sets are not locked here: each guards itself.
class VESKFM_EXPORT PropertyDataHolder
{
public:
    /// Makes @p count empty slots. More than 8 of them, or fewer than 0, end the program with a fatal message: at most
    /// 7 plug-ins can be loaded.
    explicit PropertyDataHolder(int count);
    /// Withdraws the holder from the queues of all enumerators, waits for a refinement that is running on it, and deletes
    /// the sets.
    ~PropertyDataHolder();

    void incrementReferenceCount();
    /// Returns whether the holder is still in use. The last reference takes both masks with it: a revived holder is
    /// prepared anew.
    bool decrementReferenceCount();
    int referenceCount() const;

    void setRefined();      ///< marks every set as prepared and refined; any thread
    bool isRefined() const; ///< whether the expensive data of all sets is wanted or there; any thread

    // One bit of a mask, whose number is taken modulo 64. Any thread.
    static void setBit(std::atomic<unsigned long> *mask, int index);
    static void clearBit(std::atomic<unsigned long> *mask, int index);
    static bool testBit(const std::atomic<unsigned long> *mask, int index);

    /// Has the set of @p property refined by its next preparation, unless it is refined. Property 0, the name, needs no
    /// refinement and changes nothing.
    void refinePropertyAtIndex(int property, const PropertyEnumerator *enumerator);
    /// Forgets all values, because the entry changed, and then does refinePropertyAtIndex().
    void invalidate(int property, const PropertyEnumerator *enumerator);
    /// Has the sets follow changed presentation settings.
    void updatePresentation(const Entry &entry);
    /// Makes and prepares the set in slot @p propertySet as far as that has not been done; refines it when that is
    /// wanted. Returns null when there is no such set. The holder keeps the ownership.
    EntryPropertySet *preparePropertySet(const Entry &entry, int propertySet, const PropertyEnumerator *enumerator);
    /// Computes everything at once; blocks. Sets that nobody has asked for are not made, except the built-in one.
    void refineAllProperties(const Entry &entry, PropertyEnumerator *enumerator);
    /// Queues the expensive part of all sets that are not refined and returns at once. Does nothing when @p enumerator is
    /// null. Calling it twice queues it twice.
    void delayedRefineAllProperties(const Entry &entry, PropertyEnumerator *enumerator);
    /// The value of one property, prepared as needed; invalid for an unknown property. The icon of property 0 carries
    /// the emblems of all sets.
    QVariant propertyValueData(const Entry &entry, int property, int role, const PropertyEnumerator *enumerator);

private:
    friend class HolderIndex;
    friend class HolderPool;
    friend class PropertyEnumerator;
    Q_DISABLE_COPY(PropertyDataHolder)

    static constexpr int maxSetCount = 8;
    static constexpr int inlineSetCount = 2; // the built-in set and one plug-in: the usual case needs no allocation

    EntryPropertySet **sets() { return m_setCount > inlineSetCount ? m_heapSets : m_inlineSets; }
    EntryPropertySet *setAt(int propertySet, const PropertyEnumerator *enumerator); // made when missing; may be null
    static void refineSet(EntryPropertySet *set, const Entry &entry);
    QVariant decorated(const QVariant &icon, const Entry &entry, const PropertyEnumerator *enumerator);

    union {
        EntryPropertySet *m_inlineSets[inlineSetCount];
        EntryPropertySet **m_heapSets;
    };
    std::atomic<unsigned long> m_prepared{0};
    std::atomic<unsigned long> m_refined{0};
    std::atomic<int> m_referenceCount{0};

    // Book-keeping of the pool and of the enumerators, owner's thread. It sits here because there is one holder for each
    // row: tables beside it would cost more than all the rest.
    int m_requestReferences = 0;  // how many of the references requests took and did not give back
    QString m_key;                // shared with the entry
    HolderPool *m_pool = nullptr; // whose index or idle list knows this holder
    std::list<PropertyDataHolder *>::iterator m_idlePosition; // while m_idle
    uint m_keyHash = 0;
    qint8 m_setCount = 0;
    bool m_indexed = false; // found by its key in m_pool
    bool m_idle = false;
    std::atomic<quint8> m_invalidations{0}; // tells a request that ends whether the entry changed meanwhile
};

} // namespace VeskFM
