// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "descriptor.h"

#include <dirent.h>

/// Opens a directory itself, never what a link leads to. Without a descriptor when that fails, and errno is set.
Descriptor openDirectory(int parent, const char *name);

/// Lists a directory without "." and "..".
class DirectoryReader
{
public:
    /// @param directory borrowed; its position is shared, so only one at a time reads it
    explicit DirectoryReader(int directory);
    ~DirectoryReader();
    DirectoryReader(const DirectoryReader &) = delete;
    DirectoryReader &operator=(const DirectoryReader &) = delete;

    const dirent *next();                 ///< null at the end and after an error; valid until the next call
    int error() const { return m_error; } ///< an errno, 0 for none

private:
    DIR *m_dir = nullptr;
    int m_error = 0;
};
