// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "singletonereleaser.h"

#include <veskfm/singletone.h>

#include <QCoreApplication>
#include <QMutexLocker>
#include <QThread>

namespace VeskFM
{

SingletoneReleaser *SingletoneReleaser::instance()
{
    static auto *const releaser = new SingletoneReleaser;
    releaser->connectToQuit();
    return releaser;
}

void SingletoneReleaser::connectToQuit()
{
    const QMutexLocker lock(&m_mutex);
    QCoreApplication *application = QCoreApplication::instance();
    if (m_connectedToQuit || !application)
        return;
    if (thread() == QThread::currentThread())
        moveToThread(application->thread());
    // Direct: made by a worker before there was an application, the releaser belongs to a thread that may be gone.
    connect(application, &QCoreApplication::aboutToQuit, this, &SingletoneReleaser::releaseSingletones,
            Qt::DirectConnection);
    m_connectedToQuit = true;
}

void SingletoneReleaser::add(Singletone *object)
{
    const QMutexLocker lock(&m_mutex);
    if (!m_singletones.contains(object))
        m_singletones.append(object);
}

void SingletoneReleaser::remove(Singletone *object)
{
    const QMutexLocker lock(&m_mutex);
    m_singletones.removeAll(object);
}

void SingletoneReleaser::releaseSingletones()
{
    if (m_released)
        return;
    m_mutex.lock();
    const QVector<Singletone *> singletones = m_singletones;
    m_mutex.unlock();
    for (Singletone *object : singletones) {
        if (contains(object)) // one that was freed before may have deleted it
            object->free();
    }
    m_released = true;
}

bool SingletoneReleaser::contains(Singletone *object)
{
    const QMutexLocker lock(&m_mutex);
    return m_singletones.contains(object);
}

} // namespace VeskFM
