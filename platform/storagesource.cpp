// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/storagesource.h>

#include "localstorage.h"
#include "localvfs.h"

#include <atomic>
#include <tuple>

namespace VeskFM
{

namespace
{
std::atomic<StorageSource *> installedSource{nullptr};
}

bool StorageDevice::operator==(const StorageDevice &other) const
{
    const auto fields = [](const StorageDevice &device) {
        return std::tie(device.id, device.type, device.label, device.iconName, device.mountPoint, device.canMount,
                        device.canUnmount, device.canEject);
    };
    return fields(*this) == fields(other);
}

StorageSource::StorageSource(QObject *parent)
    : QObject(parent)
{
}

StorageSource::~StorageSource() = default;

StorageSource *StorageSource::ptr()
{
    StorageSource *const installed = installedSource.load(std::memory_order_acquire);
    return installed ? installed : LocalStorage::ptr();
}

StorageSource *StorageSource::install(StorageSource *source)
{
    StorageSource *const former = installedSource.exchange(source, std::memory_order_acq_rel);
    if (const auto *const local = qobject_cast<LocalVfs *>(VFS::ptr()))
        local->lookAtStorage();
    return former;
}

bool StorageSource::waitForDevices(int) const
{
    return true;
}

void StorageSource::mount(const QString &id)
{
    Q_EMIT finished(id, tr("This device cannot be mounted from here."));
}

void StorageSource::unmount(const QString &id)
{
    Q_EMIT finished(id, tr("This device cannot be unmounted from here."));
}

void StorageSource::eject(const QString &id)
{
    Q_EMIT finished(id, tr("This device cannot be ejected from here."));
}

} // namespace VeskFM
