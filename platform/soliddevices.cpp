// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "soliddevices.h"

#include "pathcodec.h"

#include <Solid/Block>
#include <Solid/DeviceNotifier>
#include <Solid/GenericInterface>
#include <Solid/NetworkShare>
#include <Solid/OpticalDisc>
#include <Solid/OpticalDrive>
#include <Solid/PortableMediaPlayer>
#include <Solid/StorageAccess>
#include <Solid/StorageDrive>
#include <Solid/StorageVolume>

#include <QDBusConnection>
#include <QFile>

#include <algorithm>

namespace VeskFM
{

namespace
{
constexpr int otherType = 9;

/// The drive that @p device is, or is in.
Solid::Device driveOf(const Solid::Device &device)
{
    Solid::Device step = device;
    while (step.isValid() && !step.is<Solid::StorageDrive>())
        step = step.parent();
    return step;
}

int typeOf(const Solid::Device &device)
{
    if (device.is<Solid::PortableMediaPlayer>())
        return 10;
    const Solid::Device owner = driveOf(device);
    if (device.is<Solid::OpticalDisc>() || owner.is<Solid::OpticalDrive>())
        return 2;
    const auto *const drive = owner.as<Solid::StorageDrive>();
    if (!drive)
        return otherType;
    switch (drive->driveType()) {
    case Solid::StorageDrive::HardDisk:
        return drive->isHotpluggable() || drive->isRemovable() ? 3 : 4;
    case Solid::StorageDrive::Floppy:
        return 1;
    case Solid::StorageDrive::CompactFlash:
        return 7;
    case Solid::StorageDrive::MemoryStick:
        return 6;
    case Solid::StorageDrive::SmartMedia:
        return 8;
    case Solid::StorageDrive::SdMmc:
        return 5;
    default:
        return otherType;
    }
}

/// The file of the device without its directory: what users and the mount table call it.
QString nameOf(const Solid::Device &device)
{
    const auto *const block = device.as<Solid::Block>();
    const QString file = block ? block->device() : QString();
    const QLatin1String directory("/dev/");
    return file.startsWith(directory) ? file.mid(directory.size()) : device.udi().section(QLatin1Char('/'), -1);
}

bool holdsFiles(const Solid::Device &device)
{
    if (!device.is<Solid::StorageAccess>() || device.is<Solid::NetworkShare>())
        return false;
    const auto *const volume = device.as<Solid::StorageVolume>();
    if (!volume)
        return true;
    const bool isUsable =
        volume->usage() == Solid::StorageVolume::FileSystem || volume->usage() == Solid::StorageVolume::Encrypted;
    return isUsable && !volume->isIgnored();
}

QString errorOf(Solid::ErrorType error, const QVariant &details)
{
    switch (error) {
    case Solid::NoError:
        return {};
    case Solid::UnauthorizedOperation:
        return SolidDevices::tr("You are not allowed to do that with this device.");
    case Solid::DeviceBusy:
        return SolidDevices::tr("The device is in use. Close what is open on it first.");
    case Solid::UserCanceled:
        return SolidDevices::tr("Cancelled.");
    default:
        return details.toString().isEmpty() ? SolidDevices::tr("The disk service could not do that.")
                                            : details.toString();
    }
}
} // namespace

SolidDevices::SolidDevices()
{
    const auto *const notifier = Solid::DeviceNotifier::instance(); // that of this thread
    connect(notifier, &Solid::DeviceNotifier::deviceAdded, this, &DeviceFinder::changed);
    connect(notifier, &Solid::DeviceNotifier::deviceRemoved, this, &DeviceFinder::changed);
}

std::unique_ptr<DeviceFinder> SolidDevices::make()
{
    const bool hasBus =
        QDBusConnection::systemBus().isConnected(); // where the disk service is; Solid complains without
    if (!hasBus || Solid::Device::listFromType(Solid::DeviceInterface::StorageVolume).isEmpty())
        return nullptr;
    return std::unique_ptr<DeviceFinder>(new SolidDevices);
}

QVector<StorageDevice> SolidDevices::devices()
{
    QHash<QString, Solid::Device> known;
    QVector<StorageDevice> devices;
    const QList<Solid::Device> all = Solid::Device::listFromType(Solid::DeviceInterface::StorageAccess);
    for (const Solid::Device &device : all) {
        if (!holdsFiles(device))
            continue;
        const auto *const access = device.as<Solid::StorageAccess>();
        const auto *const volume = device.as<Solid::StorageVolume>();
        listenTo(device);
        StorageDevice found;
        found.id = nameOf(device);
        known.insert(found.id, device);
        const QByteArray mountPoint = access->isAccessible() ? QFile::encodeName(access->filePath()) : QByteArray();
        if (!mountPoint.isEmpty() && isSystemMountPoint(mountPoint))
            continue;
        found.type = typeOf(device);
        found.label = storageLabel(volume ? volume->label() : device.displayName(), volume ? volume->size() : 0,
                                   found.type, found.id);
        found.iconName = device.icon();
        found.mountPoint = PathCodec::decode(mountPoint);
        found.canMount = mountPoint.isEmpty();
        found.canUnmount = !mountPoint.isEmpty();
        found.canEject = driveOf(device).is<Solid::OpticalDrive>();
        devices.append(found);
    }
    std::sort(devices.begin(), devices.end(),
              [](const StorageDevice &a, const StorageDevice &b) { return a.id < b.id; });
    m_devices = known;
    return devices;
}

void SolidDevices::listenTo(const Solid::Device &device)
{
    const auto *const access = device.as<Solid::StorageAccess>();
    connect(access, &Solid::StorageAccess::accessibilityChanged, this, &SolidDevices::onAccessibilityChanged,
            Qt::UniqueConnection);
    connect(access, &Solid::StorageAccess::setupDone, this, &SolidDevices::onDone, Qt::UniqueConnection);
    connect(access, &Solid::StorageAccess::teardownDone, this, &SolidDevices::onDone, Qt::UniqueConnection);
    if (const auto *const facts = device.as<Solid::GenericInterface>())
        connect(facts, &Solid::GenericInterface::propertyChanged, this, &DeviceFinder::changed, Qt::UniqueConnection);
}

void SolidDevices::mount(const QString &id)
{
    Solid::Device device = m_devices.value(id);
    auto *const access = device.as<Solid::StorageAccess>();
    start(id, device, [access] { return access && access->setup(); });
}

void SolidDevices::unmount(const QString &id)
{
    Solid::Device device = m_devices.value(id);
    auto *const access = device.as<Solid::StorageAccess>();
    start(id, device, [access] { return access && access->teardown(); });
}

void SolidDevices::eject(const QString &id)
{
    Solid::Device drive = driveOf(m_devices.value(id));
    auto *const optical = drive.as<Solid::OpticalDrive>();
    if (optical)
        connect(optical, &Solid::OpticalDrive::ejectDone, this, &SolidDevices::onDone, Qt::UniqueConnection);
    start(id, drive, [optical] { return optical && optical->eject(); });
}

void SolidDevices::start(const QString &id, const Solid::Device &device, const std::function<bool()> &operation)
{
    m_pending.insert(device.udi(), id); // first: it may end at once
    if (!operation() && m_pending.remove(device.udi(), id) > 0)
        Q_EMIT finished(id, tr("The disk service does not do that with this device."));
}

void SolidDevices::onDone(Solid::ErrorType error, const QVariant &details, const QString &udi)
{
    const QString id = m_pending.take(udi); // empty when another program asked for it
    if (!id.isEmpty())
        Q_EMIT finished(id, errorOf(error, details));
    Q_EMIT changed();
}

/// What was asked for is reached; some services tell no other end.
void SolidDevices::onAccessibilityChanged(bool, const QString &udi)
{
    onDone(Solid::NoError, {}, udi);
}

} // namespace VeskFM
