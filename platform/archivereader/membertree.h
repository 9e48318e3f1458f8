// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "../archiveerror.h"
#include "../archivelimits.h"
#include "archivemember.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPair>

#include <vector>

namespace VeskFM
{

class MemberReader;

/// The members of an archive as a tree of directories that is safe to make on a disk.
///
/// Left out is what climbs: names that are absolute or hold "..", members behind a link that the archive has made, links
/// that lead, or could lead, out of the archive, hard links to what is no earlier file; and devices, pipes, and names that
/// no disk takes. Of two members of one name the later stays, but a directory never gives way.
class MemberTree
{
public:
    enum Kind : quint8 { File, Dir, Link };
    struct Node
    {
        QByteArray name;
        int parent = 0;
        Kind kind = Dir;
        bool isExecutable = false;
        bool isRefused = false;
        qint64 size = 0;
        qint64 modifiedMs = 0;
        QByteArray link;   // of a link
        int target = -1;   // of a link: the node that it leads to
        int hardLink = -1; // the file whose content it shares
        int member = -1;   // the number of the member that has the content
    };

    explicit MemberTree(const ArchiveLimits &limits);

    /// Takes all members of @p reader.
    ArchiveError build(MemberReader *reader);

    const std::vector<Node> &nodes() const { return m_nodes; } ///< the first is the root; parents come before children
    QByteArray path(int node) const;                           ///< from the root, without a slash before it
    int nodeOfMember(int member) const { return m_byMember.value(member, -1); }
    qint64 unpackedBytes() const; ///< of all files
    /// By levels, and by name in each directory: the indexes of all nodes that are not refused. The root comes first.
    std::vector<int> ordered() const;

private:
    using Key = QPair<int, QByteArray>; // parent and name
    ArchiveError add(const ArchiveMember &member, int number);
    ArchiveError put(int parent, const Node &node);
    int find(const QByteArray &path) const;
    int follow(int node) const;
    void finishHardLinks();
    ArchiveError finishLinks();
    bool resolve(int node, int *target, int *hops, qint64 *steps) const;

    const ArchiveLimits m_limits;
    std::vector<Node> m_nodes;
    QHash<Key, int> m_children;
    QHash<int, int> m_byMember;
    qint64 m_textBytes = 0;
};

} // namespace VeskFM
