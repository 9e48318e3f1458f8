// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QObject>
#include <QString>
#include <QVector>

namespace VeskFM
{

/// A device with files on it: a disc, or a part of a disk that has a file system. A plain value.
struct VESKPLATFORM_EXPORT StorageDevice
{
    QString id;         ///< unique among those present, and the same as long as it is
    int type = 0;       ///< as StoragePlace::type(); 9 is a device of no such kind
    QString label;      ///< what the user reads
    QString iconName;   ///< empty for the usual one of its type
    QString mountPoint; ///< a VFS path; empty while it is not mounted
    bool canMount = false;
    bool canUnmount = false;
    bool canEject = false;

    bool operator==(const StorageDevice &other) const;
    bool operator!=(const StorageDevice &other) const { return !(*this == other); }
};

/// Where the storage places of the local VFS come from. Unless another one is installed: the system's disk service,
/// else the mount table.
///
/// Thread: all calls but install() from any thread; they return at once. Signals may come from any thread.
class VESKPLATFORM_EXPORT StorageSource : public QObject
{
    Q_OBJECT

public:
    explicit StorageSource(QObject *parent = nullptr);
    ~StorageSource() override;

    /// Puts @p source in place of the present one; null restores that of the system. Call it on the GUI thread; the
    /// places follow. Returns what was installed before (null for the system's); the caller keeps the ownership of both.
    static StorageSource *install(StorageSource *source);
    static StorageSource *ptr();

    virtual QVector<StorageDevice> devices() const = 0; ///< as last seen, in display order
    /// Waits until devices() has looked for the first time; false after @p timeoutMs. True unless overridden.
    virtual bool waitForDevices(int timeoutMs) const;

    // Asynchronous; finished() tells the end. Refused with a text unless overridden.
    virtual void mount(const QString &id);
    virtual void unmount(const QString &id);
    virtual void eject(const QString &id);

Q_SIGNALS:
    void devicesChanged();
    /// Once for each mount(), unmount() and eject(). @p errorText: for the user; empty when all went well.
    void finished(const QString &id, const QString &errorText);
};

} // namespace VeskFM
