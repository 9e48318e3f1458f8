// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archiveerror.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace VeskFM
{

/// One listing or extraction of an archive, which several may wait for. Thread: any.
class ArchiveJob
{
public:
    void cancel() { m_isCancelled = true; }
    bool isCancelled() const { return m_isCancelled; }
    void setPercent(int percent) { m_percent = percent; }
    int percent() const { return m_percent; }

    void finish(ArchiveError error);
    bool isFinished() const;
    ArchiveError error() const; ///< valid when finished
    /// False when it has not finished by then. @p isGivenUp is asked every few milliseconds; it may be empty.
    /// @param timeoutMs negative for no limit
    bool wait(int timeoutMs, const std::function<bool()> &isGivenUp) const;

private:
    std::atomic<bool> m_isCancelled{false};
    std::atomic<int> m_percent{0};
    mutable std::mutex m_mutex; // guards what follows
    mutable std::condition_variable m_condition;
    bool m_isFinished = false;
    ArchiveError m_error = ArchiveError::None;
};

} // namespace VeskFM
