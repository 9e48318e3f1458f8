// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core_p.h"

#include <veskfm/core.h>

#include <QString>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <memory>

#include <execinfo.h>
#include <unistd.h>

namespace VeskFM
{

namespace
{

/// The handlers as a list that only grows, with a cursor on the last one that was taken: neither taking nor adding
/// locks or frees anything, since both may be cut off by a signal that runs the list.
struct HaltNode
{
    Core::HaltHandler handler;
    std::atomic<HaltNode *> next;
};

HaltNode firstHaltNode{nullptr, {nullptr}};
std::atomic<HaltNode *> lastTaken{&firstHaltNode};

Core::HaltHandler takeHaltHandler()
{
    HaltNode *taken = lastTaken;
    HaltNode *next = taken->next;
    while (next && !lastTaken.compare_exchange_weak(taken, next))
        next = taken->next;
    return next ? next->handler : nullptr;
}

void haltSignalHandler(int signal)
{
    switch (signal) {
    case SIGINT:
    case SIGTERM:
        Core::runHaltHandlers(Core::TerminationRequested);
        break;
    case SIGSEGV:
        Core::runHaltHandlers(Core::Crashed);
        break;
    default:
        return;
    }
    std::signal(signal, SIG_DFL);
    kill(getpid(), signal);
}

} // namespace

void Core::addHaltHandler(HaltHandler handler)
{
    if (!handler)
        return;
    auto *const node = new HaltNode{handler, {nullptr}}; // stays for the life of the process
    HaltNode *tail = lastTaken;
    HaltNode *expected = nullptr;
    while (!tail->next.compare_exchange_strong(expected, node)) {
        tail = expected;
        expected = nullptr;
    }
}

void Core::runHaltHandlers(HaltReason reason)
{
    while (const HaltHandler handler = takeHaltHandler())
        handler(reason);
}

void Core::installHaltSignalHandler()
{
    for (const int signal : {SIGINT, SIGSEGV, SIGTERM})
        std::signal(signal, haltSignalHandler);
}

Q_NEVER_INLINE QStringList backtrace()
{
    constexpr int maxFrames = 256;
    void *frames[maxFrames];
    const int count = ::backtrace(frames, maxFrames);
    const std::unique_ptr<char *, void (*)(void *)> symbols(count > 0 ? backtrace_symbols(frames, count) : nullptr,
                                                            std::free);
    QStringList lines;
    for (int i = 1; symbols && i < count; ++i) // 0 is this function
        lines.append(QStringLiteral("%1: %2").arg(QString::number(i), QString::fromLocal8Bit(symbols.get()[i])));
    return lines;
}

} // namespace VeskFM
