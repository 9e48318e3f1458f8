// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "descriptor.h"
#include "filecontents.h"
#include "treedigest.h"

#include <QByteArray>
#include <QHash>
#include <QPair>

/// Copies a file or a whole tree to a name that nobody has yet, a part: with modes, owners, times, extended attributes,
/// holes and hard links among the copied files. Links are copied as links; pipes and devices are made anew, never read.
///
/// One object makes one copy. On failure nothing of it stays.
class TreeCopier
{
public:
    /// @param progress borrowed
    /// @param digest   borrowed, may be null; gains what the source looked like when it was read
    explicit TreeCopier(Progress *progress, TreeDigest *digest = nullptr);

    /// Permissions that all copies of files and directories get beside those of their originals.
    void setAddedMode(mode_t mode) { m_addedMode = mode; }

    /// @param part a name in @p toParent where nothing is
    Result copy(int fromParent, const QByteArray &from, int toParent, const QByteArray &part);

    /// Waits until the copy is on the disk, with its names.
    Result sync(int toParent, const QByteArray &part);

private:
    using NodeId = QPair<quint64, quint64>; // device and inode

    Result copyNode(int fromParent, const char *from, int toParent, const char *to, const QByteArray &path, int depth);
    Result copyFile(int fromParent, const char *from, const struct stat &known, int toParent, const char *to,
                    bool isTop);
    Result copyDirectory(int fromParent, const char *from, const struct stat &known, int toParent, const char *to,
                         const QByteArray &path, int depth);
    Result copyChildren(int from, int to, const QByteArray &path, int depth);
    Result copyLink(int fromParent, const char *from, const struct stat &facts, int toParent, const char *to);
    Result finish(int from, struct stat facts, int to) const;
    Result copySpecial(const struct stat &facts, int toParent, const char *to);
    bool linkToEarlierCopy(const struct stat &facts, int toParent, const char *to);
    Result syncNode(int parent, const char *name, bool isDirectory);
    Result syncChildren(int directory);

    Progress *const m_progress;
    TreeDigest *const m_digest;
    FileContents m_contents;
    mode_t m_addedMode = 0;
    Descriptor m_top;                   // the part, open and held while it is worked on
    NodeId m_topId;                     // of a directory; met again below the source it would be copied forever
    QHash<NodeId, QByteArray> m_linked; // files with several names -> the path of their copy below the top
};
