// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

namespace VeskFM
{

/// One template that is offered for creating a new file.
struct NewFileTemplate
{
    QString desktopFilePath; ///< the desktop entry that describes the template
    QString name;            ///< for display
    QString icon;            ///< icon name
    QString templatePath;    ///< the file to copy, as the desktop entry's "URL" names it

    friend bool operator==(const NewFileTemplate &a, const NewFileTemplate &b)
    {
        return a.desktopFilePath == b.desktopFilePath && a.name == b.name && a.icon == b.icon
            && a.templatePath == b.templatePath;
    }
    friend bool operator!=(const NewFileTemplate &a, const NewFileTemplate &b) { return !(a == b); }
};

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::NewFileTemplate)
