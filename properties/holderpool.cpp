// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "holderpool_p.h"

#include <veskfm/propertydataholder.h>

namespace VeskFM
{

HolderPool::~HolderPool()
{
    const QVector<PropertyDataHolder *> survivors = m_index.holders(); // of rows that outlive the enumerator
    for (PropertyDataHolder *holder : survivors)
        forget(holder);
}

PropertyDataHolder *HolderPool::alloc(const QString &key, int setCount)
{
    const uint hash = HolderIndex::hash(key);
    PropertyDataHolder *holder = m_index.find(key, hash);
    if (!holder) {
        holder = new PropertyDataHolder(setCount);
        holder->m_key = key;
        holder->m_keyHash = hash;
        holder->m_pool = this;
        holder->m_indexed = true;
        m_index.insert(holder);
    } else if (holder->m_idle) {
        revive(holder);
    }
    holder->incrementReferenceCount();
    return holder;
}

void HolderPool::release(PropertyDataHolder *holder)
{
    if (holder->decrementReferenceCount() || holder->m_idle)
        return;
    if (!holder->m_pool)
        holder->m_pool = this; // somebody else made it; from now on it is ours
    HolderPool *home = holder->m_pool;
    holder->m_idlePosition = home->m_idle.insert(home->m_idle.end(), holder);
    holder->m_idle = true;
}

void HolderPool::trim(int limit)
{
    while (idleCount() > qMax(limit, 0))
        delete m_idle.front(); // its destructor makes it forgotten
    m_index.squeeze();
}

int HolderPool::idleCount() const
{
    return int(m_idle.size());
}

void HolderPool::revive(PropertyDataHolder *holder)
{
    m_idle.erase(holder->m_idlePosition);
    holder->m_idle = false;
}

void HolderPool::forget(PropertyDataHolder *holder)
{
    if (holder->m_idle)
        revive(holder);
    if (holder->m_indexed)
        m_index.remove(holder);
    holder->m_indexed = false;
    holder->m_pool = nullptr;
}

void HolderPool::destroyThoseOnlyRequestsHold()
{
    const QVector<PropertyDataHolder *> holders = m_index.holders();
    for (PropertyDataHolder *holder : holders) {
        const int references = holder->referenceCount();
        if (references > 0 && references == holder->m_requestReferences)
            delete holder;
    }
}

} // namespace VeskFM
