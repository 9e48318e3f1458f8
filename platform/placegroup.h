// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "placeentrydata.h"

#include <veskplatform/entrylist.h>

#include <QHash>
#include <QVector>

#include <mutex>

namespace VeskFM
{

class EntryWatcher;

/// A place as somebody found it just now.
struct FoundPlace
{
    QString path;
    PlaceFacts facts;
};

/// The places of one group that come and go, in display order.
///
/// The models ask for the order while they handle what they were told, so the list must not run ahead of them: where
/// there are any, replace it in their thread, the GUI thread.
///
/// Thread: any.
class PlaceGroup
{
public:
    PlaceGroup(const Entry &group, EntryWatcher *watcher); ///< @p watcher borrowed; tells what changes

    EntryList entries() const;
    Entry entry(const QString &path) const; ///< null when there is none
    int indexOf(const QString &path) const; ///< -1 when there is none

    /// What became different. A place that changed its position is gone and new.
    struct News
    {
        EntryList deleted;
        EntryList created;
        EntryList changed;
        EntryList otherContents;
        bool wasEmpty = false;
    };
    News replace(const QVector<FoundPlace> &found); ///< takes over what there is now
    /// Has the watcher tell single places, so that branches of the others stay open. Call it without locks: who hears of
    /// it asks.
    void tell(const News &news) const;

private:
    struct Known
    {
        Entry entry;
        PlaceEntryData *data; // of the entry
    };
    const Entry m_group;
    EntryWatcher *const m_watcher;
    mutable std::mutex m_mutex;
    QVector<Known> m_places;
    QHash<QString, int> m_rows; // by path
};

} // namespace VeskFM
