// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "progress.h"
#include "result.h"

struct stat;

/// Copies what regular files hold: shared blocks where the file system can, else inside the kernel, else by reading and
/// writing. Holes stay holes. Remembers what two file systems refuse together, so one object serves one pair of them.
class FileContents
{
public:
    explicit FileContents(Progress *progress)
        : m_progress(progress)
    {
    }

    /// @param from  open for reading; @p facts are its own
    /// @param to    open for writing, empty
    Result copy(int from, const struct stat &facts, int to);

private:
    Result copySegments(int from, int to, off_t size);
    Result copyRange(int from, int to, off_t begin, off_t end);
    ssize_t copyInKernel(int from, int to, off_t position, size_t length);
    ssize_t readAndWrite(int from, int to, off_t position, size_t length);

    Progress *const m_progress;
    bool m_canShareBlocks = true;
    bool m_canCopyInKernel = true;
};
