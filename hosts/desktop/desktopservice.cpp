// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desktopservice.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace
{

/// The file manager's program: beside this one in a build tree, else installed.
QString browserProgram()
{
    const QString name = QStringLiteral("vesk-browser");
    const QString beside = QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
    return QFileInfo(beside).isExecutable() ? beside : QStandardPaths::findExecutable(name);
}

} // namespace

bool DesktopService::openWindow(const VeskFM::Entry &entry)
{
    recallUnloader();
    const QString program = browserProgram();
    const QString directory = entry.localPath();
    return !program.isEmpty() && !directory.isEmpty() && QProcess::startDetached(program, {directory});
}

void DesktopService::release() {}
