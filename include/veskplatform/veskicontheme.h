// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QString>

/// What the icon theme calls things. Thread: any.
class VESKPLATFORM_EXPORT VeskIconTheme
{
public:
    static VeskIconTheme *instance(); ///< made on first use, never deleted
    /// The name of the icon for a MIME type such as "text/plain"; empty for an unknown type.
    QString getMimeIconName(const QString &mimeType) const;
};
