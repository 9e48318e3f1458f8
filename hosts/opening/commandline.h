// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "gioptr.h"

/// Command lines as desktop entries have them: words with quotes, and the field codes of the Desktop Entry
/// Specification of freedesktop.org. No shell ever sees them.
namespace CommandLine
{

/// The command without the files it is to open at its end: "viewer %U" and "viewer" are the same program.
QString withoutFiles(const QString &command);

/// An application that has no desktop entry yet; it gets one among the user's own when it becomes a default. A command
/// that takes no files gets them at its end. Null, with a log line, where there is no such program.
GAppPtr application(const QString &command, const QString &name, bool terminal);

/// The application as it runs in the terminal of this system, where it needs one; null where it does not.
GAppPtr inTerminal(GAppInfo *app);

} // namespace CommandLine
