// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/global.h>

#include <fixedplaces.h>
#include <veskplatform/veskdirs.h>
#include <veskplatform/vesktrash.h>

#include <QDir>
#include <QGuiApplication>
#include <QMutexLocker>
#include <QScreen>
#include <QSettings>

namespace VeskFM
{

namespace
{

QString veskDir(int kind)
{
    return QString::fromLocal8Bit(GetVeskDir(kind).c_str());
}

} // namespace

Global *Global::m_ptr = nullptr;

Global::Global()
    : m_settings(std::make_unique<QSettings>(QStringLiteral("tessaro"), QStringLiteral("vesk-fm")))
{
}

Global::~Global()
{
    if (m_ptr == this)
        m_ptr = nullptr;
}

Global *Global::ptr()
{
    static QBasicMutex creation;
    const QMutexLocker lock(&creation);
    if (!m_ptr)
        m_ptr = new Global;
    return m_ptr;
}

QSettings *Global::settings()
{
    return m_settings.get();
}

QString Global::dataDir()
{
    return QDir::homePath() + QLatin1String("/.vesk-fm");
}

QString Global::shareDirPath()
{
    return QStringLiteral(VESKFM_SHARE_DIR);
}

QString Global::pluginsDirPath() const
{
    return QStringLiteral(VESKFM_PLUGIN_DIR);
}

QString Global::trashTopDirPath()
{
    return QString::fromStdString(VeskTrash::getTopDirPath());
}

QString Global::startMenuDirPath()
{
    return veskDir(4);
}

QString Global::toolbarDirPath()
{
    return veskDir(17);
}

QString Global::autostartDirPath()
{
    return veskDir(25);
}

QString Global::tmpDirPath()
{
    return veskDir(1);
}

QString Global::shellProgram()
{
    return QStringLiteral("/bin/sh");
}

QStringList Global::shellArgs()
{
    return {QStringLiteral("-c")};
}

QString Global::terminalProgram()
{
    return QStringLiteral("xterm");
}

QStringList Global::terminalArgs()
{
    return {QStringLiteral("-e")};
}

QStringList Global::terminalDependedApplications()
{
    return {QStringLiteral("mc"), QStringLiteral("ssh"), QStringLiteral("mcedit")};
}

QString Global::desktopImagePath()
{
    return QStringLiteral(":/pics/vesk-default.png");
}

int Global::desktopImagePlacement()
{
    return 2;
}

QRect Global::desktopGeometry()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

QColor Global::desktopColor()
{
    return QColor(70, 70, 70);
}

} // namespace VeskFM
