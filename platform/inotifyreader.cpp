// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inotifyreader.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <cerrno>

namespace VeskFM
{

namespace
{
constexpr quint32 watchedEvents = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_MODIFY | IN_CLOSE_WRITE
    | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR | IN_EXCL_UNLINK;
constexpr quint32 endOfWatch = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED; // of what the path led to
constexpr size_t bufferBytes = 64 * 1024;

void closeDescriptor(std::atomic<int> *descriptor)
{
    const int fd = descriptor->exchange(-1); // first: somebody may still want to wake the thread
    if (fd >= 0)
        close(fd);
}
} // namespace

InotifyHandler::~InotifyHandler() = default;

InotifyReader::InotifyReader(InotifyHandler *handler)
    : m_handler(handler)
{
    setObjectName(QStringLiteral("vesk-inotify"));
}

InotifyReader::~InotifyReader()
{
    stop();
}

bool InotifyReader::open()
{
    m_wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (m_wakeUp < 0)
        return false;
    m_inotify = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    m_stopping = false;
    return true;
}

void InotifyReader::stop()
{
    m_stopping = true;
    wake();
    wait();
    const std::lock_guard<std::mutex> lock(m_mutex);
    closeDescriptor(&m_inotify);
    closeDescriptor(&m_wakeUp);
    m_watches.clear();
    m_directories.clear();
    ++m_session;
}

void InotifyReader::wake()
{
    if (m_wakeUp >= 0)
        eventfd_write(m_wakeUp, 1);
}

int InotifyReader::watch(const QByteArray &directory)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_added.wait(lock, [&] { return !m_adding.contains(directory); }); // the last look at the path must be the one kept
    m_adding.insert(directory);
    const int error = add(directory, &lock);
    m_adding.remove(directory);
    m_added.notify_all();
    return error;
}

/// @param lock  of the mutex; given up for the system call, which may hang in a dead file system
int InotifyReader::add(const QByteArray &directory, std::unique_lock<std::mutex> *lock)
{
    const int session = m_session;
    while (m_inotify >= 0 && m_session == session) {
        const quint64 missedEnds = m_missedEnds;
        lock->unlock();
        const int id = inotify_add_watch(m_inotify, directory.constData(), watchedEvents);
        const int error = errno;
        lock->lock();
        // What the path led to may be gone already: look where it leads now.
        if (m_session != session || (id >= 0 && m_missedEnds != missedEnds))
            continue;
        if (id >= 0 && m_watches.value(directory, -1) == id)
            return 0;
        forget(directory); // the path led to another directory before
        if (id < 0)
            return error;
        m_watches.insert(directory, id);
        m_directories[id].append(directory);
        return 0;
    }
    return EMFILE;
}

void InotifyReader::unwatch(const QByteArray &directory)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    forget(directory);
}

bool InotifyReader::isWatching(const QByteArray &directory) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_watches.contains(directory);
}

void InotifyReader::forget(const QByteArray &directory)
{
    const auto watch = m_watches.find(directory);
    if (watch == m_watches.end())
        return;
    const int id = watch.value();
    m_watches.erase(watch);
    QList<QByteArray> &paths = m_directories[id];
    paths.removeOne(directory);
    if (!paths.isEmpty())
        return;
    m_directories.remove(id);
    inotify_rm_watch(m_inotify, id);
}

void InotifyReader::run()
{
    int timeoutMs = m_handler->onRound();
    while (!m_stopping) {
        pollfd descriptors[] = {{m_wakeUp, POLLIN, 0}, {m_inotify, POLLIN, 0}};
        poll(descriptors, m_inotify >= 0 ? 2 : 1, timeoutMs);
        eventfd_t ignored = 0;
        eventfd_read(m_wakeUp, &ignored);
        if (m_inotify >= 0)
            readEvents();
        if (!m_stopping)
            timeoutMs = m_handler->onRound();
    }
}

void InotifyReader::readEvents()
{
    alignas(inotify_event) char buffer[bufferBytes];
    const ssize_t size = read(m_inotify, buffer, sizeof buffer);
    for (ssize_t at = 0; at < size;) {
        const auto *const event = reinterpret_cast<const inotify_event *>(buffer + at);
        report(*event);
        at += ssize_t(sizeof *event) + event->len;
    }
}

void InotifyReader::report(const inotify_event &event)
{
    if (event.mask & IN_Q_OVERFLOW) {
        m_handler->onEventsLost();
        return;
    }
    QList<QByteArray> directories;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        directories = m_directories.value(event.wd); // nothing for a watch that was ended meanwhile, or is being added
        if (directories.isEmpty() && (event.mask & endOfWatch))
            ++m_missedEnds;
        if (event.mask & IN_IGNORED) {
            m_directories.remove(event.wd);
            for (const QByteArray &directory : qAsConst(directories))
                m_watches.remove(directory);
        }
    }
    const QByteArray name = event.len > 0 ? QByteArray(event.name) : QByteArray();
    for (const QByteArray &directory : qAsConst(directories))
        m_handler->onDirectoryEvent(directory, event.mask, name);
}

} // namespace VeskFM
