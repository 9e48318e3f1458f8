// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "containerpeek.h"

#include "localentrydata.h"
#include "mounttable.h"
#include "pathcodec.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <optional>

namespace VeskFM
{

namespace
{
constexpr int mostNames = 512;   // what one or two reads of a directory give
constexpr int mostLookedAt = 16; // names that have to be asked for their kind
constexpr int mostLinks = 40;    // on the way to a directory, as for the kernel

/// The path without links in it; nothing when a step on the way could wait for another machine. Asks each step only
/// after that is known.
std::optional<QByteArray> resolvedWithoutWaiting(const QByteArray &path, const MountTable &mounts)
{
    QByteArray resolved;
    QList<QByteArray> rest = path.split('/');
    for (int links = 0; !rest.isEmpty();) {
        const QByteArray name = rest.takeFirst();
        if (name.isEmpty() || name == ".")
            continue;
        if (name == "..") {
            resolved.truncate(qMax(resolved.lastIndexOf('/'), 0));
            continue;
        }
        const QByteArray step = resolved + '/' + name;
        const Mount *const mount = mounts.ofPath(step);
        if (mount && mount->mayHang())
            return {};
        char target[PATH_MAX];
        const ssize_t size = readlink(step.constData(), target, sizeof target);
        if (size < 0) {
            resolved = step;
            continue;
        }
        if (++links > mostLinks)
            return path; // leads nowhere, as whoever opens it finds
        const QByteArray text(target, int(size));
        if (text.startsWith('/'))
            resolved.clear();
        rest = text.split('/') + rest;
    }
    return resolved.isEmpty() ? QByteArray("/") : resolved;
}

/// Whether a directory there has two links and one more for each directory in it.
bool countsSubdirectories(const Mount *mount)
{
    static const char *const known[] = {"ext2", "ext3", "ext4", "xfs", "f2fs", "jfs", "tmpfs", "zfs"};
    return mount
        && std::any_of(std::begin(known), std::end(known), [&](const char *type) { return mount->type == type; });
}

/// A look at the names of one directory, whose path has no links in it.
class Peek
{
public:
    Peek(const QByteArray &directory, const MountTable &mounts)
        : m_directory(directory)
        , m_mounts(mounts)
    {
    }

    bool mayHoldContainers()
    {
        struct stat facts;
        if (stat(m_directory.constData(), &facts) != 0)
            return false;
        if (facts.st_nlink > 2 && countsSubdirectories(m_mounts.ofPath(m_directory)))
            return true;
        DIR *const names = opendir(m_directory.constData());
        const bool may = names && mayHoldContainers(names);
        if (names)
            closedir(names);
        return may;
    }

private:
    bool mayHoldContainers(DIR *names)
    {
        for (int seen = 0; seen < mostNames; ++seen) {
            const dirent *const found = readdir(names);
            if (!found)
                return false;
            if (strcmp(found->d_name, ".") != 0 && strcmp(found->d_name, "..") != 0 && mayBeContainer(*found))
                return true;
        }
        return true;
    }

    bool mayBeContainer(const dirent &found)
    {
        if (found.d_type == DT_DIR || LocalFacts::isArchiveName(found.d_name, int(strlen(found.d_name))))
            return true;
        if (found.d_type != DT_LNK && found.d_type != DT_UNKNOWN)
            return false;
        const std::optional<QByteArray> path = resolvedWithoutWaiting(m_directory + '/' + found.d_name, m_mounts);
        struct stat facts;
        return ++m_lookedAt > mostLookedAt || !path || (stat(path->constData(), &facts) == 0 && S_ISDIR(facts.st_mode));
    }

    const QByteArray m_directory;
    const MountTable &m_mounts;
    int m_lookedAt = 0;
};
} // namespace

bool mayHoldContainers(const QString &path)
{
    const QByteArray bytes = PathCodec::encode(path);
    const std::shared_ptr<const MountTable> mounts = MountTable::current();
    const std::optional<QByteArray> directory = resolvedWithoutWaiting(bytes, *mounts);
    return !directory || Peek(*directory, *mounts).mayHoldContainers();
}

} // namespace VeskFM
