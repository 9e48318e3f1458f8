// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/storagesource.h>

#include <QThread>

#include <condition_variable>
#include <memory>
#include <mutex>

class QTimer;

namespace VeskFM
{

class DeviceFinder;

/// The storage devices of the system. They are looked for in a thread of its own, since disk services are asked on the
/// bus and may take their time; what was found last is kept here.
///
/// The thread starts with the first question, and ends with the application object.
///
/// Thread: any.
class LocalStorage : public StorageSource
{
    Q_OBJECT

public:
    static LocalStorage *ptr(); ///< never deleted
    ~LocalStorage() override;

    QVector<StorageDevice> devices() const override;
    bool waitForDevices(int timeoutMs) const override;
    void mount(const QString &id) override;
    void unmount(const QString &id) override;
    void eject(const QString &id) override;

private:
    LocalStorage();
    void start() const;
    void stop();
    void ask(const QString &id, void (DeviceFinder::*operation)(const QString &));
    void begin(); // these in the thread
    void look();
    void end();

    mutable QThread m_thread;
    QObject *const m_inThread;              // lives there
    std::unique_ptr<DeviceFinder> m_finder; // in the thread only
    std::unique_ptr<QTimer> m_delay;        // likewise
    mutable std::mutex m_mutex;             // of what follows, and of starting the thread
    mutable std::condition_variable m_found;
    QVector<StorageDevice> m_devices;
    bool m_looked = false;
};

} // namespace VeskFM
