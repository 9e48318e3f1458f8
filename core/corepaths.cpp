// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/corepaths.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrl>

#include <queue>

namespace VeskFM
{

namespace
{

const QMimeDatabase &mimeDatabase()
{
    static const QMimeDatabase database; // thread-safe
    return database;
}

/// Whether reading the file may block or have effects.
bool mustNotBeOpened(const QString &path)
{
    return path.startsWith(QLatin1String("/proc/")) || path.startsWith(QLatin1String("/tallowfs/log-"));
}

/// Where a symbolic link leads in the end; for one that leads nowhere, what it names.
QString linkTarget(const QFileInfo &link)
{
    const QString target = link.canonicalFilePath();
    return target.isEmpty() ? link.symLinkTarget() : target;
}

QString shortedSection(const QString &section)
{
    constexpr int longest = 20;
    constexpr int head = 7;
    constexpr int tail = 8;
    return section.size() > longest ? section.left(head) + QLatin1String(" ... ") + section.right(tail) : section;
}

} // namespace

QString uniqueFileName(const QString &directory, const QString &baseName, const QString &extension)
{
    const QString suffix = extension.isEmpty() ? QString() : QLatin1Char('.') + extension;
    const auto isTaken = [&directory](const QString &name) {
        const QFileInfo info(directory + QLatin1Char('/') + name);
        return info.exists() || info.isSymLink(); // a broken link takes its name too
    };
    QString name = baseName + suffix;
    for (int number = 2; isTaken(name); ++number)
        name = baseName + QLatin1String(" (") + QString::number(number) + QLatin1Char(')') + suffix;
    return name;
}

QPair<QString, QString> pathForCopy(const QString &path)
{
    const QFileInfo info(QDir::cleanPath(path)); // "Docs/" is named like "Docs"
    const QString directory = info.absolutePath();
    QString baseName = info.fileName();
    // The name's known suffix, not what follows the last dot: "tar.gz" stays together.
    const QString extension = info.isDir() ? QString() : mimeDatabase().suffixForFileName(baseName);
    if (!extension.isEmpty())
        baseName.chop(extension.size() + 1);
    baseName += QLatin1String(" - ") + QCoreApplication::translate("CorePaths", "copy");
    return {directory, uniqueFileName(directory, baseName, extension)};
}

QString mimeTypeForFile(const QString &path, bool full)
{
    if (mustNotBeOpened(path))
        return QStringLiteral("application/octet-stream");
    if (!full) // by the text: the overload for file infos would ask the disk
        return mimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).name();
    const QFileInfo info(path);
    if (!info.isSymLink())
        return mimeDatabase().mimeTypeForFile(info).name();
    const QString target = linkTarget(info);
    if (mustNotBeOpened(target))
        return QStringLiteral("application/octet-stream");
    return mimeDatabase().mimeTypeForFile(QFileInfo(target)).name();
}

QString locateFile(const QString &fileName, const QStringList &directories, int depth)
{
    if (depth < 0)
        return {};
    struct Place
    {
        QString directory;
        int depth;
    };
    std::queue<Place> queue;
    for (const QString &directory : directories)
        queue.push({directory, depth});
    for (; !queue.empty(); queue.pop()) {
        const Place place = queue.front();
        QDirIterator entries(place.directory, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        while (entries.hasNext()) {
            const QString path = entries.next();
            if (entries.fileName() == fileName && entries.fileInfo().isFile())
                return path;
            if (place.depth > 0 && entries.fileInfo().isDir())
                queue.push({path, place.depth - 1});
        }
    }
    return {};
}

QString resolveEnvironmentVariables(const QString &path)
{
    if (!QUrl(path).isRelative())
        return path;
    const QLatin1Char separator('/');
    QString result;
    if (path.startsWith(separator))
        result = separator;
    const QStringList sections = path.split(separator, Qt::SkipEmptyParts);
    for (QString section : sections) {
        if (section.startsWith(QLatin1Char('$'))) {
            const QByteArray name = QString(section).remove(QLatin1Char('$')).toLocal8Bit();
            if (qEnvironmentVariableIsSet(name.constData()))
                section = qEnvironmentVariable(name.constData());
        }
        if (!result.isEmpty() && !result.endsWith(separator) && !section.startsWith(separator))
            result += separator;
        result += section;
    }
    return result;
}

QString shortedPathView(const QString &path)
{
    constexpr int shortEnough = 50;
    constexpr int keptAtStart = 3;
    if (path.size() <= shortEnough)
        return path;
    QStringList sections = path.split(QLatin1Char('/'));
    if (sections.size() > keptAtStart + 1)
        sections.erase(sections.begin() + keptAtStart, sections.end() - 1);
    for (QString &section : sections)
        section = shortedSection(section);
    // Also where nothing was left out: views tell a shortened path by it.
    sections.insert(qMin(keptAtStart, sections.size()), QStringLiteral("..."));
    return sections.join(QLatin1Char('/'));
}

} // namespace VeskFM
