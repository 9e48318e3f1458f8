// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivenodedata.h"

#include "localarchivemounts.h"
#include "pathcodec.h"

#include <QDir>

namespace VeskFM
{

ArchiveNodeData::ArchiveNodeData(std::shared_ptr<const ArchiveTree> tree, int node, const QString &archive,
                                 const QString &path)
    : m_tree(std::move(tree))
    , m_node(node)
    , m_archive(archive)
    , m_path(path)
{
}

const ArchiveNodeData *ArchiveNodeData::of(const Entry &entry)
{
    return dynamic_cast<const ArchiveNodeData *>(entry.data());
}

int ArchiveNodeData::real() const
{
    return m_tree->isLink(m_node) ? m_tree->target(m_node) : m_node;
}

QString ArchiveNodeData::path() const
{
    return m_path;
}

int ArchiveNodeData::type() const
{
    if (is(EntryTrait::SymLink))
        return is(EntryTrait::Dir) ? Entry::DirLink : Entry::FileLink;
    return is(EntryTrait::Dir) ? Entry::Dir : Entry::File;
}

bool ArchiveNodeData::is(EntryTrait trait) const
{
    switch (trait) {
    case EntryTrait::Exists:
        return true;
    case EntryTrait::Dir:
        return !m_tree || (real() >= 0 && m_tree->isDir(real()));
    case EntryTrait::File:
        return !is(EntryTrait::Dir);
    case EntryTrait::SymLink:
        return m_tree && m_tree->isLink(m_node);
    case EntryTrait::Hidden:
        return m_path.at(m_path.lastIndexOf(QLatin1Char('/')) + 1) == QLatin1Char('.');
    case EntryTrait::Executable:
        return m_tree && real() >= 0 && m_tree->isExecutable(real());
    default:
        return false;
    }
}

QString ArchiveNodeData::pathInMount() const
{
    return m_tree ? m_tree->mountPath() + QLatin1Char('/') + m_tree->path(m_node) : QString();
}

QString ArchiveNodeData::localPath() const
{
    if (!m_tree || !LocalArchiveMounts::instance().isMounted(m_tree->mountPath()))
        return {};
    const QString path = pathInMount();
    return PathCodec::isPortable(path) ? path : QString();
}

QString ArchiveNodeData::symLinkTarget() const
{
    if (!is(EntryTrait::SymLink))
        return {};
    const QString directory = m_tree->parent(m_node) == 0 ? QString() : m_tree->path(m_tree->parent(m_node));
    const QString target = real() >= 0
        ? m_tree->path(real())
        : QDir::cleanPath(directory + QLatin1Char('/') + m_tree->link(m_node)).mid(directory.isEmpty() ? 1 : 0);
    return target.isEmpty() ? m_archive : m_archive + QLatin1Char('/') + target;
}

qint64 ArchiveNodeData::fileSize() const
{
    return m_tree && real() >= 0 ? m_tree->size(real()) : 0;
}

} // namespace VeskFM
