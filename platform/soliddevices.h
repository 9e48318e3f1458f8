// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "devicefinder.h"

#include <Solid/Device>
#include <Solid/SolidNamespace>

#include <QHash>

#include <functional>
#include <memory>

namespace VeskFM
{

/// Finds the devices through Solid: with a disk service also those that are not mounted, and mounts them.
class SolidDevices : public DeviceFinder
{
    Q_OBJECT

public:
    /// Null where Solid knows no devices at all, as without a disk service.
    static std::unique_ptr<DeviceFinder> make();

    QVector<StorageDevice> devices() override;
    void mount(const QString &id) override;
    void unmount(const QString &id) override;
    void eject(const QString &id) override;

private:
    SolidDevices();
    void listenTo(const Solid::Device &device);
    void start(const QString &id, const Solid::Device &device, const std::function<bool()> &operation);
    void onDone(Solid::ErrorType error, const QVariant &details, const QString &udi);
    void onAccessibilityChanged(bool accessible, const QString &udi);

    QHash<QString, Solid::Device> m_devices; // by id; they tell changes as long as they are kept
    QMultiHash<QString, QString> m_pending;  // ids of devices, by what was asked to do something
};

} // namespace VeskFM
