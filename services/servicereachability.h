// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QHash>
#include <QString>

namespace VeskFM
{

/// Remembers which bus names did not answer, so that nobody in this process waits for them again.
///
/// Thread: main.
class ServiceReachability
{
public:
    static ServiceReachability &instance();

    /// Whether a call to @p serviceName is worth waiting for: it never failed, or somebody else owns the name by now.
    bool isWorthWaitingFor(const QString &serviceName);
    /// The service could not be started, or its owner did not answer. Logged at critical level, once for each owner.
    void markSilent(const QString &serviceName, const QString &reason);

private:
    static QString owner(const QString &serviceName);

    QHash<QString, QString> m_silentOwners; // bus name -> its owner when it failed, empty for none
};

} // namespace VeskFM
