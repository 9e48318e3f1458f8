// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>
#include <QtGlobal>

namespace VeskFM
{

/// The call stack of the calling thread, "1: symbol" and so on; this function itself is left out.
QStringList backtrace();

/// The number of traced scopes that the process is in; the message handler indents by it. Any thread.
int nestingDepth();
void changeNestingDepth(int delta);

/// The process's handler for the toolkit's messages: writes to standard error. Any thread; one message, one write.
void messageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message);

/// Makes the next plug-in admission ask the mode tool again.
void resetSecurityMode();
void setSecurityModeTool(const QString &path);

} // namespace VeskFM
