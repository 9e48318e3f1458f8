// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localentrywatcher.h"

#include "localvfs.h"

namespace VeskFM
{

LocalEntryWatcher::LocalEntryWatcher(LocalVfs *vfs)
    : EntryWatcher(vfs)
    , m_vfs(vfs)
{
    m_listings.setMaxThreadCount(4);
}

LocalEntryWatcher::~LocalEntryWatcher()
{
    m_cancel.storeRelaxed(1);
}

void LocalEntryWatcher::listDir(const Entry &entry, VFS::EntryChildFilters filters)
{
    m_listings.start([=] { Q_EMIT dirListed(entry, filters, m_vfs->childs(entry, filters, &m_cancel)); });
}

void LocalEntryWatcher::addBadEntry(const Entry &) {}

} // namespace VeskFM
