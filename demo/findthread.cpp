// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "findthread.h"

#include "namematcher.h"
#include "printabletext.h"

#include <veskfm/entryenumerator.h>
#include <veskplatform/vfs.h>

#include <algorithm>
#include <utility>

using namespace VeskFM;

FindThread::FindThread(QObject *parent)
    : Thread(parent)
{
}

FindThread::~FindThread()
{
    requestStop();
    wait();
}

const std::atomic<bool> *FindThread::running() const
{
    return &m_running;
}

void FindThread::find(FindQuery query)
{
    m_query = std::move(query);
    std::stable_sort(m_query.validators.begin(), m_query.validators.end(),
                     [](const auto &a, const auto &b) { return a->priority() < b->priority(); });
    start(LowPriority);
}

void FindThread::requestStop()
{
    m_running = false;
}

bool FindThread::isStopRequested() const
{
    return !m_running;
}

std::vector<Entry> FindThread::takeFound()
{
    const std::lock_guard<std::mutex> lock(m_foundMutex);
    return std::exchange(m_found, {});
}

int FindThread::lookedAtCount() const
{
    return m_lookedAt;
}

void FindThread::run()
{
    if (VFS::ptr()->isEntryExists(m_query.start))
        walk();
    if (!isStopRequested() && !VFS::ptr()->isEntryExists(m_query.start))
        setErrorString(tr("%1 is not there").arg(printableText(m_query.start.path())));
}

void FindThread::walk()
{
    const NameMatcher names(m_query.namePatterns);
    EntryEnumerator enumerator;
    enumerator.setIncludeSubdirs(m_query.subdirectories);
    enumerator.setIncludeArchives(m_query.archives);
    enumerator.setStartEntry(m_query.start);
    QString hiddenDirectory; // the walk goes on below it, with entries whose own names are not hidden
    while (!isStopRequested()) {
        Entry entry = enumerator.getNextEntry();
        if (entry.isNull())
            return;
        m_lookedAt.store(m_lookedAt.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed); // nobody else does
        const bool isInHidden = !hiddenDirectory.isEmpty() && entry.path().startsWith(hiddenDirectory);
        if (!m_query.hiddenEntries && (isInHidden || entry.isHidden())) {
            if (!isInHidden)
                hiddenDirectory = entry.path() + QLatin1Char('/');
            continue;
        }
        if (!matches(entry, names) || isStopRequested()) // a test that was stopped has decided nothing
            continue;
        const std::lock_guard<std::mutex> lock(m_foundMutex);
        m_found.push_back(std::move(entry));
    }
}

bool FindThread::matches(const Entry &entry, const NameMatcher &names) const
{
    return (names.matchesAll() || names.matches(entry.fileName()))
        && std::all_of(m_query.validators.cbegin(), m_query.validators.cend(),
                       [&entry](const auto &validator) { return validator->match(entry); });
}
