// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/archivemountsmanagerproxy.h>

namespace VeskFM
{

/// The archive mounts of a VFS that mounts none: archives are plain files to it. Thread: any.
class LocalArchiveMounts : public ArchiveMountsManagerProxy
{
public:
    QString mountPath(const QString &path) const override; ///< always empty, so nobody has anything to refer to
    void refMountPath(const QString &path) override;
    void unrefMountPath(const QString &path) override;
};

} // namespace VeskFM
