// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/mimerelatedsettings.h>

namespace VeskFM
{

namespace
{

QString dialogSizeKey()
{
    return QStringLiteral("applicationDialogSize");
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
    return value(QStringLiteral("preferredApplicationPath"), QStringLiteral("/usr/bin")).toString();
}

void MimeRelatedSettings::setPreferredApplicationPath(const QString &path)
{
    setValue(QStringLiteral("applicationPreferredPath"), path);
}

QSize MimeRelatedSettings::applicationDialogSize() const
{
    return value(dialogSizeKey(), QSize()).toSize();
}

void MimeRelatedSettings::setApplicationDialogSize(const QSize &size)
{
    setValue(dialogSizeKey(), size);
}

} // namespace VeskFM
