// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakevfs.h"

using namespace VeskFM;

FakeEntryData::FakeEntryData(const QString &path, const QSet<int> &initialTraits)
    : traits(initialTraits)
    , m_path(path)
{
}

FakeVfs::FakeVfs()
    : m_local(VFS::ptr())
{
    VFS::install(this);
}

FakeVfs::~FakeVfs()
{
    VFS::install(nullptr);
}

Entry FakeVfs::sibling(const Entry &entry, const QString &name) const
{
    return m_local->sibling(entry, name);
}

EntryList FakeVfs::childs(const Entry &entry, EntryChildFilters filters, QAtomicInt *cancel) const
{
    return m_local->childs(entry, filters, cancel);
}

EntryList FakeVfs::pathEntryList(const Entry &entry, const Entry &from) const
{
    return m_local->pathEntryList(entry, from);
}

QList<QUrl> FakeVfs::urlsFromEntries(const EntryList &entries) const
{
    return m_local->urlsFromEntries(entries);
}

bool FakeVfs::mayContainContainers(const Entry &entry) const
{
    return m_local->mayContainContainers(entry);
}

Entry FakeVfs::symLinkTargetEntry(const Entry &entry) const
{
    return m_local->symLinkTargetEntry(entry);
}
