// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QStringList>
#include <QVariant>

namespace VeskFM
{

class Entry;

/// Computes one group of columns for one entry. A PropertyDataHolder owns one object per group.
///
/// Contract of every implementation: refineData() may run on a pool thread while the owner thread calls prepare(),
/// value(), emblems() or refineData() of the same object. Compute into locals, publish under the object's own lock, and
/// create no QIcon, QPixmap, QObject or QTimer on the pool thread.
class VESKFM_EXPORT EntryPropertySet
{
public:
    EntryPropertySet();
    virtual ~EntryPropertySet();

    /// Computes the cheap data. Resets everything that belongs to the entry: holders are reused, and what an earlier
    /// preparation or refinement left behind would show up again.
    ///
    /// Thread: owner.
    virtual void prepare(const Entry &entry) = 0;
    /// The value of column @p index, counted within this set, for an item-data role; invalid where there is none.
    ///
    /// Thread: owner.
    virtual QVariant value(const Entry &entry, int index, int role) const = 0;
    /// Whether refineData() is worth calling in a synchronous refinement. The worker does not ask. Default: false.
    ///
    /// Thread: owner.
    virtual bool canRefineData(const Entry &entry) const;
    /// Computes the expensive data; may read files. Default: does nothing. What it throws is caught and logged.
    ///
    /// Thread: owner, or one pool thread at a time.
    virtual void refineData(const Entry &entry);
    /// Icon names to lay over the entry's icon: bottom left, bottom right, top right, top left. An empty name leaves its
    /// corner alone, names after the fourth are not used. Default: none.
    ///
    /// Thread: owner.
    virtual QStringList emblems(const Entry &entry) const;
    /// Recomputes what depends on presentation settings. @p refined tells whether the expensive data is wanted or there.
    /// Default: does nothing.
    ///
    /// Thread: owner.
    virtual void updatePresentation(const Entry &entry, bool refined);

private:
    Q_DISABLE_COPY(EntryPropertySet)
};

} // namespace VeskFM
