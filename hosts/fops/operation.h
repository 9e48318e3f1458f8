// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "diskpath.h"
#include "progress.h"
#include "result.h"

#include <QString>
#include <QStringList>

#include <memory>

/// One request of a client. Made and announced on the main thread, run on a worker.
class Operation
{
public:
    /// @param stamp the client's identifier
    /// @param place a path on the file system that the operation works on; operations of one file system run in order
    Operation(const QString &stamp, const QString &place);
    virtual ~Operation();
    Operation(const Operation &) = delete;
    Operation &operator=(const Operation &) = delete;

    QString stamp() const { return m_stamp; }
    QString place() const { return m_place; }
    Progress &progress() { return m_progress; }

    void execute(); ///< worker; once

    Result result() const { return m_result; }            ///< the first failure; valid after execute()
    QStringList madePaths() const { return m_madePaths; } ///< VFS paths of what is there now; valid after execute()

protected:
    virtual void run() = 0;

    /// Keeps the first failure. Returns whether it was none.
    bool note(Result result);
    /// Whether there is no point in going on with the next entry.
    bool isHopeless() const;
    void addMade(const QByteArray &path);
    /// Opens the directory of a path, unless it is the one that @p place has open already, and removes stale parts there.
    Result openTarget(const QByteArray &path, DiskPlace *place);

private:
    const QString m_stamp;
    const QString m_place;
    Progress m_progress;
    Result m_result = Result::Success;
    QStringList m_madePaths;
};

using OperationPtr = std::shared_ptr<Operation>;
