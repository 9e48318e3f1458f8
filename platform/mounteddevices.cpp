// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mounteddevices.h"

#include "pathcodec.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <fcntl.h>
#include <unistd.h>

namespace VeskFM
{

namespace
{
constexpr quint64 sectorBytes = 512; // of the kernel's sizes, whatever the device has
const QLatin1String deviceDirectory("/dev/");

/// What the kernel and udev tell about a block device; nothing of it asks the device.
struct BlockDevice
{
    QString directory; // below /sys/devices; empty for a device without one, such as a file system over several

    explicit BlockDevice(const QByteArray &number)
        : directory(QFileInfo(QLatin1String("/sys/dev/block/") + QString::fromLatin1(number)).canonicalFilePath())
    {
    }

    QByteArray fact(const QString &name) const
    {
        QFile file(directory + QLatin1Char('/') + name);
        return !directory.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }
    quint64 size() const { return fact(QStringLiteral("size")).toULongLong() * sectorBytes; }
    bool isRemovable() const
    {
        return directory.contains(QLatin1String("/usb")) || fact(QStringLiteral("removable")) == "1"
            || fact(QStringLiteral("../removable")) == "1"; // a partition's disk
    }
    QString label() const
    {
        const QString name = directory.section(QLatin1Char('/'), -1);
        const QFileInfoList links =
            QDir(QStringLiteral("/dev/disk/by-label")).entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
        for (const QFileInfo &link : links) {
            if (!name.isEmpty() && link.symLinkTarget() == deviceDirectory + name)
                return unescaped(link.fileName());
        }
        return {};
    }
    /// Undoes what udev does to characters that it does not want in a name: "\x20".
    static QString unescaped(const QString &name)
    {
        const QByteArray text = name.toUtf8().replace('%', "%25").replace("\\x", "%");
        return QString::fromUtf8(QByteArray::fromPercentEncoding(text));
    }
};

int typeOf(const QByteArray &name, const Mount &mount, const BlockDevice &device)
{
    if (name.startsWith("fd"))
        return 1;
    if (name.startsWith("sr") || mount.type == "iso9660" || mount.type == "udf")
        return 2;
    if (name.startsWith("mmcblk"))
        return 5;
    if (name.startsWith("mspblk"))
        return 6;
    return device.isRemovable() ? 3 : 4;
}

StorageDevice deviceOf(const Mount &mount)
{
    const QByteArray name = mount.source.mid(deviceDirectory.size());
    const BlockDevice block(mount.device);
    StorageDevice device;
    device.id = PathCodec::decode(name);
    device.type = typeOf(name, mount, block);
    device.label = storageLabel(block.label(), block.size(), device.type, device.id);
    device.mountPoint = PathCodec::decode(mount.mountPoint);
    return device;
}
} // namespace

MountedDevices::MountedDevices()
    : m_descriptor(open(MountTable::file, O_RDONLY | O_CLOEXEC))
    , m_notifier(m_descriptor, QSocketNotifier::Exception)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &DeviceFinder::changed);
}

MountedDevices::~MountedDevices()
{
    m_notifier.setEnabled(false);
    if (m_descriptor >= 0)
        close(m_descriptor);
}

QVector<StorageDevice> MountedDevices::devices()
{
    return devicesOf(*MountTable::current());
}

QVector<StorageDevice> MountedDevices::devicesOf(const MountTable &table)
{
    QSet<QByteArray> known; // sources, also of those that are left out
    for (const Mount &mount : table.mounts()) {
        if (mount.mountPoint == "/")
            known.insert(mount.source);
    }
    QVector<StorageDevice> devices;
    for (const Mount &mount : table.mounts()) {
        const bool isPart = mount.root != "/" && mount.type != "btrfs"; // a directory bound to another place
        if (!mount.source.startsWith("/dev/") || mount.type == "squashfs" || isPart || known.contains(mount.source)
            || isSystemMountPoint(mount.mountPoint) || !table.isVisible(mount))
            continue;
        known.insert(mount.source);
        devices.append(deviceOf(mount));
    }
    return devices;
}

} // namespace VeskFM
