// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "operation.h"

/// Removes entries for good.
class RemoveOperation : public Operation
{
public:
    /// @param goesOn whether a failure leaves the others to be removed
    RemoveOperation(const QString &stamp, const QStringList &entries, bool goesOn);

protected:
    void run() override;

private:
    const QStringList m_entries;
    const bool m_goesOn;
};

/// Removes all that is in the trash.
class CleanTrashOperation : public Operation
{
public:
    explicit CleanTrashOperation(const QString &stamp);

protected:
    void run() override;
};
