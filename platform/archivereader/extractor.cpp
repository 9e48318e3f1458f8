// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "extractor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace VeskFM
{

namespace
{
constexpr mode_t closedDirectory = S_IRUSR | S_IXUSR | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH;
constexpr mode_t closedFile = S_IRUSR | S_IRGRP | S_IROTH;
constexpr mode_t closedProgram = closedDirectory;

ArchiveError writingError()
{
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? ArchiveError::NoSpace : ArchiveError::CannotWrite;
}

/// Of a file or directory; "now" where the archive does not tell.
struct Times
{
    timespec values[2] = {{0, UTIME_OMIT}, {0, UTIME_NOW}};

    explicit Times(qint64 modifiedMs)
    {
        if (modifiedMs > 0)
            values[1] = {time_t(modifiedMs / 1000), long(modifiedMs % 1000) * 1000000};
    }
};

bool writeFully(int file, ArchiveBlock block)
{
    while (block.size > 0) {
        const ssize_t count = pwrite(file, block.data, size_t(block.size), block.offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        block.data += count;
        block.size -= count;
        block.offset += count;
    }
    return true;
}
} // namespace

Extractor::Extractor(const MemberTree &tree, int directory, qint64 mostBytes, Progress progress)
    : m_tree(tree)
    , m_order(tree.ordered())
    , m_directory(directory)
    , m_mostBytes(mostBytes)
    , m_progress(std::move(progress))
{
}

ArchiveError Extractor::extract(MemberReader *reader)
{
    if (m_tree.unpackedBytes() > m_mostBytes)
        return ArchiveError::TooLarge;
    ArchiveError error = makeDirectories();
    if (error == ArchiveError::None)
        error = makeFiles(reader);
    if (error == ArchiveError::None)
        error = makeLinks();
    return error == ArchiveError::None ? closeDirectories() : error;
}

ArchiveError Extractor::makeDirectories()
{
    for (size_t i = 1; i < m_order.size(); ++i) {
        const int node = m_order[i];
        if (m_tree.nodes()[size_t(node)].kind == MemberTree::Dir
            && mkdirat(m_directory, m_tree.path(node).constData(), S_IRWXU) != 0)
            return writingError();
    }
    return ArchiveError::None;
}

/// In the order of the archive: going back in a compressed one means to unpack it from its start.
ArchiveError Extractor::makeFiles(MemberReader *reader)
{
    if (!reader->rewind())
        return reader->error();
    ArchiveMember member;
    for (int number = 0; reader->next(&member); ++number) {
        const int node = m_tree.nodeOfMember(number);
        const ArchiveError error = node < 0 ? ArchiveError::None : makeFile(reader, node);
        if (error != ArchiveError::None)
            return error;
    }
    return reader->error();
}

ArchiveError Extractor::makeFile(MemberReader *reader, int node)
{
    const MemberTree::Node &wanted = m_tree.nodes()[size_t(node)];
    const int file = openat(m_directory, m_tree.path(node).constData(),
                            O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return writingError();
    ArchiveError error = copyContent(reader, file, wanted.size);
    futimens(file, Times(wanted.modifiedMs).values); // not every file system keeps all of them
    if (error == ArchiveError::None && fchmod(file, wanted.isExecutable ? closedProgram : closedFile) != 0)
        error = ArchiveError::CannotWrite;
    if (close(file) != 0 && error == ArchiveError::None)
        error = writingError();
    return error;
}

ArchiveError Extractor::copyContent(MemberReader *reader, int file, qint64 size)
{
    const qint64 before = m_done;
    ArchiveBlock block;
    while (reader->read(&block)) {
        if (block.size > size - block.offset)
            return ArchiveError::Damaged; // by what it told of itself when it was listed
        if (!writeFully(file, block))
            return writingError();
        m_progress(before + block.offset + block.size);
    }
    if (reader->error() != ArchiveError::None)
        return reader->error();
    m_done = before + size;
    const bool isHoleLeft = block.offset + block.size < size;
    return !isHoleLeft || ftruncate(file, size) == 0 ? ArchiveError::None : writingError();
}

ArchiveError Extractor::makeLinks()
{
    for (const int index : m_order) {
        const int file = m_tree.nodes()[size_t(index)].hardLink;
        if (file >= 0
            && linkat(m_directory, m_tree.path(file).constData(), m_directory, m_tree.path(index).constData(), 0) != 0)
            return writingError();
    }
    for (const int index : m_order) { // not before the hard links, which must not meet one on their way
        const MemberTree::Node &node = m_tree.nodes()[size_t(index)];
        if (node.kind == MemberTree::Link
            && symlinkat(node.link.constData(), m_directory, m_tree.path(index).constData()) != 0)
            return writingError();
    }
    return ArchiveError::None;
}

ArchiveError Extractor::closeDirectories()
{
    for (auto index = m_order.rbegin(); index != m_order.rend(); ++index) {
        const MemberTree::Node &node = m_tree.nodes()[size_t(*index)];
        const QByteArray path = *index == 0 ? QByteArray(".") : m_tree.path(*index);
        if (node.kind != MemberTree::Dir)
            continue;
        utimensat(m_directory, path.constData(), Times(node.modifiedMs).values, 0);
        if (fchmodat(m_directory, path.constData(), closedDirectory, 0) != 0)
            return ArchiveError::CannotWrite;
    }
    return ArchiveError::None;
}

} // namespace VeskFM
