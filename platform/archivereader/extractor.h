// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "memberreader.h"
#include "membertree.h"

#include <functional>

namespace VeskFM
{

/// Makes the tree of an archive on the disk, read-only. Directories come first, then files, then the links: while files
/// are written there is no link that could lead them elsewhere.
class Extractor
{
public:
    using Progress = std::function<void(qint64 done)>; ///< bytes
    /// @param directory open, empty, and reached by nobody else; borrowed
    Extractor(const MemberTree &tree, int directory, qint64 mostBytes, Progress progress);

    /// @param reader the one that the tree was built from
    ArchiveError extract(MemberReader *reader);

private:
    ArchiveError makeDirectories();
    ArchiveError makeFiles(MemberReader *reader);
    ArchiveError makeFile(MemberReader *reader, int node);
    ArchiveError copyContent(MemberReader *reader, int file, qint64 size);
    ArchiveError makeLinks();
    ArchiveError closeDirectories();

    const MemberTree &m_tree;
    const std::vector<int> m_order;
    const int m_directory;
    const qint64 m_mostBytes;
    const Progress m_progress;
    qint64 m_done = 0;
};

} // namespace VeskFM
