// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>
#include <QString>

/// A host's place on the session bus.
class HostConnection : public QObject
{
    Q_OBJECT

public:
    /// @param name the bus name without the vendor's prefix and its dot
    explicit HostConnection(const QString &name, QObject *parent = nullptr);

    /// Puts an object on the bus with the interfaces of its adaptors. All of them, before the name is claimed: whoever
    /// started the host calls as soon as the name has an owner. Returns false, and says why, when that is impossible.
    bool offer(const QString &path, QObject *object);
    bool claimName(); ///< false when another process has the name

Q_SIGNALS:
    void lost(); ///< the bus is gone: the session is over

private:
    const QString m_name;
};
