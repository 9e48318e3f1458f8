// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/vfs.h>

#include "localvfs.h"

#include <QCoreApplication>

#include <atomic>

namespace VeskFM
{

namespace
{
std::atomic<VFS *> installedVfs{nullptr};

VFS *localVfs()
{
    static LocalVfs *const vfs = [] {
        auto *const made = new LocalVfs; // never deleted: entries and threads may use it until the process ends
        if (const QCoreApplication *const application = QCoreApplication::instance())
            made->moveToThread(application->thread());
        return made;
    }();
    return vfs;
}
} // namespace

VFS::VFS(QObject *parent)
    : QObject(parent)
{
}

VFS::~VFS() = default;

VFS *VFS::ptr()
{
    VFS *const installed = installedVfs.load(std::memory_order_acquire);
    return installed ? installed : localVfs();
}

VFS *VFS::install(VFS *vfs)
{
    return installedVfs.exchange(vfs, std::memory_order_acq_rel);
}

QString VFS::parentDirPath(const QString &path)
{
    int end = path.size();
    while (end > 1 && path.at(end - 1) == QLatin1Char('/'))
        --end;
    if (end <= 1)
        return {};
    const int slash = path.lastIndexOf(QLatin1Char('/'), end - 1);
    return slash < 0 ? QString() : path.left(qMax(slash, 1));
}

} // namespace VeskFM
