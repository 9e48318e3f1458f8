// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// The name to try where a theme lacks the icon @p iconName of a MIME type that VeskIconTheme has been asked for, for
/// example "text-x-generic"; empty for any other icon. Thread: any.
QString genericMimeIconName(const QString &iconName);
