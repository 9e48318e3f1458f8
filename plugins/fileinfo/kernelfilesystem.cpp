// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "kernelfilesystem.h"

#include <linux/magic.h>
#include <sys/vfs.h>

bool isInKernelFileSystem(int descriptor)
{
    struct statfs system = {};
    if (fstatfs(descriptor, &system) != 0)
        return false;
    return system.f_type == PROC_SUPER_MAGIC || system.f_type == SYSFS_MAGIC;
}
