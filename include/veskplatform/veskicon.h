// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QIcon>
#include <QMap>
#include <QString>

/// Theme icons with emblems in their corners. Look-ups are remembered. Thread: GUI.
class VESKPLATFORM_EXPORT VeskIcon
{
public:
    /// The theme's icon @p name, or @p fallback when it has none, with the emblems (icon names) painted over its corners.
    static QIcon fromTheme(const QString &name, const QMap<Qt::Corner, QString> &emblems = {},
                           const QIcon &fallback = QIcon());
    /// @p icon with emblems; @p icon itself for an empty map.
    static QIcon withEmblems(const QIcon &icon, const QMap<Qt::Corner, QString> &emblems);
};
