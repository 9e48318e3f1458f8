// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archiveidentity.h"
#include "archiverecords.h"

#include <QString>

#include <vector>

namespace VeskFM
{

/// What is in an archive, as it was listed once. Node 0 is the archive itself.
///
/// Thread: add() and finish() one, before anybody else has it; afterwards any.
class ArchiveTree
{
public:
    ArchiveTree(const QString &archive, const ArchiveIdentity &identity);
    ~ArchiveTree();
    Q_DISABLE_COPY_MOVE(ArchiveTree)

    bool add(const ArchiveNodeRecord &record); ///< false for one that cannot be, as a reader gone wrong might write it
    bool finish();                             ///< false when links lead nowhere

    QString archive() const { return m_archive; } ///< the VFS path
    ArchiveIdentity identity() const { return m_identity; }
    QString mountPath() const { return m_mountPath; }
    qint64 memoryBytes() const; ///< about

    /// The node at the end of @p path, given from the top of the archive. Links on the way are followed; -1 for none.
    int find(const QString &path) const;
    int parent(int node) const { return int(m_nodes[size_t(node)].parent); }
    int firstChild(int node) const { return int(m_nodes[size_t(node)].firstChild); }
    int childEnd(int node) const { return firstChild(node) + int(m_nodes[size_t(node)].children); }
    bool hasDirs(int node) const; ///< whether a child is a directory or leads to one

    bool isDir(int node) const { return m_nodes[size_t(node)].kind == ArchiveNodeRecord::Dir; }
    bool isLink(int node) const { return m_nodes[size_t(node)].kind == ArchiveNodeRecord::Link; }
    bool isExecutable(int node) const { return m_nodes[size_t(node)].isExecutable; }
    qint64 size(int node) const { return m_nodes[size_t(node)].size; }
    qint64 modifiedMs(int node) const { return m_nodes[size_t(node)].modifiedMs; } ///< 0 when it is not told
    int target(int node) const { return m_nodes[size_t(node)].target; } ///< -1 for what is no link, or leads to nothing
    QString name(int node) const;
    QString link(int node) const;
    QString path(int node) const; ///< from the top, without a slash before it

private:
    struct Node
    {
        quint32 parent = 0;
        quint32 firstChild = 0;
        quint32 children = 0;
        qint32 target = -1;
        qint64 size = 0;
        qint64 modifiedMs = 0;
        quint32 text = 0; // where its name is, and after it the link
        quint16 linkSize = 0;
        quint8 nameSize = 0;
        quint8 kind = ArchiveNodeRecord::Dir;
        bool isExecutable = false;
    };
    QByteArray nameBytes(int node) const;
    int child(int node, const QByteArray &name) const;

    const QString m_archive;
    const ArchiveIdentity m_identity;
    const QString m_mountPath;
    std::vector<Node> m_nodes;
    QByteArray m_texts;
};

} // namespace VeskFM
