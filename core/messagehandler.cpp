// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core_p.h"

#include <veskfm/core.h>

#include <QByteArray>

#include <atomic>
#include <cstdio>

namespace VeskFM
{

namespace
{

std::atomic<bool> debugOutput{true};
std::atomic<int> depth{0};

/// Null for what is not printed.
const char *prefix(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return debugOutput ? "debug: " : nullptr;
    case QtWarningMsg:
        return "warning: ";
    case QtCriticalMsg:
        return "critical: ";
    case QtFatalMsg:
        return "fatal: ";
    default:
        return nullptr;
    }
}

} // namespace

void Core::setDebugOutputEnabled(bool on)
{
    debugOutput = on;
}

bool Core::isDebugOutputEnabled()
{
    return debugOutput;
}

int nestingDepth()
{
    return depth;
}

void changeNestingDepth(int delta)
{
    depth += delta;
}

void messageHandler(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const char *const start = prefix(type);
    if (!start)
        return;
    const QByteArray line = start + QByteArray(qMax(0, nestingDepth()), '\t') + message.toLocal8Bit() + '\n';
    fwrite(line.constData(), 1, size_t(line.size()), stderr); // in one piece, whatever other threads print
}

} // namespace VeskFM
