// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskicontheme.h>

#include "mimeiconnames.h"

#include <QHash>
#include <QMimeDatabase>
#include <QReadWriteLock>

namespace
{

// What the MIME database has said: it answers slowly, and it is asked for each file.
struct Names
{
    QReadWriteLock lock;
    QHash<QString, QString> byMimeType;
    QHash<QString, QString> genericByName;
};

Names &names()
{
    static Names instance;
    return instance;
}

} // namespace

VeskIconTheme *VeskIconTheme::instance()
{
    static VeskIconTheme theme;
    return &theme;
}

// Whether the theme has the icon is not asked here: themes may be searched in the GUI thread only.
QString VeskIconTheme::getMimeIconName(const QString &mimeType) const
{
    {
        const QReadLocker locker(&names().lock);
        const auto known = names().byMimeType.constFind(mimeType);
        if (known != names().byMimeType.constEnd())
            return *known;
    }
    const QMimeType type = QMimeDatabase().mimeTypeForName(mimeType);
    if (!type.isValid())
        return {};
    const QString name = type.iconName();
    const QWriteLocker locker(&names().lock);
    names().byMimeType.insert(mimeType, name);
    names().genericByName.insert(name, type.genericIconName());
    return name;
}

QString genericMimeIconName(const QString &iconName)
{
    const QReadLocker locker(&names().lock);
    return names().genericByName.value(iconName);
}
