// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "guihost.h"

#include <QIcon>
#include <QStandardPaths>
#include <QTextCodec>

namespace
{

constexpr char platformVariable[] = "QT_QPA_PLATFORM";

// Outside a desktop session nobody has chosen an icon theme; any that is installed will do.
void chooseIconTheme()
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

} // namespace

GuiHost::GuiHost(int &argc, char **argv, const QString &name)
{
    const bool isBlind = !hasDisplay();
    if (isBlind)
        qputenv(platformVariable, "offscreen");
    m_application = std::make_unique<QApplication>(argc, argv);
    if (isBlind)
        qunsetenv(platformVariable); // the applications that it starts find their own
    QApplication::setApplicationName(name);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    chooseIconTheme();
}

bool GuiHost::hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty(platformVariable);
}
