// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/mimerelatedsettings.h>

#include "settingsfile.h"

namespace VeskFM
{

namespace
{

QString fullKey(const char *key)
{
    return QStringLiteral("mimeAppsService/") + QLatin1String(key);
}

QVariant read(const char *key, const QVariant &fallback)
{
    SettingsFile file;
    file.reload();
    return file.value(fullKey(key), fallback);
}

void write(const char *key, const QVariant &value)
{
    SettingsFile().write({{fullKey(key), value}});
}

} // namespace

MimeRelatedSettings::MimeRelatedSettings(QObject *parent)
    : QSettings(QStringLiteral("tessaro"), QStringLiteral("vesk-fm"), parent)
{
    beginGroup(QStringLiteral("mimeAppsService"));
}

QString MimeRelatedSettings::preferredApplicationPath() const
{
    // Not the key that the setter writes: what a user chose last does not override what an administrator set.
    return read("preferredApplicationPath", QStringLiteral("/usr/bin")).toString();
}

void MimeRelatedSettings::setPreferredApplicationPath(const QString &path)
{
    write("applicationPreferredPath", path);
}

QSize MimeRelatedSettings::applicationDialogSize() const
{
    return read("applicationDialogSize", QSize()).toSize();
}

void MimeRelatedSettings::setApplicationDialogSize(const QSize &size)
{
    write("applicationDialogSize", size);
}

} // namespace VeskFM
