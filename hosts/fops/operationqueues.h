// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "operation.h"

#include <QHash>
#include <QMutex>
#include <QObject>
#include <QQueue>
#include <QThreadPool>

#include <sys/types.h>

/// Runs operations: one after the other on each file system, different file systems side by side.
///
/// Thread: main. The operations run on threads of its own.
class OperationQueues : public QObject
{
    Q_OBJECT

public:
    explicit OperationQueues(QObject *parent = nullptr);
    ~OperationQueues() override; ///< waits for all that runs

    void add(const OperationPtr &operation);

Q_SIGNALS:
    void finished(const OperationPtr &operation); ///< on the main thread

private:
    void assign(const OperationPtr &operation);
    void work(dev_t fileSystem);
    OperationPtr takeNext(dev_t fileSystem);

    QMutex m_mutex;
    QHash<dev_t, QQueue<OperationPtr>> m_queues; // under the mutex; a key is there as long as a worker serves it
    QThreadPool m_assigner;                      // one thread: it asks the disk, and keeps the order of requests
    QThreadPool m_workers;
};
