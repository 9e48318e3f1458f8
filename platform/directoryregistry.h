// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fileidentity.h"
#include "pendingchanges.h"

#include <veskplatform/vfs.h>

#include <QMap>
#include <QSet>

#include <memory>
#include <mutex>
#include <set>
#include <vector>

namespace VeskFM
{

/// One entry whose listing shows a directory: the directory itself, or a place that stands for it.
struct ShownEntry
{
    Entry entry;
    VFS::EntryChildFilters filters; // of its latest listing
};

/// What is to be told about one directory now.
struct DirectoryNews
{
    QByteArray directory;
    FileIdentity identity;         // as it was last listed; without "exists" when nothing is known
    std::vector<ShownEntry> shown; // shares nothing with the registry, whose lock does not cover it
    std::vector<PendingChanges::Change> changes;
    bool moved = false;     // it was deleted, or bears another path now
    bool unmounted = false; // or is on a disk that is: nobody deleted it
    bool reset = false;     // it must be listed again, whatever the changes say
};

/// The directories that were listed, who shows them, and what happened in them since.
///
/// News of a directory that is being listed wait until the listing has been told, so that none is lost in between.
///
/// A tree may have shown a hundred thousand of them, so nothing but sweeps and losses goes through all.
///
/// Thread: any. Nothing here touches the disk or blocks.
class DirectoryRegistry
{
public:
    void beginListing(const QByteArray &directory, const Entry &entry, VFS::EntryChildFilters filters);
    void setIdentity(const QByteArray &directory, const FileIdentity &identity);
    void endListing(const QByteArray &directory);

    void addChange(const QByteArray &directory, const QByteArray &name, PendingChanges::Kind kind, qint64 now);
    void setMoved(const QByteArray &directory, bool unmounted = false); ///< also checks the directories below it
    void reset(const QByteArray &directory);
    void resetAll();

    /// The names in it that are symbolic links, as far as listings and changes told them.
    void addLinks(const QByteArray &directory, const QSet<QByteArray> &names);
    bool takeLink(const QByteArray &directory, const QByteArray &name); ///< whether it was one; forgets it

    /// Takes at most @p most changes whose time has come. @p nextDue: when to ask again, PendingChanges::never.
    std::vector<DirectoryNews> takeNews(qint64 now, size_t most, qint64 *nextDue);

    bool contains(const QByteArray &directory) const;
    void remove(const QByteArray &directory);
    /// Takes out the directories whose entries nobody else holds any more, if there are more than @p generous of all
    /// and twice as many as were in use the last time.
    QList<QByteArray> takeUnused(int generous);
    void clear();

private:
    struct Record
    {
        std::vector<ShownEntry> shown;
        QSet<QByteArray> links;
        FileIdentity identity;
        std::shared_ptr<PendingChanges> changes; // null while there are none, as of most
        int listings = 0;                        // under way
        bool moved = false;
        bool unmounted = false;
        bool reset = false;
    };
    using Records = QMap<QByteArray, Record>; // by path: what is below a directory stands together

    bool takeNewsOf(const QByteArray &directory, Record *record, qint64 now, size_t most, DirectoryNews *news);

    mutable std::mutex m_mutex;
    Records m_records;
    std::set<QByteArray> m_withNews; // what is not there any more is left out; those above come first
    int m_usedAtSweep = 0;
};

} // namespace VeskFM
