// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "diskspace.h"

#include <veskplatform/vfs.h>

#include <QFutureWatcher>
#include <QStorageInfo>
#include <QtConcurrentRun>

using namespace VeskFM;

namespace
{
constexpr int intervalMs = 10000;
} // namespace

DiskSpace::DiskSpace(QObject *parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
    m_timer.setInterval(intervalMs);
    connect(&m_timer, &QTimer::timeout, this, &DiskSpace::update);
}

void DiskSpace::setDirectory(const Entry &directory)
{
    const bool isOther = directory != m_directory;
    m_directory = directory;
    if (directory.isNull()) {
        m_timer.stop();
        return;
    }
    m_timer.start();
    if (isOther)
        update();
}

void DiskSpace::update()
{
    const QString path = m_directory.localPath();
    // A server that does not answer would hold the thread, and with it the end of the program.
    if (path.isEmpty() || VFS::ptr()->isOnSlowFileSystem(m_directory.path(), path)) {
        Q_EMIT changed(-1, -1);
        return;
    }
    if (m_asking)
        return;
    m_asking = true;
    auto *const watcher = new QFutureWatcher<QStorageInfo>(this);
    connect(watcher, &QFutureWatcher<QStorageInfo>::finished, this, [this, watcher, path] {
        watcher->deleteLater();
        m_asking = false;
        const QStorageInfo info = watcher->result();
        if (path != m_directory.localPath())
            update();
        else
            Q_EMIT changed(info.isValid() ? info.bytesAvailable() : -1, info.isValid() ? info.bytesTotal() : -1);
    });
    watcher->setFuture(QtConcurrent::run(&m_pool, [path] { return QStorageInfo(path); }));
}
