// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "settings_p.h"

#include <veskfm/settings.h>
#include <veskplatform/veskdirs.h>

#include <KDirWatch>
#include <KUser>

#include <QCoreApplication>
#include <QFileInfo>

namespace VeskFM
{

namespace
{

// Keys are read and written with their group in front: a group that is entered stays entered while a signal is emitted,
// and a slot that changes a setting would write into a group below it.
const QLatin1String groupPrefix("Global/");
const QLatin1String kioskGroup("Global/kiosk/");

const SettingsKeyInfo &infoOf(SettingsKey key)
{
    return settingsKeys[size_t(key)];
}

/// The toolkit's conversion to the type of @p example; what does not convert is false, 0 or empty.
QVariant convertedLike(const QVariant &example, const QVariant &value)
{
    switch (example.userType()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::ULongLong:
        return value.toULongLong();
    default:
        return value.toStringList();
    }
}

} // namespace

SettingsPrivate::SettingsPrivate(Settings *settings)
    : q(settings)
{
    for (const SettingsKeyInfo &info : settingsKeys)
        values[size_t(info.key)] = settingsDefault(info.key);
}

SettingsPrivate::~SettingsPrivate() = default;

QString SettingsPrivate::fullKey(SettingsKey key)
{
    return groupPrefix + QLatin1String(infoOf(key).name);
}

QVariant SettingsPrivate::stored(SettingsKey key, const QVariant &fallback) const
{
    return convertedLike(value(key), file.value(fullKey(key), fallback));
}

void SettingsPrivate::change(SettingsKey key, const QVariant &value)
{
    if (this->value(key) != value)
        write(key, value);
}

void SettingsPrivate::write(SettingsKey key, const QVariant &value)
{
    const SettingsKeyInfo &info = infoOf(key);
    values[size_t(key)] = value;
    modified |= info.bit;
    q->sync();
    if (info.changed)
        Q_EMIT(q->*info.changed)();
}

void SettingsPrivate::take(const SettingsKeyInfo &info, const QVariant &read)
{
    QVariant &current = values[size_t(info.key)];
    if (current == read || (modified & info.bit)) // a change that could not be written yet is newer than the file
        return;
    current = read;
    if (info.changed)
        Q_EMIT(q->*info.changed)();
}

void SettingsPrivate::readKey(const SettingsKeyInfo &info)
{
    switch (info.key) {
    case SettingsKey::HiddenTreeItems: // a key that is gone means the default again, as the user's groups are now
        take(info, stored(info.key, settingsDefault(info.key)));
        break;
    case SettingsKey::ZarnelVersion:
        take(info, qBound(6, stored(info.key, value(info.key)).toInt(), 8));
        break;
    default:
        take(info, stored(info.key, value(info.key)));
    }
}

void SettingsPrivate::forgetMenuChanges()
{
    modified &= ~(infoOf(SettingsKey::ShowDeleteItemInDirViewCtxMenu).bit
                  | infoOf(SettingsKey::ShowViewSettingsInDirViewCtxMenu).bit);
}

void SettingsPrivate::findKioskMode()
{
    const int session = whatVeskSession();
    isKioskSession = session == 7 || session == 8;
    if (isKioskSession)
        return; // nobody asks for the user then
    const QString login = KUser(KUser::UseEffectiveUID).loginName();
    isKioskUser = !login.isEmpty() && file.value(kioskGroup + login, false).toBool();
}

void SettingsPrivate::startWatching()
{
    if (!QCoreApplication::instance())
        return;
    const QString path = file.path();
    const QString folder = QFileInfo(path).path();
    watch = std::make_unique<KDirWatch>();
    watch->addFile(path);
    // The watch of a file compares times in whole seconds and so misses a second change within one; the watch of its
    // folder sees it.
    watch->addDir(folder, KDirWatch::WatchFiles);
    const auto refresh = [this, path, folder](const QString &changed) {
        if (changed == path || changed == folder)
            q->refresh();
    };
    QObject::connect(watch.get(), &KDirWatch::created, q, refresh);
    QObject::connect(watch.get(), &KDirWatch::dirty, q, refresh);
}

} // namespace VeskFM
