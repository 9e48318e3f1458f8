// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QColor>
#include <QRect>
#include <QString>
#include <QStringList>

#include <memory>

class QSettings;

namespace VeskFM
{

/// Fixed locations and programs, and the desktop's default look. Thread: main, except pluginsDirPath().
class VESKFM_EXPORT Global
{
public:
    Global();
    ~Global();

    /// The one instance, made on first use and never deleted by the library.
    static Global *ptr();

    /// The common settings file. Owned by this object; objects on the same file share their unsaved values.
    QSettings *settings();

    QString dataDir(); ///< the file manager's own folder in the home directory
    QString shareDirPath();
    QString pluginsDirPath() const;
    QString trashTopDirPath();
    QString startMenuDirPath();
    QString toolbarDirPath();
    QString autostartDirPath();
    QString tmpDirPath();

    QString shellProgram();
    QStringList shellArgs(); ///< what stands before the command
    QString terminalProgram();
    QStringList terminalArgs();                 ///< what stands before the command
    QStringList terminalDependedApplications(); ///< programs that must be started inside a terminal

    QString desktopImagePath();  ///< a resource of the application
    int desktopImagePlacement(); ///< a code that the desktop understands
    QRect desktopGeometry();     ///< of the primary screen; empty without one
    QColor desktopColor();

private:
    Q_DISABLE_COPY(Global)

    static Global *m_ptr;
    const std::unique_ptr<QSettings> m_settings;
};

} // namespace VeskFM
