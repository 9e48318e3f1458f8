// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivenodes.h"

#include "archivefile.h"
#include "archivelistings.h"
#include "deferredentrydata.h"
#include "guithread.h"

#include <QAtomicInt>

#include <cerrno>

namespace VeskFM
{

namespace
{
using TreePtr = std::shared_ptr<const ArchiveTree>;

QString joined(const QString &directory, const QString &name)
{
    return directory + QLatin1Char('/') + name;
}

/// The directory that a node is or leads to; -1 for none.
int directoryOf(const ArchiveTree &tree, int node)
{
    const int real = node >= 0 && tree.isLink(node) ? tree.target(node) : node;
    return real >= 0 && tree.isDir(real) ? real : -1;
}

Entry nodeAt(const TreePtr &tree, const QString &path)
{
    const int node = tree->find(path.mid(tree->archive().size()));
    return node < 0 ? Entry() : Entry(new ArchiveNodeData(tree, node, tree->archive(), path));
}
} // namespace

Entry ArchiveNodes::entry(const QString &path)
{
    const QString archive = ArchiveFile::around(path);
    if (archive.isEmpty())
        return {};
    ArchiveListings &listings = ArchiveListings::instance();
    const ArchiveListing listing = isGuiThread() ? listings.listSoon(archive) : listings.list(archive, nullptr);
    if (listing.isPending)
        return Entry(new ArchiveNodeData(nullptr, 0, archive, path));
    return listing.tree ? nodeAt(listing.tree, path) : Entry();
}

Entry ArchiveNodes::parent(const ArchiveNodeData &node)
{
    const QString path = VFS::parentDirPath(node.path());
    if (path == node.archive())
        return Entry(new DeferredEntryData(path));
    return node.tree() ? nodeAt(node.tree(), path) : Entry(new ArchiveNodeData(nullptr, 0, node.archive(), path));
}

EntryList ArchiveNodes::childs(const Entry &entry, VFS::EntryChildFilters filters, QAtomicInt *cancel, int *error)
{
    const ArchiveNodeData *const node = ArchiveNodeData::of(entry);
    if (!node && filters.testFlag(VFS::NoArchiveDescent))
        return {};
    const QString archive = archiveOf(entry);
    const ArchiveListing listing = ArchiveListings::instance().list(archive, cancel);
    *error = listing.systemError;
    if (!listing.tree)
        return {};
    const ArchiveTree &tree = *listing.tree;
    const int directory = directoryOf(tree, node ? tree.find(node->innerPath()) : 0);
    if (directory < 0) { // gone with an earlier state of the archive
        *error = ENOENT;
        return {};
    }
    EntryList entries;
    for (int child = tree.firstChild(directory); child < tree.childEnd(directory); ++child) {
        if (cancel && cancel->loadRelaxed() != 0)
            break;
        if (!filters.testFlag(VFS::ContainersOnly) || directoryOf(tree, child) >= 0)
            entries.append(
                Entry(new ArchiveNodeData(listing.tree, child, archive, joined(entry.path(), tree.name(child)))));
    }
    return entries;
}

bool ArchiveNodes::hasDirs(const ArchiveNodeData &node)
{
    if (!node.tree())
        return true;
    const int directory = directoryOf(*node.tree(), node.node());
    return directory >= 0 && node.tree()->hasDirs(directory);
}

QString ArchiveNodes::archiveOf(const Entry &entry)
{
    if (const ArchiveNodeData *const node = ArchiveNodeData::of(entry))
        return node->archive();
    return entry.isArchiveMountPoint() ? entry.path() : QString();
}

} // namespace VeskFM
