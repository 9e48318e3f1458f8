// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "gioptr.h"

/// What desktop entries say of themselves. GIO asks the caches beside them only (mimeinfo.cache), and nobody may have
/// brought these up to date since an entry was added.
namespace DeclaredTypes
{

QStringList of(GAppInfo *app); ///< the types that the application says to open

/// The ids of the applications that the user took from the type.
QStringList removedFrom(const QString &type);

/// The applications that say to open the type itself or one that it is a kind of, the nearest kind first, then by the
/// names of their entries. Without those that the user took from the type.
GAppList applications(const QString &type);

} // namespace DeclaredTypes
