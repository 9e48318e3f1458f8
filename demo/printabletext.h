// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// @p text on one line and safe to show: control characters, line ends and characters that turn the writing direction
/// become escapes (\n, \x1b, \u202e); bytes of a file name that are no UTF-8 become \xff.
QString printableText(const QString &text);
