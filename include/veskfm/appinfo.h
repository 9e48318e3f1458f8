// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QList>
#include <QMetaType>
#include <QString>

class QDBusArgument;
class QDebug;

namespace VeskFM
{

/// One application as it is offered for opening files. A plain value.
class VESKFM_EXPORT AppInfo
{
public:
    enum Source : qint32 {
        DesktopEntryFile = 0, ///< read from a desktop entry file
        Other = 1
    };

    AppInfo() = default;

    /// Reads a desktop entry: an absolute path, or a file name that is searched for in the standard applications
    /// locations and two levels below them. A null value when there is none or it is not valid.
    /// Thread: GUI, for the icon theme.
    static AppInfo appInfo(const QString &desktopFile);
    /// Reads the desktop entry that the given one was copied from, as its key "X-Vesk-OriginFile" tells; the given one
    /// itself when that key is missing or names no file in a standard applications location.
    static AppInfo appInfoForOriginFile(const QString &desktopFilePath);
    /// The text after the last "/" of the whole command line, up to its first blank.
    static QString nameByExec(const QString &exec);

    QString name() const;
    QString comment() const;
    QString exec() const;
    QString icon() const;
    QString desktopSourceFilePath() const;
    QString desktopSourceFileName() const;
    Source source() const;
    bool terminal() const;

    void setName(const QString &name);
    void setComment(const QString &comment);
    /// Also names the application by the command, where it has no name yet.
    void setExec(const QString &exec);
    /// Takes "system-run" instead of an icon that the theme lacks. Thread: GUI.
    void setIcon(const QString &icon);
    void setSource(Source source, const QString &desktopSourceFilePath);
    void setSourceType(Source source);
    void setTerminal(bool terminal);

    bool isNull() const; ///< equal to a default-constructed value
    bool isFromStandardDirs() const;

    bool operator==(const AppInfo &other) const;
    bool operator!=(const AppInfo &other) const;

    /// One structure (sssssib): name, comment, exec, icon, source path, source, terminal.
    void toDBusArgument(QDBusArgument &argument) const;
    void fromDBusArgument(const QDBusArgument &argument);

private:
    QString m_name;
    QString m_comment;
    QString m_exec;
    QString m_icon;
    QString m_desktopSourceFilePath;
    Source m_source = Other;
    bool m_terminal = false;
};

using AppInfoList = QList<AppInfo>;

VESKFM_EXPORT QDBusArgument &operator<<(QDBusArgument &argument, const AppInfo &info);
VESKFM_EXPORT const QDBusArgument &operator>>(const QDBusArgument &argument, AppInfo &info);
VESKFM_EXPORT QDebug operator<<(QDebug debug, const AppInfo &info);

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::AppInfo)
Q_DECLARE_METATYPE(VeskFM::AppInfoList)
