// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "selectionsize.h"

#include "diskpath.h"
#include "kernelfilesystem.h"

#include <veskplatform/archivemount.h>
#include <veskplatform/vfs.h>

#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace VeskFM
{

namespace
{

bool isDotOrDotDot(const char *name)
{
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

} // namespace

SelectionSize::SelectionSize(const bool *running)
    : m_running(running)
{
}

SelectionSize::~SelectionSize() = default;

bool SelectionSize::isStopped() const
{
    return m_running && !__atomic_load_n(m_running, __ATOMIC_RELAXED);
}

bool SelectionSize::add(const EntryList &entries)
{
    std::vector<QByteArray> directories; // after the files, which then are known when a directory holds one of them
    for (const Entry &entry : entries) {
        if (isStopped())
            return false;
        if (ArchiveMount::isInArchive(entry)) {
            if (!addFromArchive(entry))
                return false;
            continue;
        }
        const QByteArray path = diskPath(entry);
        struct stat found = {};
        if (path.isEmpty() || lstat(path.constData(), &found) != 0)
            continue;
        if (S_ISDIR(found.st_mode))
            directories.push_back(path);
        else
            count(found, true);
    }
    for (const QByteArray &path : directories) {
        enter(AT_FDCWD, path.constData());
        if (!walk())
            return false;
    }
    return !isStopped();
}

/// Only the VFS knows what lies there. Returns false when stopped.
bool SelectionSize::addFromArchive(const Entry &entry)
{
    EntryList pending(entry);
    while (!pending.isEmpty()) {
        if (isStopped())
            return false;
        const Entry next = pending.takeLast();
        const bool isDirectory = next.isDir() && !next.isSymLink();
        ++(isDirectory ? m_directories : m_files);
        if (isDirectory)
            pending.append(VFS::ptr()->childs(next, VFS::RecursiveListing, nullptr));
        else if (!next.isSymLink())
            m_bytes += next.fileSize();
    }
    return true;
}

/// Counts a node unless it has been counted before. Returns whether it counts.
bool SelectionSize::count(const struct stat &found, bool selected)
{
    const QPair<quint64, quint64> identity(found.st_dev, found.st_ino);
    if (m_counted.contains(identity))
        return false;
    const bool isDirectory = S_ISDIR(found.st_mode);
    if (selected || isDirectory || found.st_nlink > 1)
        m_counted.insert(identity);
    if (isDirectory) {
        ++m_directories;
    } else {
        ++m_files;
        m_bytes += found.st_size;
    }
    return true;
}

/// Opens a directory, unless it is counted already, as the next to be read.
void SelectionSize::enter(int parent, const char *name)
{
    const int descriptor = openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat found = {};
    if (descriptor < 0)
        return;
    const bool isReadable = fstat(descriptor, &found) == 0;
    const bool isSameSystem = !m_open.empty() && m_open.back().device == found.st_dev;
    DIR *stream = nullptr;
    if (isReadable && (isSameSystem || !isInKernelFileSystem(descriptor)) && count(found, false))
        stream = fdopendir(descriptor);
    if (stream)
        m_open.push_back({std::unique_ptr<DIR, CloseDirectory>(stream), found.st_dev});
    else
        close(descriptor);
}

/// Reads the open directories, and those in them, to the end. Returns false when stopped.
bool SelectionSize::walk()
{
    while (!m_open.empty()) {
        if (isStopped())
            return false;
        DIR *const stream = m_open.back().stream.get();
        const struct dirent *node = readdir(stream);
        struct stat found = {};
        if (!node)
            m_open.pop_back();
        else if (isDotOrDotDot(node->d_name) || fstatat(dirfd(stream), node->d_name, &found, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        else if (S_ISDIR(found.st_mode))
            enter(dirfd(stream), node->d_name);
        else
            count(found, false);
    }
    return true;
}

} // namespace VeskFM
