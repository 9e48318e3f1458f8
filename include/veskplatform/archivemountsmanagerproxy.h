// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QString>

namespace VeskFM
{

/// Keeps mounted archives mounted while somebody refers to them. Thread: any.
class VESKPLATFORM_EXPORT ArchiveMountsManagerProxy
{
public:
    virtual ~ArchiveMountsManagerProxy();
    /// The mount point that the local path @p path lies in; empty when it lies in none.
    virtual QString mountPath(const QString &path) const = 0;
    virtual void refMountPath(const QString &path) = 0;
    virtual void unrefMountPath(const QString &path) = 0;
};

} // namespace VeskFM
