// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QHash>
#include <QString>

class QDBusError;

namespace VeskFM
{

/// Remembers which bus names did not answer, so that nobody in this process waits for them again.
///
/// Thread: main.
class ServiceReachability
{
public:
    static ServiceReachability &instance();

    /// Whether a call to @p serviceName is worth waiting for: it never failed, somebody else owns the name by now, or the
    /// owner answered after all.
    bool isWorthWaitingFor(const QString &serviceName);
    /// The service could not be started, or its owner did not answer. Logged at critical level, once for each owner.
    void markSilent(const QString &serviceName, const QString &reason);
    /// Whether a call that ended with @p error met a service that runs and does not answer, which is then marked. One that
    /// died under the call is not: the next call starts it again.
    bool isHung(const QString &serviceName, const QDBusError &error);

private:
    static QString owner(const QString &serviceName);
    void awaitAnswer(const QString &serviceName, const QString &owner);

    QHash<QString, QString> m_silentOwners; // bus name -> its owner when it failed, empty for none
};

} // namespace VeskFM
