// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launchcontext.h"

#include <veskplatform/vfs.h>

#include <QDir>
#include <QFile>
#include <QUrl>

#include <unistd.h>

#include <climits>

using namespace VeskFM;

namespace
{

QByteArray diskDirectory(const QString &path)
{
    const Entry entry = path.isEmpty() ? Entry() : VFS::ptr()->entry(path);
    const QUrl url = entry.isDir() ? VFS::ptr()->urlsFromEntries(EntryList(entry)).value(0) : QUrl();
    return url.isLocalFile() ? QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1())
                             : QFile::encodeName(QDir::homePath());
}

} // namespace

LaunchContext LaunchContext::fromOptions(const QVariantMap &options)
{
    return {diskDirectory(options.value(QStringLiteral("workingDir")).toString()),
            options.value(QStringLiteral("desktop-startup-id")).toString().toUtf8(),
            options.value(QStringLiteral("xdg-activation-token")).toString().toUtf8()};
}

LaunchContext LaunchContext::fromProcess()
{
    char directory[PATH_MAX];
    const bool isThere = getcwd(directory, sizeof directory) != nullptr;
    return {isThere ? QByteArray(directory) : qgetenv("HOME"), qgetenv("DESKTOP_STARTUP_ID"),
            qgetenv("XDG_ACTIVATION_TOKEN")};
}
