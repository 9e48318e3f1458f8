// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/entryenumerator.h>

#include <utility>

namespace VeskFM
{

EntryEnumerator::EntryEnumerator() = default;
EntryEnumerator::~EntryEnumerator() = default;

bool EntryEnumerator::includeSubdirs() const
{
    return m_includeSubdirs;
}

void EntryEnumerator::setIncludeSubdirs(bool on)
{
    m_includeSubdirs = on;
}

bool EntryEnumerator::includeArchives() const
{
    return m_includeArchives;
}

void EntryEnumerator::setIncludeArchives(bool on)
{
    m_includeArchives = on;
}

bool EntryEnumerator::includeHidden() const
{
    return m_includeHidden;
}

void EntryEnumerator::setIncludeHidden(bool on)
{
    m_includeHidden = on;
}

void EntryEnumerator::setStartEntry(const Entry &entry)
{
    m_pending.clear();
    m_startEntry = entry;
}

Entry EntryEnumerator::getNextEntry()
{
    if (m_pending.isEmpty() && !m_startEntry.isNull())
        pushChilds(m_startEntry, VFS::RecursiveListing);

    // Used-up lists go only now, not when their last entry was taken: an empty stack means that a walk begins, and the
    // call after the last entry has to end it first.
    while (!m_pending.isEmpty() && m_pending.top().position == m_pending.top().entries.size())
        m_pending.pop();
    if (m_pending.isEmpty())
        return {};

    Level &top = m_pending.top();
    const Entry entry = std::move(top.entries[top.position++]); // what the walk is done with takes no room
    if (isEntered(entry)) {
        VFS::EntryChildFilters filters = VFS::RecursiveListing;
        filters.setFlag(VFS::NoArchiveDescent, !m_includeArchives);
        pushChilds(entry, filters);
    }
    return entry;
}

Entry EntryEnumerator::nextEntry()
{
    Entry entry = getNextEntry();
    while (!m_includeHidden && entry.isHidden()) // a null entry is not hidden
        entry = getNextEntry();
    return entry;
}

/// A VFS may have archives that can be entered as files.
bool EntryEnumerator::isEntered(const Entry &entry) const
{
    return m_includeSubdirs && !entry.isSymLink()
        && (entry.isDir() || (m_includeArchives && entry.isArchiveMountPoint()));
}

void EntryEnumerator::pushChilds(const Entry &entry, VFS::EntryChildFilters filters)
{
    const EntryList childs = VFS::ptr()->childs(entry, filters, nullptr);
    if (!childs.isEmpty())
        m_pending.push({childs, 0});
}

} // namespace VeskFM
