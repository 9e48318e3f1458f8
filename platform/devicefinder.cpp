// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "devicefinder.h"

#include <KFormat>

#include <QCoreApplication>

#include <algorithm>

namespace VeskFM
{

namespace
{
QString kindName(int type)
{
    switch (type) {
    case 1:
        return DeviceFinder::tr("floppy disk");
    case 2:
        return DeviceFinder::tr("disc");
    case 3:
        return DeviceFinder::tr("removable disk");
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
        return DeviceFinder::tr("memory card");
    case 10:
        return DeviceFinder::tr("media player");
    default:
        return DeviceFinder::tr("disk");
    }
}
} // namespace

DeviceFinder::~DeviceFinder() = default;

void DeviceFinder::mount(const QString &id)
{
    Q_EMIT finished(id, tr("Devices cannot be mounted: the system has no disk service."));
}

void DeviceFinder::unmount(const QString &id)
{
    Q_EMIT finished(id, tr("Devices cannot be unmounted: the system has no disk service."));
}

void DeviceFinder::eject(const QString &id)
{
    Q_EMIT finished(id, tr("Devices cannot be ejected: the system has no disk service."));
}

QString storageLabel(const QString &label, quint64 bytes, int type, const QString &name)
{
    if (!label.trimmed().isEmpty())
        return label.trimmed();
    if (bytes == 0)
        return name;
    return DeviceFinder::tr("%1 %2", "size and kind: 8.0 GB removable disk")
        .arg(KFormat().formatByteSize(double(bytes), 1, KFormat::MetricBinaryDialect), kindName(type));
}

bool isSystemMountPoint(const QByteArray &mountPoint)
{
    static const char *const directories[] = {"/boot", "/efi", "/usr",  "/var",     "/etc", "/proc", "/sys",
                                              "/dev",  "/tmp", "/snap", "/sysroot", "/nix", "/gnu",  "/run"};
    if (mountPoint == "/" || mountPoint == "/home" || mountPoint.contains("/."))
        return true;
    if (mountPoint.startsWith("/run/media/"))
        return false;
    return std::any_of(std::begin(directories), std::end(directories), [&](const QByteArray &directory) {
        return mountPoint == directory || mountPoint.startsWith(directory + '/');
    });
}

} // namespace VeskFM
