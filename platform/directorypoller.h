// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fileidentity.h"

#include <QHash>
#include <QList>

#include <mutex>

namespace VeskFM
{

/// Looks every two seconds at directories that the system does not watch for us. Sees names that come and go, not what
/// happens inside files. Thread: any; times are milliseconds of one clock, which the caller reads.
class DirectoryPoller
{
public:
    static constexpr qint64 intervalMs = 2000;

    void add(const QByteArray &directory, const FileIdentity &identity);
    void remove(const QByteArray &directory);
    void clear();
    /// Those that changed since they were looked at last; none before the next look is due.
    QList<QByteArray> changed(qint64 now);
    qint64 nextDue() const; ///< PendingChanges::never while there is nothing to look at

private:
    mutable std::mutex m_mutex;
    QHash<QByteArray, FileIdentity> m_seen;
    qint64 m_due = 0;
};

} // namespace VeskFM
