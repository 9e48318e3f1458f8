// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "operationqueues.h"

#include <QMutexLocker>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace
{

constexpr int mostWorkers = 256;                // one for each file system in use
constexpr uint stackSize = 32U * 1024U * 1024U; // for the deepest trees; only what is used takes memory

/// The file system of a path, or of the nearest directory above it that exists. Asks no server for news: the answer
/// only chooses a queue.
dev_t fileSystemOf(const QString &vfsPath)
{
    QByteArray path = diskBytes(vfsPath);
    while (!path.isEmpty()) {
        struct statx facts = {};
        if (statx(AT_FDCWD, path.constData(), AT_SYMLINK_NOFOLLOW | AT_STATX_DONT_SYNC, STATX_TYPE, &facts) == 0
            && !S_ISLNK(facts.stx_mode))
            return makedev(facts.stx_dev_major, facts.stx_dev_minor);
        if (path == "/")
            break;
        path = path.left(qMax(1, path.lastIndexOf('/')));
    }
    return 0;
}

} // namespace

OperationQueues::OperationQueues(QObject *parent)
    : QObject(parent)
{
    m_assigner.setMaxThreadCount(1);
    m_workers.setMaxThreadCount(mostWorkers);
    m_workers.setStackSize(stackSize);
}

OperationQueues::~OperationQueues()
{
    m_assigner.waitForDone();
    m_workers.waitForDone();
}

void OperationQueues::add(const OperationPtr &operation)
{
    m_assigner.start([this, operation] { assign(operation); });
}

void OperationQueues::assign(const OperationPtr &operation)
{
    const dev_t fileSystem = fileSystemOf(operation->place());
    const QMutexLocker locker(&m_mutex);
    const bool isServed = m_queues.contains(fileSystem);
    m_queues[fileSystem].enqueue(operation);
    if (!isServed)
        m_workers.start([this, fileSystem] { work(fileSystem); });
}

void OperationQueues::work(dev_t fileSystem)
{
    while (const OperationPtr operation = takeNext(fileSystem)) {
        operation->execute();
        QMetaObject::invokeMethod(
            this, [this, operation] { Q_EMIT finished(operation); }, Qt::QueuedConnection);
    }
}

OperationPtr OperationQueues::takeNext(dev_t fileSystem)
{
    const QMutexLocker locker(&m_mutex);
    const auto queue = m_queues.find(fileSystem);
    if (!queue->isEmpty())
        return queue->dequeue();
    m_queues.erase(queue);
    return nullptr;
}
