// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskicontheme.h>

#include <QHash>
#include <QMimeDatabase>
#include <QReadWriteLock>

namespace
{

QReadWriteLock namesLock;

QHash<QString, QString> &iconNames() // by MIME type name; guarded by namesLock
{
    static QHash<QString, QString> names;
    return names;
}

} // namespace

VeskIconTheme *VeskIconTheme::instance()
{
    static VeskIconTheme theme;
    return &theme;
}

QString VeskIconTheme::getMimeIconName(const QString &mimeType) const
{
    {
        const QReadLocker locker(&namesLock);
        const auto known = iconNames().constFind(mimeType);
        if (known != iconNames().constEnd())
            return *known;
    }
    const QMimeType type = QMimeDatabase().mimeTypeForName(mimeType);
    const QString name = type.isValid() ? type.iconName() : QString();
    const QWriteLocker locker(&namesLock);
    iconNames().insert(mimeType, name);
    return name;
}
