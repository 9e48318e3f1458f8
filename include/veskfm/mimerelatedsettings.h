// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QSettings>
#include <QSize>
#include <QString>

namespace VeskFM
{

/// What the application-choice dialog remembers: a group of the common settings file. Every getter reads it, every setter
/// writes it. A file that does not parse gives the defaults and stays as it is.
///
/// Thread: main.
class VESKFM_EXPORT MimeRelatedSettings : public QSettings
{
    Q_OBJECT

public:
    explicit MimeRelatedSettings(QObject *parent = nullptr);

    /// The directory in which to look for a program, as an administrator wrote it; "/usr/bin" otherwise.
    QString preferredApplicationPath() const;
    void setPreferredApplicationPath(const QString &path);
    QSize applicationDialogSize() const; ///< invalid when none was stored
    void setApplicationDialogSize(const QSize &size);
};

} // namespace VeskFM
