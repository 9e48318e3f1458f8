// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mounts.h"

#include <QtGlobal>

#include <fcntl.h>
#include <sys/stat.h>

namespace
{

/// Of an open node; 0 where the kernel does not say.
quint64 mountId(int fd)
{
    struct statx facts = {};
    const bool known = statx(fd, "", AT_EMPTY_PATH, STATX_MNT_ID, &facts) == 0 && (facts.stx_mask & STATX_MNT_ID);
    return known ? facts.stx_mnt_id : 0;
}

} // namespace

bool isSameMount(int a, int b)
{
    return mountId(a) == mountId(b);
}
