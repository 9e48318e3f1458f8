// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localarchivemounts.h"

namespace VeskFM
{

QString LocalArchiveMounts::mountPath(const QString &) const
{
    return {};
}

void LocalArchiveMounts::refMountPath(const QString &) {}

void LocalArchiveMounts::unrefMountPath(const QString &) {}

} // namespace VeskFM
