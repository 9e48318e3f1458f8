// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "containers.h"

#include "printabletext.h"

#include <veskplatform/vfs.h>

using namespace VeskFM;

bool canBeShown(const Entry &entry)
{
    return entry.isDir() || entry.isPlace() || entry.isArchiveMountPoint();
}

// The virtual root above the file system has nothing to show that the side panel does not.
Entry parentToShow(const Entry &directory)
{
    const Entry parent = VFS::ptr()->parent(directory);
    return parent == VFS::ptr()->rootEntry() ? Entry() : parent;
}

Entry archiveAround(const Entry &directory)
{
    if (directory.isPlace())
        return {};
    Entry step = directory;
    while (!step.isNull() && !step.isArchiveMountPoint())
        step = parentToShow(step);
    return step;
}

QString shownName(const Entry &entry)
{
    const QString name = entry.isPlace() ? entry.fileName() : entry.lastPathSection();
    return printableText(name.isEmpty() ? entry.path() : name);
}
