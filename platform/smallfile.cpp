// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "smallfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace
{

bool readAll(int descriptor, qint64 limit, QByteArray *content)
{
    struct stat facts = {}; // asked again of what was really opened
    if (fstat(descriptor, &facts) != 0 || !S_ISREG(facts.st_mode) || facts.st_size > limit)
        return false;
    content->resize(int(limit) + 1); // one more tells a file that has grown, or has no honest size
    qint64 length = 0;
    while (length < content->size()) {
        const ssize_t count = read(descriptor, content->data() + length, size_t(content->size() - length));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        if (count == 0)
            break;
        length += count;
    }
    content->resize(int(length));
    content->squeeze();
    return length <= limit;
}

} // namespace

bool readSmallFile(const QByteArray &path, qint64 limit, QByteArray *content, bool followLinks)
{
    struct stat facts = {};
    const int flags = followLinks ? 0 : AT_SYMLINK_NOFOLLOW;
    if (path.contains('\0') || fstatat(AT_FDCWD, path.constData(), &facts, flags) != 0 || !S_ISREG(facts.st_mode))
        return false;
    const int descriptor =
        open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (followLinks ? 0 : O_NOFOLLOW));
    if (descriptor < 0)
        return false;
    const bool done = readAll(descriptor, limit, content);
    close(descriptor);
    return done;
}
