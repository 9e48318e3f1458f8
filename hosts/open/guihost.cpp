// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "guihost.h"

#include <QIcon>
#include <QStandardPaths>

void chooseHostPlatform()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void chooseHostIconTheme()
{
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths()
                               + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("icons"),
                                                           QStandardPaths::LocateDirectory));
    for (const char *name : {"breeze", "Adwaita", "hicolor"}) {
        if (QIcon::hasThemeIcon(QStringLiteral("folder")))
            return;
        QIcon::setThemeName(QString::fromLatin1(name));
    }
}
