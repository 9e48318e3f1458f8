// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSet>
#include <QThread>

#include <atomic>
#include <condition_variable>
#include <mutex>

struct inotify_event;

namespace VeskFM
{

/// What an InotifyReader reports, all of it on its thread. Directories go by their paths.
class InotifyHandler
{
public:
    virtual ~InotifyHandler();
    virtual void onDirectoryEvent(const QByteArray &directory, quint32 mask, const QByteArray &name) = 0;
    /// The kernel dropped events: anything may have changed anywhere.
    virtual void onEventsLost() = 0;
    /// Called after each round. Returns in how many milliseconds to call it again at the latest; -1 for when it likes.
    virtual int onRound() = 0;
};

/// Watches directories through inotify, on a thread of its own.
///
/// A path stands for the directory that it led to when it was last watched; several paths may lead to one.
///
/// Thread: watch(), unwatch() and wake() any; start() and stop() one at a time.
class InotifyReader : public QThread
{
public:
    explicit InotifyReader(InotifyHandler *handler); ///< borrows @p handler
    ~InotifyReader() override;

    bool open(); ///< what start() needs; false when the system has no more descriptors
    void stop(); ///< ends the thread and all watches; open() and start() begin anew
    void wake(); ///< makes the handler's next round come at once

    /// Starts or renews the watch. Returns 0 or errno. What happens in the directory before it returns may go
    /// unreported: look at it afterwards. A dead network keeps nobody but those waiting who watch the same path.
    int watch(const QByteArray &directory);
    void unwatch(const QByteArray &directory);
    bool isWatching(const QByteArray &directory) const;

protected:
    void run() override;

private:
    void readEvents();
    void report(const inotify_event &event);
    int add(const QByteArray &directory, std::unique_lock<std::mutex> *lock);
    void forget(const QByteArray &directory); // with the mutex

    InotifyHandler *const m_handler;
    std::atomic<int> m_inotify{-1}; // -1 also when the system has no more instances: then nothing can be watched
    std::atomic<int> m_wakeUp{-1};
    std::atomic<bool> m_stopping{false};
    mutable std::mutex m_mutex; // guards what follows
    QHash<QByteArray, int> m_watches;
    QHash<int, QList<QByteArray>> m_directories;
    QSet<QByteArray> m_adding; // being watched just now, not in the tables yet
    std::condition_variable m_added;
    quint64 m_missedEnds = 0; // of watches that are not in the tables, perhaps because they are being added
    int m_session = 0;        // counts stops: a watch that was begun before one is none any more
};

} // namespace VeskFM
