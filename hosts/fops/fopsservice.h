// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "operationqueues.h"

#include <veskfm/service.h>

#include <QList>

/// The file-operation service: takes requests, keeps the process alive while they are worked on, and announces results.
///
/// Thread: main.
class FopsService : public VeskFM::Service
{
    Q_OBJECT

public:
    explicit FopsService(QObject *parent = nullptr);

    void start(const OperationPtr &operation);
    int percent(const QString &stamp) const; ///< of the oldest operation of this stamp; -1 for none
    void finish();                           ///< quits when the operations that there are have ended
    void stop();                             ///< undoes what each operation is just making, and then quits

public Q_SLOTS:
    void release() override;

Q_SIGNALS:
    void finished(const QString &stamp, Result result, const QStringList &madePaths);

private:
    void onFinished(const OperationPtr &operation);

    OperationQueues m_queues;
    QList<OperationPtr> m_operations; // started and not announced, in the order of the requests
    bool m_isStopping = false;
};
