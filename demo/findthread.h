// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "findquery.h"

#include <veskfm/thread.h>

#include <atomic>
#include <mutex>

/// Walks a tree and collects what a query asks for. Who wants results takes them from time to time, so that a million
/// of them costs nobody a million events.
///
/// Thread: that which made it. When the walk has ended, finished() comes, and errorString() says why it found nothing
/// more: empty unless the start is not there (any more).
class FindThread : public VeskFM::Thread
{
    Q_OBJECT

public:
    explicit FindThread(QObject *parent = nullptr);
    ~FindThread() override; ///< stops and waits

    const std::atomic<bool> *running() const; ///< for validators; lives as long as this object
    void find(FindQuery query);               ///< once
    void requestStop();                       ///< the walk ends at its next entry; does not wait
    bool isStopRequested() const;

    std::vector<VeskFM::Entry> takeFound(); ///< what was found since the last call, in the order of the walk
    int lookedAtCount() const;              ///< entries so far

protected:
    void run() override;

private:
    void walk();
    bool matches(const VeskFM::Entry &entry, const class NameMatcher &names) const;

    FindQuery m_query; // the worker's while it runs
    std::atomic<bool> m_running{true};
    std::atomic<int> m_lookedAt{0};
    std::mutex m_foundMutex;
    std::vector<VeskFM::Entry> m_found; // guarded by m_foundMutex
};
