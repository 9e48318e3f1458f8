// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "containers.h"

#include "printabletext.h"

#include <veskplatform/archivemount.h>
#include <veskplatform/standardpaths.h>
#include <veskplatform/vfs.h>
#include <veskplatform/vfsplacebase.h>

#include <algorithm>

using namespace VeskFM;

bool canBeShown(const Entry &entry)
{
    return entry.isDir() || entry.isPlace() || entry.isArchiveMountPoint();
}

Entry directoryToShow(const Entry &entry)
{
    return entry.isDirPlace() && !entry.isTrashDirPlace() ? VFS::ptr()->entry(entry.localPath()) : entry;
}

// The virtual root above the file system has nothing to show that the side panel does not.
Entry parentToShow(const Entry &directory)
{
    const Entry parent = VFS::ptr()->parent(directory);
    return parent == VFS::ptr()->rootEntry() ? Entry() : parent;
}

bool canTakeFiles(const Entry &container)
{
    if (container.isPlace())
        return !container.localPath().isEmpty();
    return container.isDir() && ArchiveMount::archiveOf(container).isNull();
}

Entry trashPlace()
{
    const EntryList places = VFS::ptr()->placeBase()->childEntries(VFS::ptr()->placesEntry());
    const auto trash = std::find_if(places.cbegin(), places.cend(), [](const Entry &e) { return e.isTrashDirPlace(); });
    return trash == places.cend() ? VFS::ptr()->entry(StandardPaths::trashDirPath()) : *trash;
}

QString shownName(const Entry &entry)
{
    const QString name = entry.isPlace() ? entry.fileName() : entry.lastPathSection();
    return printableText(name.isEmpty() ? entry.path() : name);
}
