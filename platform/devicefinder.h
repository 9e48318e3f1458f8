// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/storagesource.h>

namespace VeskFM
{

/// Finds the storage devices in some way. Made, used and destroyed in one thread, which has an event loop; may block.
class DeviceFinder : public QObject
{
    Q_OBJECT

public:
    ~DeviceFinder() override;

    virtual QVector<StorageDevice> devices() = 0; ///< in display order
    virtual void mount(const QString &id);        ///< finished() tells the end; refused unless overridden
    virtual void unmount(const QString &id);
    virtual void eject(const QString &id);

Q_SIGNALS:
    void changed(); ///< perhaps several times for one change
    void finished(const QString &id, const QString &errorText);
};

/// The label of a device for the user: @p label, else its size and kind, else its name.
/// @param bytes  0 for unknown
QString storageLabel(const QString &label, quint64 bytes, int type, const QString &name);

/// Whether what is mounted there belongs to the system itself, or has a place of its own: nobody looks for it among the
/// devices. @p mountPoint in bytes.
bool isSystemMountPoint(const QByteArray &mountPoint);

} // namespace VeskFM
