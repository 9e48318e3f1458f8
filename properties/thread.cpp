// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/thread.h>

namespace VeskFM
{

namespace
{
constexpr int releaseTimeoutMs = 100;
}

Thread::Thread(QObject *parent)
    : QThread(parent)
{
}

Thread::~Thread()
{
    m_suspendMutex.tryLock(); // it must not be destroyed locked
    m_suspendMutex.unlock();
}

int Thread::exitCode() const
{
    return m_exitCode;
}

void Thread::setExitCode(int code)
{
    m_exitCode = code;
}

QString Thread::errorString() const
{
    return m_errorString;
}

void Thread::setErrorString(const QString &text)
{
    m_errorString = text;
}

void Thread::suspend()
{
    if (!m_suspendMutex.tryLock())
        return;
    const QMutexLocker lock(&m_waitMutex); // whoever is about to wait waits for the next one, and not in between
    m_suspendCondition.wakeAll();
}

void Thread::release()
{
    // This thread holds the mutex itself if it did suspend: the attempt then fails, and what is unlocked is what
    // suspend() locked. If it did not, the attempt is what keeps the mutex from being unlocked twice.
    m_suspendMutex.tryLock(releaseTimeoutMs);
    m_suspendMutex.unlock();
}

void Thread::waitForSuspend()
{
    const QMutexLocker lock(&m_waitMutex);
    m_suspendCondition.wait(&m_waitMutex);
}

bool Thread::checkSuspend()
{
    m_suspendMutex.lock();
    m_suspendMutex.unlock();
    return true;
}

} // namespace VeskFM
