// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "result.h"

#include <cerrno>

Result resultOfError(int error)
{
    switch (error) {
    case 0:
        return Result::Success;
    case ECANCELED:
        return Result::Cancelled;
    case ENOENT:
    case ENOTDIR:
        return Result::NotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return Result::AccessDenied;
    case EEXIST:
    case ENOTEMPTY:
        return Result::Exists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Result::NoSpace;
    case EINVAL: // of a name: file systems from elsewhere do not take all
    case EOPNOTSUPP:
    case ENOSYS:
        return Result::NotSupported;
    default:
        return Result::Other;
    }
}
