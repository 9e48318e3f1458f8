// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "treecopier.h"

#include "directoryreader.h"
#include "metadata.h"
#include "mounts.h"
#include "part.h"
#include "treeremover.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <utility>
#include <vector>

namespace
{

constexpr mode_t privateFile = S_IRUSR | S_IWUSR; // nobody reads a copy before it has its own mode
constexpr mode_t privateDirectory = S_IRWXU;

} // namespace

TreeCopier::TreeCopier(Progress *progress, TreeDigest *digest)
    : m_progress(progress)
    , m_digest(digest)
    , m_contents(progress)
{
}

Result TreeCopier::copy(int fromParent, const QByteArray &from, int toParent, const QByteArray &part)
{
    const Result result = copyNode(fromParent, from.constData(), toParent, part.constData(), {}, 0);
    if (result != Result::Success)
        TreeRemover(nullptr, TreeRemover::OwnAnyway).remove(toParent, part.constData());
    return result;
}

Result TreeCopier::copyNode(int fromParent, const char *from, int toParent, const char *to, const QByteArray &path,
                            int depth)
{
    struct stat facts = {};
    if (m_progress->isCancelled())
        return Result::Cancelled;
    if (fstatat(fromParent, from, &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return resultOfError(errno);
    if (m_digest)
        m_digest->add(depth == 0 ? "" : from, depth, facts);
    m_progress->add(Progress::unitsPerNode);
    if (S_ISDIR(facts.st_mode))
        return copyDirectory(fromParent, from, facts, toParent, to, path, depth);

    const bool hasOtherNames = facts.st_nlink > 1 && depth > 0;
    if (hasOtherNames && linkToEarlierCopy(facts, toParent, to))
        return Result::Success;
    Result result = Result::Success;
    if (S_ISREG(facts.st_mode))
        result = copyFile(fromParent, from, facts, toParent, to, depth == 0);
    else if (S_ISLNK(facts.st_mode))
        result = copyLink(fromParent, from, facts, toParent, to);
    else
        result = copySpecial(facts, toParent, to);
    if (hasOtherNames && result == Result::Success)
        m_linked.insert(NodeId(facts.st_dev, facts.st_ino), path);
    return result;
}

Result TreeCopier::copyFile(int fromParent, const char *from, const struct stat &known, int toParent, const char *to,
                            bool isTop)
{
    // Not blocking: should a pipe have taken the file's place, opening it would wait for a writer.
    const Descriptor in(openat(fromParent, from, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat facts = {};
    if (!in || fstat(in.get(), &facts) != 0)
        return resultOfError(errno);
    if (!S_ISREG(facts.st_mode) || facts.st_ino != known.st_ino)
        return Result::Changed;
    Descriptor out(openat(toParent, to, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, privateFile));
    if (!out)
        return resultOfError(errno);
    if (isTop) {
        Part::hold(out.get());
        dropInheritedAcl(out.get());
    }
    Result result = m_contents.copy(in.get(), facts, out.get());
    if (result == Result::Success)
        result = finish(in.get(), facts, out.get());
    Descriptor closing = isTop ? Descriptor(dup(out.get())) : std::move(out);
    if (!closing.close() && result == Result::Success) // some file systems tell only now that the disk is full
        result = resultOfError(errno);
    if (isTop)
        m_top = std::move(out); // stays held until the copy has its name
    return result;
}

Result TreeCopier::copyDirectory(int fromParent, const char *from, const struct stat &known, int toParent,
                                 const char *to, const QByteArray &path, int depth)
{
    if (NodeId(known.st_dev, known.st_ino) == m_topId)
        return Result::IntoItself;
    if (depth > deepestTree)
        return Result::NotSupported;
    const Descriptor in = openDirectory(fromParent, from);
    if (!in || mkdirat(toParent, to, privateDirectory) != 0)
        return resultOfError(errno);
    Descriptor out = openDirectory(toParent, to);
    struct stat own = {};
    if (!out || fstat(out.get(), &own) != 0)
        return resultOfError(errno);
    const int directory = out.get();
    if (depth == 0) {
        m_topId = NodeId(own.st_dev, own.st_ino);
        Part::hold(directory);
        dropInheritedAcl(directory); // before anything is made in it, and inherits it in turn
        m_top = std::move(out);
    }
    const Result result = copyChildren(in.get(), directory, path, depth);
    return result == Result::Success ? finish(in.get(), known, directory) : result;
}

Result TreeCopier::finish(int from, struct stat facts, int to) const
{
    facts.st_mode |= m_addedMode;
    return copyMetadata(from, facts, to);
}

Result TreeCopier::copyChildren(int from, int to, const QByteArray &path, int depth)
{
    DirectoryReader reader(from);
    while (const dirent *const node = reader.next()) {
        const QByteArray child = path.isEmpty() ? QByteArray(node->d_name) : path + '/' + node->d_name;
        const Result result = copyNode(from, node->d_name, to, node->d_name, child, depth + 1);
        if (result != Result::Success)
            return result;
    }
    return resultOfError(reader.error());
}

Result TreeCopier::copyLink(int fromParent, const char *from, const struct stat &facts, int toParent, const char *to)
{
    std::vector<char> target(facts.st_size > 0 ? size_t(facts.st_size) + 1 : size_t(PATH_MAX));
    const ssize_t length = readlinkat(fromParent, from, target.data(), target.size());
    if (length < 0)
        return resultOfError(errno);
    if (size_t(length) == target.size()) // it is longer by now
        return Result::Changed;
    target[size_t(length)] = '\0';
    if (symlinkat(target.data(), toParent, to) != 0)
        return errno == EPERM ? Result::NotSupported : resultOfError(errno);
    return copyMetadata(facts, toParent, to);
}

Result TreeCopier::copySpecial(const struct stat &facts, int toParent, const char *to)
{
    if (mknodat(toParent, to, (facts.st_mode & S_IFMT) | privateFile, facts.st_rdev) != 0)
        return errno == EPERM ? Result::NotSupported : resultOfError(errno);
    return copyMetadata(facts, toParent, to);
}

/// Where a link is refused (the file system has none, or no more of this file), the file is copied once more.
bool TreeCopier::linkToEarlierCopy(const struct stat &facts, int toParent, const char *to)
{
    const QByteArray earlier = m_linked.value(NodeId(facts.st_dev, facts.st_ino));
    if (earlier.isEmpty() || linkat(m_top.get(), earlier.constData(), toParent, to, 0) != 0)
        return false;
    m_progress->add(facts.st_size);
    return true;
}

Result TreeCopier::sync(int toParent, const QByteArray &part)
{
    if (!m_top) // a link or a pipe: its name is all there is, and goes with the directory
        return Result::Success;
    struct stat facts = {};
    if (fstat(m_top.get(), &facts) != 0)
        return resultOfError(errno);
    if (!S_ISDIR(facts.st_mode))
        return fsync(m_top.get()) == 0 ? Result::Success : resultOfError(errno);
    if (syncfs(m_top.get()) != 0) // starts everything at once, so that the waits for each file are short
        return resultOfError(errno);
    return syncNode(toParent, part.constData(), true);
}

Result TreeCopier::syncNode(int parent, const char *name, bool isDirectory)
{
    if (m_progress->isCancelled())
        return Result::Cancelled;
    const int kind = isDirectory ? O_DIRECTORY : 0;
    const Descriptor node(openat(parent, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | kind));
    if (!node) // what its owner may not read was synced with the file system
        return errno == EACCES ? Result::Success : resultOfError(errno);
    const Result result = isDirectory ? syncChildren(node.get()) : Result::Success;
    if (result != Result::Success)
        return result;
    return fsync(node.get()) == 0 ? Result::Success : resultOfError(errno);
}

Result TreeCopier::syncChildren(int directory)
{
    DirectoryReader reader(directory);
    while (const dirent *const child = reader.next()) {
        struct stat facts = {};
        if (fstatat(directory, child->d_name, &facts, AT_SYMLINK_NOFOLLOW) != 0)
            return resultOfError(errno);
        if (!S_ISREG(facts.st_mode) && !S_ISDIR(facts.st_mode))
            continue;
        const Result result = syncNode(directory, child->d_name, S_ISDIR(facts.st_mode));
        if (result != Result::Success)
            return result;
    }
    return resultOfError(reader.error());
}
