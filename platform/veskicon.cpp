// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskicon.h>

QIcon VeskIcon::fromTheme(const QString &name, const QMap<Qt::Corner, QString> &emblems, const QIcon &fallback)
{
    return withEmblems(QIcon::fromTheme(name, fallback), emblems);
}

QIcon VeskIcon::withEmblems(const QIcon &icon, const QMap<Qt::Corner, QString> &)
{
    return icon;
}
