// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "directorypoller.h"

#include "pendingchanges.h"

namespace VeskFM
{

using Lock = std::lock_guard<std::mutex>;

void DirectoryPoller::add(const QByteArray &directory, const FileIdentity &identity)
{
    const Lock lock(m_mutex);
    m_seen.insert(directory, identity);
}

void DirectoryPoller::remove(const QByteArray &directory)
{
    const Lock lock(m_mutex);
    m_seen.remove(directory);
}

void DirectoryPoller::clear()
{
    const Lock lock(m_mutex);
    m_seen.clear();
}

QList<QByteArray> DirectoryPoller::changed(qint64 now)
{
    QHash<QByteArray, FileIdentity> seen;
    {
        const Lock lock(m_mutex);
        if (m_seen.isEmpty() || now < m_due)
            return {};
        m_due = now + intervalMs;
        seen = m_seen;
    }
    QList<QByteArray> changed;
    for (auto known = seen.cbegin(); known != seen.cend(); ++known) { // without the lock: disks may be slow
        const FileIdentity identity = FileIdentity::of(known.key());
        if (identity.isUnchanged(known.value()))
            continue;
        changed.append(known.key());
        const Lock lock(m_mutex);
        const auto current = m_seen.find(known.key());
        if (current != m_seen.end())
            *current = identity;
    }
    return changed;
}

qint64 DirectoryPoller::nextDue() const
{
    const Lock lock(m_mutex);
    return m_seen.isEmpty() ? PendingChanges::never : m_due;
}

} // namespace VeskFM
