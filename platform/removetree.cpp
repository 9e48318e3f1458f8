// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "removetree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

namespace VeskFM
{

void removeTree(int directory, const QByteArray &name)
{
    if (unlinkat(directory, name.constData(), AT_REMOVEDIR) == 0)
        return;
    const int inner = openat(directory, name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    DIR *const stream = inner < 0 ? nullptr : fdopendir(inner);
    if (!stream) {
        if (inner >= 0)
            close(inner);
        return;
    }
    fchmod(inner, S_IRWXU); // otherwise nothing in it can go
    while (const dirent *const node = readdir(stream)) {
        const bool isOwn = strcmp(node->d_name, ".") == 0 || strcmp(node->d_name, "..") == 0;
        if (!isOwn && unlinkat(inner, node->d_name, 0) != 0)
            removeTree(inner, node->d_name);
    }
    closedir(stream);
    unlinkat(directory, name.constData(), AT_REMOVEDIR);
}

} // namespace VeskFM
