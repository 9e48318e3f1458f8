// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/storagemount.h>

#include "storageplaces.h"

#include <veskplatform/storagesource.h>

#include <QHash>
#include <QPointer>

namespace VeskFM
{

namespace
{
StorageDevice deviceOf(const Entry &entry)
{
    const QString id = StoragePlaces::deviceId(entry.path());
    const QVector<StorageDevice> devices =
        entry.isStoragePlace() ? StorageSource::ptr()->devices() : QVector<StorageDevice>();
    for (const StorageDevice &device : devices) {
        if (device.id == id)
            return device;
    }
    return {};
}
} // namespace

class StorageMount::Private : public QObject
{
public:
    explicit Private(StorageMount *mount)
        : QObject(mount)
        , q(mount)
    {
    }

    void start(const Entry &entry, void (StorageSource::*operation)(const QString &))
    {
        const QString id = deviceOf(entry).id;
        if (id.isEmpty()) {
            const QString error = StorageMount::tr("The device is not there any more.");
            QMetaObject::invokeMethod(
                this, [=] { Q_EMIT q->finished(entry, error); }, Qt::QueuedConnection);
            return;
        }
        StorageSource *const source = StorageSource::ptr();
        if (source != m_source) {
            m_source = source;
            connect(source, &StorageSource::finished, this, &Private::onFinished,
                    Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
        }
        m_pending.insert(id, entry);
        (source->*operation)(id);
    }

private:
    void onFinished(const QString &id, const QString &errorText)
    {
        const Entry entry = m_pending.take(id); // null when somebody else asked for it
        if (!entry.isNull())
            Q_EMIT q->finished(entry, errorText);
    }

    StorageMount *const q;
    QPointer<StorageSource> m_source;
    QMultiHash<QString, Entry> m_pending; // by device
};

StorageMount::StorageMount(QObject *parent)
    : QObject(parent)
    , d(new Private(this))
{
}

StorageMount::~StorageMount() = default;

bool StorageMount::canMount(const Entry &entry)
{
    return deviceOf(entry).canMount;
}

bool StorageMount::canUnmount(const Entry &entry)
{
    return deviceOf(entry).canUnmount;
}

bool StorageMount::canEject(const Entry &entry)
{
    return deviceOf(entry).canEject;
}

void StorageMount::mount(const Entry &entry)
{
    d->start(entry, &StorageSource::mount);
}

void StorageMount::unmount(const Entry &entry)
{
    d->start(entry, &StorageSource::unmount);
}

void StorageMount::eject(const Entry &entry)
{
    d->start(entry, &StorageSource::eject);
}

} // namespace VeskFM
