// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/desktopentrypool.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>

namespace VeskFM
{

namespace
{
constexpr int recordLifeMs = 5000; // long enough for one entry to be prepared, refined and prepared again
std::mutex instanceMutex;
} // namespace

DesktopEntryPool *DesktopEntryPool::m_ptr = nullptr;

DesktopEntryPool *DesktopEntryPool::ptr()
{
    const std::lock_guard<std::mutex> lock(instanceMutex);
    if (!m_ptr)
        m_ptr = new DesktopEntryPool;
    return m_ptr;
}

DesktopEntryPool::DesktopEntryPool(QObject *parent)
    : QObject(parent)
    , m_timer(this)
{
    m_timer.setInterval(recordLifeMs);
    m_timer.setTimerType(Qt::PreciseTimer); // a coarse one may come just before the records are old enough
    connect(&m_timer, &QTimer::timeout, this, &DesktopEntryPool::clearDesktopEntries);
    // A refinement may be the first to ask: a timer in a thread of the pool would never fire.
    if (const QCoreApplication *application = QCoreApplication::instance(); application && !parent)
        moveToThread(application->thread());
}

DesktopEntryPool::~DesktopEntryPool()
{
    const std::lock_guard<std::mutex> lock(instanceMutex);
    if (m_ptr == this)
        m_ptr = nullptr;
}

VeskUIDesktopEntry DesktopEntryPool::desktopEntry(const QString &filePath)
{
    const QFileInfo file(filePath);
    const QString canonicalPath = file.canonicalFilePath();
    if (canonicalPath.isEmpty())
        return {};
    // Taken before the file is read: a change that comes in between is noticed by the next look-up.
    const QDateTime lastModified = file.lastModified();
    VeskUIDesktopEntry found;
    bool known = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto record = m_records.constFind(canonicalPath);
        known = record != m_records.constEnd();
        if (known) {
            found = record->desktopEntry;
            if (record->lastModified == lastModified)
                return found;
        }
    }
    if (known)
        found.load();
    else
        found = VeskUIDesktopEntry(canonicalPath);
    store(canonicalPath, found, lastModified);
    return found;
}

void DesktopEntryPool::store(const QString &canonicalPath, const VeskUIDesktopEntry &desktopEntry,
                             const QDateTime &lastModified)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Record &record = m_records[canonicalPath];
    record.desktopEntry = desktopEntry;
    record.lastModified = lastModified;
    if (!record.age.isValid())
        record.age.start();
    if (m_cleaning || !QCoreApplication::instance())
        return;
    m_cleaning = true;
    QMetaObject::invokeMethod(&m_timer, QOverload<>::of(&QTimer::start), Qt::QueuedConnection);
}

void DesktopEntryPool::clearDesktopEntries()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto record = m_records.begin(); record != m_records.end();)
        record = record->age.hasExpired(m_timer.interval()) ? m_records.erase(record) : ++record;
    if (!m_records.isEmpty())
        return;
    m_timer.stop();
    m_cleaning = false;
}

} // namespace VeskFM
