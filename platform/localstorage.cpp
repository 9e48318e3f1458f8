// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localstorage.h"

#include "mounteddevices.h"
#if VESKPLATFORM_HAS_SOLID
#include "soliddevices.h"
#endif

#include <QCoreApplication>
#include <QTimer>

#include <chrono>

namespace VeskFM
{

namespace
{
constexpr int delayMs = 50; // a device that comes makes several changes
constexpr int stopTimeoutMs = 2000;

std::unique_ptr<DeviceFinder> makeFinder()
{
    std::unique_ptr<DeviceFinder> finder;
#if VESKPLATFORM_HAS_SOLID
    finder = SolidDevices::make();
#endif
    return finder ? std::move(finder) : std::make_unique<MountedDevices>();
}
} // namespace

LocalStorage::LocalStorage()
    : m_inThread(new QObject)
{
    m_thread.setObjectName(QStringLiteral("vesk-storage"));
    m_inThread->moveToThread(&m_thread);
    connect(&m_thread, &QThread::started, m_inThread, [this] { begin(); });
    connect(
        &m_thread, &QThread::finished, m_inThread, [this] { end(); }, Qt::DirectConnection); // its last act
}

LocalStorage::~LocalStorage() = default;

LocalStorage *LocalStorage::ptr()
{
    static LocalStorage *const storage = new LocalStorage;
    return storage;
}

void LocalStorage::start() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_thread.isRunning() || !QCoreApplication::instance())
        return;
    qAddPostRoutine([] { ptr()->stop(); });
    m_thread.start();
}

void LocalStorage::stop()
{
    m_thread.quit();
    m_thread.wait(stopTimeoutMs); // a question to a service may hang; the process still has to end
}

void LocalStorage::begin()
{
    m_finder = makeFinder();
    m_delay = std::make_unique<QTimer>();
    m_delay->setSingleShot(true);
    m_delay->setInterval(delayMs);
    const auto lookSoon = [this] {
        if (!m_delay->isActive())
            m_delay->start();
    };
    connect(m_finder.get(), &DeviceFinder::changed, m_delay.get(), lookSoon);
    connect(m_delay.get(), &QTimer::timeout, m_inThread, [this] { look(); });
    connect(m_finder.get(), &DeviceFinder::finished, m_inThread, [this](const QString &id, const QString &errorText) {
        look(); // who hears of the end finds the device as it is now
        Q_EMIT finished(id, errorText);
    });
    look();
}

void LocalStorage::look()
{
    const QVector<StorageDevice> found = m_finder->devices();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_looked && found == m_devices)
            return;
        m_devices = found;
        m_looked = true;
    }
    m_found.notify_all();
    Q_EMIT devicesChanged();
}

void LocalStorage::end()
{
    m_delay.reset();
    m_finder.reset();
}

QVector<StorageDevice> LocalStorage::devices() const
{
    start();
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_devices;
}

bool LocalStorage::waitForDevices(int timeoutMs) const
{
    start();
    std::unique_lock<std::mutex> lock(m_mutex);
    m_found.wait_for(lock, std::chrono::milliseconds(m_thread.isRunning() ? timeoutMs : 0),
                     [this] { return m_looked; });
    return m_looked;
}

void LocalStorage::ask(const QString &id, void (DeviceFinder::*operation)(const QString &))
{
    start();
    QMetaObject::invokeMethod(
        m_inThread,
        [=] {
            if (m_finder)
                (m_finder.get()->*operation)(id);
        },
        Qt::QueuedConnection);
}

void LocalStorage::mount(const QString &id)
{
    ask(id, &DeviceFinder::mount);
}

void LocalStorage::unmount(const QString &id)
{
    ask(id, &DeviceFinder::unmount);
}

void LocalStorage::eject(const QString &id)
{
    ask(id, &DeviceFinder::eject);
}

} // namespace VeskFM
