// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QString>

namespace VeskFM
{

/// Fixed places of the desktop environment. Thread: any.
class VESKPLATFORM_EXPORT StandardPaths
{
public:
    /// The local path of the directory that holds the user's trashed files; without a trailing slash, never empty.
    static QString trashDirPath();
};

} // namespace VeskFM
