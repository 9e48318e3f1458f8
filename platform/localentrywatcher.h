// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "directorypoller.h"
#include "directoryregistry.h"
#include "inotifyreader.h"

#include <veskplatform/entrywatcher.h>

#include <QAtomicInt>
#include <QElapsedTimer>
#include <QSet>
#include <QThreadPool>

#include <mutex>

namespace VeskFM
{

class LocalVfs;

/// Lists directories of the local disk and watches what was listed.
///
/// Listings run on a small pool of threads and are told from there. Changes are told from the thread of the inotify
/// reader, with entries that were looked at just then; a directory that cannot be watched is looked at every two
/// seconds. Directories that nobody shows any more are let go once there are many.
///
/// The threads end with the application object, or with the process.
class LocalEntryWatcher : public EntryWatcher,
                          private InotifyHandler
{
    Q_OBJECT

public:
    explicit LocalEntryWatcher(LocalVfs *vfs); ///< becomes a child of @p vfs
    ~LocalEntryWatcher() override;

    void listDir(const Entry &entry, VFS::EntryChildFilters filters) override;
    /// Remembers the entry and looks once whether it is still there; entryDeleted() if not.
    void addBadEntry(const Entry &entry) override;
    /// Something else may be mounted at @p path now: what is shown of it and below it is listed again. Thread: any.
    void lookAgain(const QString &path);

private:
    void start();
    void stop();
    static void stopRunning();

    void list(const Entry &entry, VFS::EntryChildFilters filters, const QByteArray &directory);
    void watch(const QByteArray &directory);
    void unwatch(const QByteArray &directory);
    void warnOfLimit();
    bool rememberBadEntry(const Entry &entry);

    void onDirectoryEvent(const QByteArray &directory, quint32 mask, const QByteArray &name) override;
    void onEventsLost() override;
    int onRound() override;
    void tell(DirectoryNews news);
    void tellDirectory(const DirectoryNews &news);
    void followFavorites(const ShownEntry &group, const QByteArray &directory);
    void tellReset(const DirectoryNews &news);
    void tellVanished(const DirectoryNews &news);
    void tellChange(const QByteArray &directory, const PendingChanges::Change &change, bool archivesAsFiles);

    LocalVfs *const m_vfs;
    QElapsedTimer m_clock;
    DirectoryRegistry m_registry;
    DirectoryPoller m_poller;
    QAtomicInt m_cancel; // stops the listings at the end
    bool m_running = false;
    std::once_flag m_limitWarning;
    std::mutex m_badMutex;
    QSet<QString> m_bad; // paths
    InotifyReader m_reader;
    QThreadPool m_listings;
    QThreadPool m_archiveListings; // their own, as these may take long
};

} // namespace VeskFM
