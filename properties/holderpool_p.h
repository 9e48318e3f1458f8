// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "holderindex_p.h"

#include <QString>

#include <list>

namespace VeskFM
{

class PropertyDataHolder;

/// Owns the holders of one enumerator: all of them by key, and among them the idle ones, to which nobody refers, in the
/// order of their release. Lives in the enumerator's thread.
class HolderPool
{
public:
    HolderPool() = default;
    ~HolderPool(); ///< lets go of the holders that still exist

    PropertyDataHolder *alloc(const QString &key, int setCount); ///< with one more reference, revived or new
    void release(PropertyDataHolder *holder); ///< takes a reference; parks the holder when it was the last
    void trim(int limit);                     ///< destroys idle holders, oldest release first
    int idleCount() const;

    void forget(PropertyDataHolder *holder); ///< for a holder that is being destroyed
    void destroyThoseOnlyRequestsHold();     ///< when no request can give its reference back any more

private:
    Q_DISABLE_COPY(HolderPool)

    void revive(PropertyDataHolder *holder);

    HolderIndex m_index;
    std::list<PropertyDataHolder *> m_idle;
};

} // namespace VeskFM
