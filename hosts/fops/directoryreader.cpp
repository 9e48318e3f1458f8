// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "directoryreader.h"

#include <fcntl.h>

#include <cerrno>
#include <cstring>

Descriptor openDirectory(int parent, const char *name)
{
    return Descriptor(openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

DirectoryReader::DirectoryReader(int directory)
{
    Descriptor own(fcntl(directory, F_DUPFD_CLOEXEC, 0));
    m_dir = own ? fdopendir(own.get()) : nullptr;
    if (!m_dir) {
        m_error = errno;
        return;
    }
    own.release();
    rewinddir(m_dir);
}

DirectoryReader::~DirectoryReader()
{
    if (m_dir)
        closedir(m_dir);
}

const dirent *DirectoryReader::next()
{
    while (m_dir) {
        errno = 0;
        const dirent *const node = readdir(m_dir);
        if (!node) {
            m_error = errno;
            return nullptr;
        }
        if (std::strcmp(node->d_name, ".") != 0 && std::strcmp(node->d_name, "..") != 0)
            return node;
    }
    return nullptr;
}
