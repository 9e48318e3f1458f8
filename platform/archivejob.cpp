// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivejob.h"

#include <chrono>

namespace VeskFM
{

namespace
{
constexpr std::chrono::milliseconds pollInterval(20);
}

void ArchiveJob::finish(ArchiveError error)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_error = error;
    m_isFinished = true;
    m_condition.notify_all();
}

bool ArchiveJob::isFinished() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isFinished;
}

ArchiveError ArchiveJob::error() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_error;
}

bool ArchiveJob::wait(int timeoutMs, const std::function<bool()> &isGivenUp) const
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(timeoutMs);
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isFinished) {
        if ((timeoutMs >= 0 && Clock::now() >= end) || (isGivenUp && isGivenUp()))
            return false;
        m_condition.wait_for(lock, pollInterval);
    }
    return true;
}

} // namespace VeskFM
