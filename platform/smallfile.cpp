// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "smallfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace
{

constexpr qint64 smallestBuffer = 4096;

bool readAll(int descriptor, qint64 limit, QByteArray *content)
{
    struct stat facts = {}; // asked again of what was really opened
    if (fstat(descriptor, &facts) != 0 || !S_ISREG(facts.st_mode) || facts.st_size > limit)
        return false;
    content->resize(int(qMin(qMax(qint64(facts.st_size), smallestBuffer), limit)) + 1); // the one more tells of growth
    int length = 0;
    while (length <= limit) {
        if (length == content->size()) // has grown meanwhile, or does not tell its size, as in /proc
            content->resize(int(qMin(qint64(length) * 2, limit + 1)));
        const ssize_t count = read(descriptor, content->data() + length, size_t(content->size() - length));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        if (count == 0)
            break;
        length += int(count);
    }
    content->truncate(length);
    return length <= limit;
}

bool writeAll(int descriptor, const QByteArray &content)
{
    for (qint64 done = 0; done < content.size();) {
        const ssize_t count = write(descriptor, content.constData() + done, size_t(content.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
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

bool replaceFile(const QByteArray &path, const QByteArray &content)
{
    QByteArray temporary = path + ".XXXXXX";
    const int descriptor = mkostemp(temporary.data(), O_CLOEXEC); // mode 0600
    if (descriptor < 0)
        return false;
    const bool written = writeAll(descriptor, content);
    const bool closed = close(descriptor) == 0;
    if (written && closed && rename(temporary.constData(), path.constData()) == 0)
        return true;
    unlink(temporary.constData());
    return false;
}

bool makeDirs(const QByteArray &path)
{
    if (mkdir(path.constData(), 0700) == 0)
        return true;
    const int slash = path.lastIndexOf('/');
    if (errno == ENOENT && slash > 0)
        return makeDirs(path.left(slash)) && mkdir(path.constData(), 0700) == 0;
    struct stat facts = {};
    return stat(path.constData(), &facts) == 0 && S_ISDIR(facts.st_mode);
}
