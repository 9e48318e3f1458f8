// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "operation.h"

/// Moves entries to the trash: the user's own one, or for another mount the one of that mount. Never removes anything.
class TrashOperation : public Operation
{
public:
    /// @param goesOn whether a failure leaves the others to be trashed
    TrashOperation(const QString &stamp, const QStringList &entries, bool goesOn);

protected:
    void run() override;

private:
    Result trash(const QByteArray &path);

    const QStringList m_entries;
    const bool m_goesOn;
};

/// Moves trashed entries back to where they came from.
class RestoreOperation : public Operation
{
public:
    RestoreOperation(const QString &stamp, const QStringList &entries);

protected:
    void run() override;

private:
    Result restore(const QByteArray &path);

    const QStringList m_entries;
};
