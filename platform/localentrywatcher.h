// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrywatcher.h>

#include <QAtomicInt>
#include <QThreadPool>

namespace VeskFM
{

class LocalVfs;

/// Lists directories of the local disk on threads of its own and watches what was listed.
class LocalEntryWatcher : public EntryWatcher
{
    Q_OBJECT

public:
    explicit LocalEntryWatcher(LocalVfs *vfs); ///< becomes a child of @p vfs
    ~LocalEntryWatcher() override;

    void listDir(const Entry &entry, VFS::EntryChildFilters filters) override;
    void addBadEntry(const Entry &entry) override;

private:
    LocalVfs *const m_vfs;
    QAtomicInt m_cancel;
    QThreadPool m_listings;
};

} // namespace VeskFM
