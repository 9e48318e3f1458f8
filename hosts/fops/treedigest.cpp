// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "treedigest.h"

#include "directoryreader.h"
#include "mounts.h"
#include "progress.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace
{

/// FNV-1a: its sums only have to tell a changed tree from itself.
class Hash
{
public:
    void addBytes(const void *data, size_t size)
    {
        for (const auto *byte = static_cast<const uchar *>(data); size > 0; --size)
            m_value = (m_value ^ *byte++) * 1099511628211ULL;
    }
    template <typename Number> void add(Number number) { addBytes(&number, sizeof number); }
    quint64 value() const { return m_value; }

private:
    quint64 m_value = 14695981039346656037ULL;
};

} // namespace

void TreeDigest::add(const char *name, int depth, const struct stat &facts)
{
    Hash hash;
    hash.addBytes(name, std::strlen(name));
    hash.add(depth);
    hash.add(facts.st_ino);
    hash.add(facts.st_mode);
    hash.add(facts.st_size);
    for (const timespec &time : {facts.st_mtim, facts.st_ctim}) {
        hash.add(time.tv_sec);
        hash.add(time.tv_nsec);
    }
    m_sum += hash.value();
    ++m_count;
}

Result TreeDigest::addRemovableTree(int parent, const char *name, const Progress &progress)
{
    return addTree(parent, name, 0, progress);
}

Result TreeDigest::addTree(int parent, const char *name, int depth, const Progress &progress)
{
    struct stat facts = {};
    if (progress.isCancelled())
        return Result::Cancelled;
    if (fstatat(parent, name, &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT ? Result::Changed : resultOfError(errno);
    add(depth == 0 ? "" : name, depth, facts);
    if (!S_ISDIR(facts.st_mode))
        return Result::Success;

    const Descriptor directory = openDirectory(parent, name);
    if (!directory)
        return resultOfError(errno);
    if (!isSameMount(parent, directory.get()) || depth > deepestTree)
        return Result::NotSupported;
    DirectoryReader reader(directory.get());
    bool isEmpty = true;
    while (const dirent *const node = reader.next()) {
        isEmpty = false;
        const Result result = addTree(directory.get(), node->d_name, depth + 1, progress);
        if (result != Result::Success)
            return result;
    }
    if (!isEmpty && facts.st_uid != geteuid() && faccessat(directory.get(), ".", W_OK | X_OK, AT_EACCESS) != 0)
        return Result::AccessDenied;
    return resultOfError(reader.error());
}
