// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskplatform/entrylist.h>
#include <veskplatform/vfs.h>

#include <QStack>

namespace VeskFM
{

/// Walks the entries below a start entry, one at a time: each directory is followed by what it holds. The order within a
/// directory is the VFS's. Symbolic links are returned and not descended into, so that a walk ends; the start entry itself
/// may be a link.
///
/// Thread: one, any; lists on the calling thread.
class VESKFM_EXPORT EntryEnumerator
{
public:
    EntryEnumerator();
    ~EntryEnumerator();

    bool includeSubdirs() const; ///< default: true
    void setIncludeSubdirs(bool on);
    bool includeArchives() const; ///< whether archives below the start entry's children are entered; default: false
    void setIncludeArchives(bool on);
    bool includeHidden() const; ///< for nextEntry(); hidden directories are entered all the same; default: true
    void setIncludeHidden(bool on);

    void setStartEntry(const Entry &entry); ///< the next call starts a new walk
    /// The next entry, hidden or not; null once when the walk is over. Asking again after that starts it anew.
    Entry getNextEntry();
    Entry nextEntry(); ///< getNextEntry() without hidden entries, unless they are included

private:
    Q_DISABLE_COPY(EntryEnumerator)

    struct Level
    {
        EntryList entries;
        int position; // of the entry to be returned next
    };

    bool isEntered(const Entry &entry) const;
    void pushChilds(const Entry &entry, VFS::EntryChildFilters filters);

    QStack<Level> m_pending;
    Entry m_startEntry;
    bool m_includeSubdirs = true;
    bool m_includeArchives = false;
    bool m_includeHidden = true;
};

} // namespace VeskFM
