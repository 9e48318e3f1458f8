// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/appinfo.h>

#include <veskfm/corepaths.h>
#include <veskplatform/veskicon.h>
#include <veskplatform/veskuidesktopentry.h>

#include <QDBusArgument>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace VeskFM
{

namespace
{

/// Without links and "..", so that nothing passes for what it is not.
QString canonicalPath(const QString &directory)
{
    const QString canonical = QFileInfo(directory).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(directory) : canonical;
}

QStringList applicationsLocations()
{
    return QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
}

QString withSlash(const QString &directory)
{
    return directory.endsWith(QLatin1Char('/')) ? directory : directory + QLatin1Char('/');
}

/// The desktop file id of a path in one of the applications locations; empty for any other.
QString desktopFileId(const QString &path)
{
    const QStringList locations = applicationsLocations();
    for (const QString &location : locations) {
        const QString start = withSlash(location);
        if (!path.startsWith(start))
            continue;
        const QString id = path.mid(start.size());
        if (!id.contains(QLatin1Char('/')))
            return id;
    }
    return {};
}

} // namespace

AppInfo AppInfo::appInfo(const QString &desktopFile)
{
    constexpr int searchDepth = 2;
    const QString path = desktopFile.startsWith(QLatin1Char('/'))
        ? desktopFile
        : locateFile(desktopFile, applicationsLocations(), searchDepth);
    if (path.isEmpty())
        return {};
    const VeskUIDesktopEntry entry(path);
    if (!entry.isValid())
        return {};
    AppInfo info;
    info.setName(entry.getBestAvailableName());
    const QString comment = entry.getBestAvailableComment();
    info.setComment(comment.isEmpty() ? entry.getBestAvailableGenericName() : comment);
    info.setExec(entry.getExec());
    info.setIcon(entry.getBestAvailableIcon());
    info.setSource(DesktopEntryFile, entry.getFilePath());
    info.setTerminal(entry.getTerminal());
    return info;
}

AppInfo AppInfo::appInfoForOriginFile(const QString &desktopFilePath)
{
    const VeskUIDesktopEntry copy(desktopFilePath);
    const QString id = desktopFileId(copy.getValue(QStringLiteral("X-Vesk-OriginFile")));
    return appInfo(id.isEmpty() ? desktopFilePath : id);
}

// The "/" comes first, over the arguments too: "editor /home/user/a.png" is named "a.png", as applications expect.
QString AppInfo::nameByExec(const QString &exec)
{
    return exec.section(QLatin1Char('/'), -1).section(QLatin1Char(' '), 0, 0);
}

QString AppInfo::name() const
{
    return m_name;
}

QString AppInfo::comment() const
{
    return m_comment;
}

QString AppInfo::exec() const
{
    return m_exec;
}

QString AppInfo::icon() const
{
    return m_icon;
}

QString AppInfo::desktopSourceFilePath() const
{
    return m_desktopSourceFilePath;
}

QString AppInfo::desktopSourceFileName() const
{
    return QFileInfo(m_desktopSourceFilePath).fileName();
}

AppInfo::Source AppInfo::source() const
{
    return m_source;
}

bool AppInfo::terminal() const
{
    return m_terminal;
}

void AppInfo::setName(const QString &name)
{
    m_name = name;
}

void AppInfo::setComment(const QString &comment)
{
    m_comment = comment;
}

void AppInfo::setExec(const QString &exec)
{
    m_exec = exec;
    if (!exec.isEmpty() && m_name.isEmpty())
        m_name = nameByExec(exec);
}

void AppInfo::setIcon(const QString &icon)
{
    m_icon = VeskIcon::fromTheme(icon).isNull() ? QStringLiteral("system-run") : icon;
}

void AppInfo::setSource(Source source, const QString &desktopSourceFilePath)
{
    m_source = source;
    m_desktopSourceFilePath = desktopSourceFilePath;
}

void AppInfo::setSourceType(Source source)
{
    m_source = source;
}

void AppInfo::setTerminal(bool terminal)
{
    m_terminal = terminal;
}

bool AppInfo::isNull() const
{
    return *this == AppInfo();
}

bool AppInfo::isFromStandardDirs() const
{
    if (m_desktopSourceFilePath.isEmpty())
        return false;
    // The file itself may be a link: that is how application bundles export theirs.
    const QString place = withSlash(canonicalPath(QFileInfo(m_desktopSourceFilePath).path()));
    const QStringList directories = VeskUIDesktopEntry::getAllAppDesktopEntrySearchPaths();
    return std::any_of(directories.begin(), directories.end(), [&place](const QString &directory) {
        return !directory.isEmpty() && place.startsWith(withSlash(canonicalPath(directory)));
    });
}

bool AppInfo::operator==(const AppInfo &other) const
{
    return m_name == other.m_name && m_comment == other.m_comment && m_exec == other.m_exec && m_icon == other.m_icon
        && m_desktopSourceFilePath == other.m_desktopSourceFilePath && m_source == other.m_source
        && m_terminal == other.m_terminal;
}

bool AppInfo::operator!=(const AppInfo &other) const
{
    return !(*this == other);
}

void AppInfo::toDBusArgument(QDBusArgument &argument) const
{
    argument.beginStructure();
    argument << m_name << m_comment << m_exec << m_icon << m_desktopSourceFilePath << qint32(m_source) << m_terminal;
    argument.endStructure();
}

void AppInfo::fromDBusArgument(const QDBusArgument &argument)
{
    qint32 source = Other;
    argument.beginStructure();
    argument >> m_name >> m_comment >> m_exec >> m_icon >> m_desktopSourceFilePath >> source >> m_terminal;
    argument.endStructure();
    m_source = Source(source);
}

QDBusArgument &operator<<(QDBusArgument &argument, const AppInfo &info)
{
    info.toDBusArgument(argument);
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, AppInfo &info)
{
    info.fromDBusArgument(argument);
    return argument;
}

QDebug operator<<(QDebug debug, const AppInfo &info)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "VeskFM::AppInfo(" << info.name() << ',' << info.comment() << ',' << info.exec() << ','
                    << info.icon() << ',' << int(info.source()) << ',' << info.desktopSourceFilePath() << ','
                    << info.terminal() << ')';
    return debug;
}

} // namespace VeskFM
