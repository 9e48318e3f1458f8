// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDeadlineTimer>
#include <QHash>

#include <sys/types.h>

#include <mutex>

namespace VeskFM
{

/// Knows which directories lie on the disks of other machines. Looks at each mounted file system now and then.
///
/// Thread: any; may block on a server that does not answer, so do not ask on the GUI thread for such places.
class FileSystemKinds
{
public:
    /// False where nothing can be found out.
    bool isNetwork(const QString &path) const;
    /// Whether both lie in the same mounted file system.
    bool isSame(const QString &path, const QString &other) const;

private:
    struct Answer
    {
        bool network = false;
        QDeadlineTimer validUntil{}; // the number of a device may go to another one once it is unmounted
    };
    mutable std::mutex m_mutex;
    mutable QHash<dev_t, Answer> m_answers;
};

} // namespace VeskFM
