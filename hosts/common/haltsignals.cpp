// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "haltsignals.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>

namespace
{

constexpr int handled[] = {SIGINT, SIGTERM, SIGHUP};
std::atomic<int> pipeEnd{-1};

void onSignal(int)
{
    const int error = errno;
    const char byte = 0;
    if (write(pipeEnd, &byte, 1) < 0) {} // full: it is told already
    errno = error;
}

void setHandlers(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : handled)
        sigaction(signal, &action, nullptr);
}

} // namespace

HaltSignals::HaltSignals(QObject *parent)
    : QObject(parent)
{
    if (pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &HaltSignals::onReadable);
    pipeEnd = m_pipe[1];
    setHandlers(onSignal);
}

HaltSignals::~HaltSignals()
{
    if (m_notifier)
        setHandlers(SIG_DFL);
    delete m_notifier;
    for (const int end : m_pipe)
        close(end);
}

void HaltSignals::onReadable()
{
    char bytes[16];
    while (read(m_pipe[0], bytes, sizeof bytes) > 0) {}
    Q_EMIT received();
}
