// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/corepaths.h>

#include <fixedplaces.h>
#include <veskplatform/veskuidesktopentry.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QStandardPaths>
#include <QUrl>

namespace VeskFM
{

namespace
{

/// The directory that "user-dirs.dirs" names, as the xdg-user-dirs format of freedesktop.org has it; empty for none.
QString userTemplatesDir()
{
    QFile file(QStandardPaths::locate(QStandardPaths::GenericConfigLocation, QStringLiteral("user-dirs.dirs")));
    if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    const QByteArray key = QByteArrayLiteral("XDG_TEMPLATES_DIR=\"");
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        if (!line.startsWith(key))
            continue;
        if (line.endsWith('\n'))
            line.chop(1);
        line.chop(1); // the closing quote
        QString directory = QString::fromLocal8Bit(line.mid(key.size()));
        if (directory == QLatin1String("$HOME/") || directory == QLatin1String("$HOME"))
            return {}; // how the user says that there is none
        directory.replace(QLatin1String("$HOME"), QDir::homePath());
        return QFileInfo(directory).isDir() ? directory : QString();
    }
    return {};
}

bool isOffered(const VeskUIDesktopEntry &entry)
{
    if (!entry.isValid())
        return false;
    const QString program = entry.getTryExec();
    return program.isEmpty() || !QStandardPaths::findExecutable(program).isEmpty();
}

/// What the template's "URL" names: a path, absolute or beside the desktop entry, or a local URL.
QString templatePath(const VeskUIDesktopEntry &entry, const QDir &directory)
{
    const QString url = entry.getUrl();
    if (url.isEmpty())
        return {};
    const QLatin1String fileScheme("file://");
    return directory.absoluteFilePath(url.startsWith(fileScheme) ? QUrl(url).toLocalFile() : url);
}

QList<NewFileTemplate> readTemplates(const QDir &directory)
{
    QList<NewFileTemplate> templates;
    const QFileInfoList files = directory.entryInfoList(QDir::Files, QDir::Time | QDir::Reversed);
    for (const QFileInfo &file : files) {
        if (!file.fileName().endsWith(QLatin1String(".desktop")))
            continue;
        const VeskUIDesktopEntry entry(file.absoluteFilePath());
        if (isOffered(entry))
            templates.append({file.absoluteFilePath(), entry.getBestAvailableName(), entry.getBestAvailableIcon(),
                              templatePath(entry, directory)});
    }
    return templates;
}

struct CachedTemplates
{
    QDateTime modified; // of the directory; invalid to read it again
    QList<NewFileTemplate> templates;
};

QList<NewFileTemplate> templatesIn(const QString &path)
{
    static QMutex mutex;
    static QHash<QString, CachedTemplates> cache; // by directory
    const QFileInfo directory(path);
    if (path.isEmpty() || !directory.isDir())
        return {};
    const QMutexLocker lock(&mutex);
    CachedTemplates &cached = cache[path];
    const QDateTime modified = directory.lastModified();
    if (cached.modified != modified) {
        // A change in the same tick of the file system's clock, after this reading, would leave the time as it is.
        constexpr int clockTickMs = 20;
        const bool isSettled = modified.msecsTo(QDateTime::currentDateTime()) > clockTickMs;
        cached = {isSettled ? modified : QDateTime(), readTemplates(QDir(path))};
    }
    return cached.templates;
}

} // namespace

QList<NewFileTemplate> newFileTemplates()
{
    return templatesIn(userTemplatesDir()) + templatesIn(QStringLiteral(VESKFM_TEMPLATES_DIR));
}

} // namespace VeskFM
