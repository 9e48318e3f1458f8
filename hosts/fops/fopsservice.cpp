// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fopsservice.h"

#include "fileoperationadaptor.h"

#include <QCoreApplication>

#include <algorithm>

FopsService::FopsService(QObject *parent)
    : Service(parent)
{
    new FileOperationAdaptor(this);
    connect(&m_queues, &OperationQueues::finished, this, &FopsService::onFinished);
}

void FopsService::start(const OperationPtr &operation)
{
    lockUnloader();
    m_operations.append(operation);
    if (m_isStopping)
        operation->progress().cancel();
    m_queues.add(operation);
}

int FopsService::percent(const QString &stamp) const
{
    const auto found = std::find_if(m_operations.cbegin(), m_operations.cend(),
                                    [&stamp](const OperationPtr &operation) { return operation->stamp() == stamp; });
    return found == m_operations.cend() ? -1 : (*found)->progress().percent();
}

void FopsService::onFinished(const OperationPtr &operation)
{
    m_operations.removeOne(operation);
    Q_EMIT finished(operation->stamp(), operation->result(), operation->madePaths());
    unlockUnloader();
    if (m_isStopping && m_operations.isEmpty())
        QCoreApplication::quit();
}

void FopsService::finish()
{
    m_isStopping = true;
    if (m_operations.isEmpty())
        QCoreApplication::quit();
}

void FopsService::stop()
{
    for (const OperationPtr &operation : qAsConst(m_operations))
        operation->progress().cancel();
    finish();
}

void FopsService::release() {}
