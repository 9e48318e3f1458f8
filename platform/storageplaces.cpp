// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "storageplaces.h"

#include "localentrywatcher.h"

#include <QCoreApplication>
#include <QSet>
#include <QThread>
#include <QUrl>

namespace VeskFM
{

namespace
{
constexpr int firstLookMs = 1000; // a disk service may have to be started
const QLatin1String pathPrefix("storage:/");

bool isInApplicationThread()
{
    const QCoreApplication *const application = QCoreApplication::instance();
    return application && application->thread() == QThread::currentThread();
}

FoundPlace placeOf(const StorageDevice &device)
{
    PlaceFacts facts(device.label, device.mountPoint, {EntryTrait::StoragePlace});
    if (device.type == 2)
        facts.set(EntryTrait::CdromDriveStoragePlace);
    facts.storage = StoragePlace(device.type, device.iconName, device.label, !device.mountPoint.isEmpty());
    return {StoragePlaces::pathOf(device.id), facts};
}

QSet<QString> mountPoints(const EntryList &places)
{
    QSet<QString> paths;
    for (const Entry &place : places)
        paths.insert(place.localPath());
    paths.remove(QString());
    return paths;
}
} // namespace

StoragePlaces::StoragePlaces(const Entry &group, LocalEntryWatcher *watcher, QObject *parent)
    : QObject(parent)
    , m_watcher(watcher)
    , m_group(group, watcher)
{
}

QString StoragePlaces::pathOf(const QString &deviceId)
{
    return pathPrefix + QString::fromLatin1(QUrl::toPercentEncoding(deviceId));
}

QString StoragePlaces::deviceId(const QString &path)
{
    return path.startsWith(pathPrefix) ? QUrl::fromPercentEncoding(path.mid(pathPrefix.size()).toLatin1()) : QString();
}

EntryList StoragePlaces::entries()
{
    load(isInApplicationThread() ? 0 : firstLookMs);
    m_shown = true;
    return m_group.entries();
}

Entry StoragePlaces::entry(const QString &path)
{
    load(firstLookMs);
    return m_group.entry(path);
}

int StoragePlaces::indexOf(const QString &path) const
{
    return m_group.indexOf(path);
}

StoragePlace StoragePlaces::storagePlace(const QString &path) const
{
    const Entry place = m_group.entry(path);
    return place.isNull() ? StoragePlace() : static_cast<const PlaceEntryData *>(place.data())->facts()->storage;
}

void StoragePlaces::load(int timeoutMs)
{
    if (m_loaded)
        return;
    StorageSource *const source = StorageSource::ptr();
    const bool isReady = source->waitForDevices(m_waited ? 0 : timeoutMs);
    m_waited = m_waited || timeoutMs > 0; // a service that hangs is not waited for again
    takeOver(source, isReady && !m_loaded);
}

void StoragePlaces::update()
{
    StorageSource *const source = StorageSource::ptr();
    takeOver(source, source->waitForDevices(0));
}

void StoragePlaces::follow(StorageSource *source)
{
    if (m_source == source)
        return;
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = source;
    connect(source, &StorageSource::devicesChanged, this, &StoragePlaces::update, Qt::QueuedConnection);
}

/// @param isReady  otherwise its first devices are told later
void StoragePlaces::takeOver(StorageSource *source, bool isReady)
{
    PlaceGroup::News news;
    QSet<QString> remounted;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        follow(source);
        if (!isReady)
            return;
        const QSet<QString> before = mountPoints(m_group.entries());
        QVector<FoundPlace> found;
        const QVector<StorageDevice> devices = source->devices();
        for (const StorageDevice &device : devices)
            found.append(placeOf(device));
        news = m_group.replace(found);
        m_loaded = true;
        const QSet<QString> now = mountPoints(m_group.entries());
        remounted = (before - now) + (now - before);
    }
    if (!m_shown)
        return;
    m_group.tell(news);
    for (const QString &path : qAsConst(remounted)) // the directory there is another one
        m_watcher->lookAgain(path);
}

} // namespace VeskFM
