// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "treeremover.h"

#include "directoryreader.h"
#include "mounts.h"
#include "progress.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

TreeRemover::TreeRemover(Progress *progress, Strictness strictness)
    : m_progress(progress)
    , m_strictness(strictness)
{
}

Result TreeRemover::remove(int parent, const char *name)
{
    return removeNode(parent, name, false, 0);
}

Result TreeRemover::removeNode(int parent, const char *name, bool isDirectory, int depth)
{
    if (m_progress && m_progress->isCancelled())
        return Result::Cancelled;
    if (!isDirectory) {
        if (unlinkat(parent, name, 0) == 0)
            return Result::Success;
        if (errno != EISDIR)
            return resultOfError(errno);
    }
    return removeDirectory(parent, name, depth);
}

Result TreeRemover::removeDirectory(int parent, const char *name, int depth)
{
    Descriptor directory = openDirectory(parent, name);
    if (!directory && errno == EACCES && m_strictness == OwnAnyway && fchmodat(parent, name, S_IRWXU, 0) == 0)
        directory = openDirectory(parent, name);
    if (!directory) // an empty one goes unread
        return unlinkat(parent, name, AT_REMOVEDIR) == 0 ? Result::Success : resultOfError(errno);
    if (!isSameMount(parent, directory.get()) || depth > deepestTree)
        return Result::NotSupported;
    const Result result = removeChildren(directory.get(), depth);
    if (result != Result::Success)
        return result;
    return unlinkat(parent, name, AT_REMOVEDIR) == 0 ? Result::Success : resultOfError(errno);
}

Result TreeRemover::removeChildren(int directory, int depth)
{
    if (m_strictness == OwnAnyway && faccessat(directory, ".", W_OK | X_OK, 0) != 0)
        fchmod(directory, S_IRWXU);
    Result first = Result::Success;
    DirectoryReader reader(directory);
    while (const dirent *const node = reader.next()) {
        const Result result = removeNode(directory, node->d_name, node->d_type == DT_DIR, depth + 1);
        if (first == Result::Success)
            first = result;
        if (result == Result::Cancelled)
            return result;
    }
    return first == Result::Success ? resultOfError(reader.error()) : first;
}
