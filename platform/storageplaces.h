// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "placegroup.h"

#include <veskplatform/storagesource.h>

#include <QObject>

#include <atomic>

namespace VeskFM
{

class LocalEntryWatcher;

/// The storage places: one for each device of the StorageSource.
///
/// Thread: any; made in the application's thread or moved there, where changes are taken over and told.
class StoragePlaces : public QObject
{
    Q_OBJECT

public:
    StoragePlaces(const Entry &group, LocalEntryWatcher *watcher, QObject *parent);

    /// As far as they are known; away from the application's thread it waits a moment for them to be found.
    EntryList entries();
    Entry entry(const QString &path); ///< waits like that on any thread; null when there is none
    int indexOf(const QString &path) const;
    StoragePlace storagePlace(const QString &path) const; ///< not valid when there is none
    /// Takes over what the source has, which may be another one now.
    void update();

    static QString pathOf(const QString &deviceId);
    static QString deviceId(const QString &path); ///< empty for other paths

private:
    void load(int timeoutMs);
    void follow(StorageSource *source);
    void takeOver(StorageSource *source, bool isReady);

    LocalEntryWatcher *const m_watcher;
    PlaceGroup m_group;
    std::mutex m_mutex;                // of the source, and of reading what it has
    StorageSource *m_source = nullptr; // whose changes are followed
    std::atomic<bool> m_loaded{false};
    std::atomic<bool> m_shown{false}; // somebody has seen the list
    std::atomic<bool> m_waited{false};
};

} // namespace VeskFM
