// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "devicefinder.h"
#include "mounttable.h"

#include <QSocketNotifier>

namespace VeskFM
{

/// Finds the devices that are mounted, in the mount table: what is left where no service knows the others.
class MountedDevices : public DeviceFinder
{
    Q_OBJECT

public:
    MountedDevices();
    ~MountedDevices() override;

    QVector<StorageDevice> devices() override;
    /// The devices of a table: those with a device file, once each, but for those that the system itself uses.
    static QVector<StorageDevice> devicesOf(const MountTable &table);

private:
    const int m_descriptor; // of the table
    QSocketNotifier m_notifier;
};

} // namespace VeskFM
