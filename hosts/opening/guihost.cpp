// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "guihost.h"

#include <QIcon>
#include <QStandardPaths>
#include <QTextCodec>

namespace
{

constexpr char platformVariable[] = "QT_QPA_PLATFORM";
const QByteArray blindPlatform = QByteArrayLiteral("offscreen");

// Of these the toolkit takes the first that works, and ends the program if none does. A display that the environment
// names may be gone: the bus keeps the name from a session that has ended.
QByteArray platforms()
{
    if (!qEnvironmentVariableIsEmpty(platformVariable))
        return qgetenv(platformVariable) + ';' + blindPlatform;
    QByteArrayList names{blindPlatform};
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        names.prepend("xcb");
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        names.insert(qgetenv("XDG_SESSION_TYPE") == "wayland" ? 0 : names.size() - 1, "wayland");
    return names.join(';');
}

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
    const QByteArray chosen = qgetenv(platformVariable);
    qputenv(platformVariable, platforms());
    m_application = std::make_unique<QApplication>(argc, argv);
    if (chosen.isNull())
        qunsetenv(platformVariable); // the applications that it starts find their own
    else
        qputenv(platformVariable, chosen);
    QApplication::setApplicationName(name);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    chooseIconTheme();
}

bool GuiHost::hasDisplay()
{
    return QGuiApplication::platformName().toLatin1() != blindPlatform
        || qgetenv(platformVariable).startsWith(blindPlatform); // somebody wants it so, as tests do
}
