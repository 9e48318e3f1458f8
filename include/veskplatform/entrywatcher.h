// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/vfs.h>

namespace VeskFM
{

/// Lists directories without blocking and tells what changes in those that were listed.
///
/// Thread: the calls on the GUI thread; the signals may come from any thread, so connect them queued, with a context.
class VESKPLATFORM_EXPORT EntryWatcher : public QObject
{
    Q_OBJECT

public:
    explicit EntryWatcher(QObject *parent = nullptr);
    ~EntryWatcher() override;

    /// Asks for the children of @p entry and returns at once; one dirListed() answers, an empty one on failure.
    virtual void listDir(const Entry &entry, VFS::EntryChildFilters filters) = 0;
    /// Reports an entry whose properties could not be read.
    virtual void addBadEntry(const Entry &entry) = 0;

Q_SIGNALS:
    /// The children of @p entry, for the filters that were asked for; it reaches everybody, not only who asked.
    void dirListed(const VeskFM::Entry &entry, VeskFM::VFS::EntryChildFilters filters,
                   const VeskFM::EntryList &children);
    void entryCreated(const VeskFM::Entry &entry);
    void entryDeleted(const VeskFM::Entry &entry);
    void entryChanged(const VeskFM::Entry &entry);
    void entryAttributesChanged(const VeskFM::Entry &entry);
    void entryReset(const VeskFM::Entry &entry); ///< the contents must be listed again
};

} // namespace VeskFM
