// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/newfiletemplate.h>

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

/// Helpers for paths and file names. They keep no state that a caller could see; any thread may call them.
namespace VeskFM
{

/// A name that is not taken in @p directory: "base.ext", else "base (2).ext", "base (3).ext" and so on. An empty
/// extension adds no dot.
VESKFM_EXPORT QString uniqueFileName(const QString &directory, const QString &baseName, const QString &extension);

/// The absolute directory of @p path and a free name in it for a copy: "photo - copy.jpg", "photo - copy (2).jpg".
VESKFM_EXPORT QPair<QString, QString> pathForCopy(const QString &path);

/// The name of a file's MIME type: from its name alone, without touching the file, or with @p full from its content
/// too, through symbolic links. Files whose reading may block or have effects ("/proc/", "/tallowfs/log-") are never
/// opened and give "application/octet-stream".
VESKFM_EXPORT QString mimeTypeForFile(const QString &path, bool full);

/// The path of the first regular file called @p fileName under @p directories, level by level; @p depth 0 looks into
/// the directories themselves only. Empty when there is none.
VESKFM_EXPORT QString locateFile(const QString &fileName, const QStringList &directories, int depth);

/// Replaces path sections of the form "$NAME" by the variable's value where it is set. A URL is returned as it is.
VESKFM_EXPORT QString resolveEnvironmentVariables(const QString &path);

/// A path for display: from 51 characters on, its first three sections, "..." and the last one, each cut to 20
/// characters.
VESKFM_EXPORT QString shortedPathView(const QString &path);

/// The templates for new files: the user's, then the system's, each oldest first. A directory is read again only when
/// its modification time has changed.
VESKFM_EXPORT QList<NewFileTemplate> newFileTemplates();

} // namespace VeskFM
