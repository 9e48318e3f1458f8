// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archivetree.h"

#include <veskplatform/entry.h>

#include <memory>

namespace VeskFM
{

/// What the local VFS knows of a file or directory in an archive. Its path is that of the archive, and then the path in it.
///
/// Thread: any.
class ArchiveNodeData : public EntryData
{
public:
    /// @param tree null for a node of an archive that nobody has listed yet: it passes for a directory
    ArchiveNodeData(std::shared_ptr<const ArchiveTree> tree, int node, const QString &archive, const QString &path);

    QString path() const override;
    int type() const override;
    bool is(EntryTrait trait) const override;
    QString localPath() const override;     ///< in the mount of the archive, while there is one
    QString symLinkTarget() const override; ///< a VFS path
    qint64 fileSize() const override;

    QString archive() const { return m_archive; } ///< the VFS path
    QString innerPath() const { return m_path.mid(m_archive.size() + 1); }
    const std::shared_ptr<const ArchiveTree> &tree() const { return m_tree; }
    int node() const { return m_node; }
    /// Where it is while the archive is mounted: exact bytes in the form of a VFS path.
    QString pathInMount() const;

    /// The data of @p entry if it lies in an archive, else null.
    static const ArchiveNodeData *of(const Entry &entry);

private:
    int real() const; // the node itself, or the one that the link leads to; -1 for none

    const std::shared_ptr<const ArchiveTree> m_tree;
    const int m_node;
    const QString m_archive;
    const QString m_path;
};

} // namespace VeskFM
