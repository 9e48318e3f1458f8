// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "metadata.h"

#include <QByteArray>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace
{

constexpr mode_t setIdBits = S_ISUID | S_ISGID;
constexpr mode_t modeBits = 07777;

bool isOmissible(int error)
{
    return error == EOPNOTSUPP || error == EPERM || error == EACCES || error == EINVAL || error == ENODATA
        || error == ENOSYS;
}

/// Calls @p read with a buffer that grows until its result fits; null with errno on failure.
template <typename Read> QByteArray readWhole(const Read &read)
{
    constexpr int usualSize = 1024;
    QByteArray buffer(usualSize, Qt::Uninitialized);
    for (;;) {
        const ssize_t size = read(buffer.data(), size_t(buffer.size()));
        if (size >= 0) {
            buffer.truncate(int(size));
            return buffer.isNull() ? QByteArray("") : buffer;
        }
        if (errno != ERANGE)
            return {};
        const ssize_t needed = read(nullptr, 0);
        if (needed < 0)
            return {};
        buffer.resize(int(needed) + usualSize);
    }
}

Result copyAttributes(int from, int to)
{
    const QByteArray names = readWhole([from](char *buffer, size_t size) { return flistxattr(from, buffer, size); });
    if (names.isNull())
        return isOmissible(errno) ? Result::Success : resultOfError(errno);
    for (const char *name = names.constData(); name < names.constData() + names.size(); name += std::strlen(name) + 1) {
        const QByteArray value =
            readWhole([=](char *buffer, size_t size) { return fgetxattr(from, name, buffer, size); });
        if (!value.isNull() && fsetxattr(to, name, value.constData(), size_t(value.size()), 0) == 0)
            continue;
        if (!isOmissible(errno))
            return resultOfError(errno);
    }
    return Result::Success;
}

/// Returns whether the owner and group are the original's.
bool copyOwner(int to, const struct stat &facts)
{
    struct stat own = {};
    if (fstat(to, &own) == 0 && own.st_uid == facts.st_uid && own.st_gid == facts.st_gid)
        return true;
    if (fchown(to, facts.st_uid, facts.st_gid) == 0)
        return true;
    return fchown(to, uid_t(-1), facts.st_gid) == 0 && own.st_uid == facts.st_uid;
}

} // namespace

Result copyMetadata(int from, const struct stat &facts, int to)
{
    const mode_t lost = copyOwner(to, facts) ? 0 : setIdBits;
    const Result result = copyAttributes(from, to); // after the owner, whose change takes capabilities away
    if (result != Result::Success)
        return result;
    const timespec times[] = {facts.st_atim, facts.st_mtim};
    if (fchmod(to, facts.st_mode & modeBits & ~lost) != 0 && !isOmissible(errno))
        return resultOfError(errno);
    if (futimens(to, times) != 0 && !isOmissible(errno))
        return resultOfError(errno);
    return Result::Success;
}

Result copyMetadata(const struct stat &facts, int toParent, const char *toName)
{
    const bool isOwned = fchownat(toParent, toName, facts.st_uid, facts.st_gid, AT_SYMLINK_NOFOLLOW) == 0;
    const mode_t lost = isOwned ? 0 : setIdBits;
    if (!S_ISLNK(facts.st_mode) && fchmodat(toParent, toName, facts.st_mode & modeBits & ~lost, 0) != 0)
        return resultOfError(errno);
    const timespec times[] = {facts.st_atim, facts.st_mtim};
    utimensat(toParent, toName, times, AT_SYMLINK_NOFOLLOW); // some file systems keep none for links
    return Result::Success;
}

void dropInheritedAcl(int fd)
{
    fremovexattr(fd, "system.posix_acl_access");
    fremovexattr(fd, "system.posix_acl_default");
}
