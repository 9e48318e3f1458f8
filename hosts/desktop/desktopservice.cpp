// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desktopservice.h"

#include <veskplatform/vfs.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

using namespace VeskFM;

namespace
{

/// The file manager's program: beside this one in a build tree, or where both are installed, else any.
QString browserProgram()
{
    const QString name = QStringLiteral("vesk-browser");
    const QDir here(QCoreApplication::applicationDirPath());
    for (const QString &directory : {QStringLiteral("."), QStringLiteral(VESKFM_BIN_FROM_LIBEXEC)}) {
        const QFileInfo program(here.filePath(directory + QLatin1Char('/') + name));
        if (program.isFile() && program.isExecutable())
            return program.absoluteFilePath();
    }
    return QStandardPaths::findExecutable(name);
}

} // namespace

bool DesktopService::openWindow(const Entry &entry)
{
    recallUnloader();
    const bool isContainer = entry.isDir() || entry.isPlace() || entry.isArchiveMountPoint();
    const Entry directory = entry.isNull() || isContainer ? entry : VFS::ptr()->parent(entry);
    const QString program = browserProgram();
    return !program.isEmpty() && !directory.isNull() && QProcess::startDetached(program, {directory.path()});
}

bool DesktopService::openDesktop()
{
    const Entry desktop = VFS::ptr()->entry(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    return openWindow(desktop.isNull() ? VFS::ptr()->homeEntry() : desktop);
}

void DesktopService::release() {}
