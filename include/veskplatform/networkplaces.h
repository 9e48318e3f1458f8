// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QObject>

class QAtomicInt;

namespace VeskFM
{

/// Where servers and shares are plugged into the local VFS. Without one installed the groups VFS::networkEntry() and
/// VFS::networkResourcesEntry() are there and empty.
///
/// The entries are of the implementer's own EntryData. Their paths have the form of a URL with a scheme that nobody else
/// uses ("sftp://server/share"; not "computer", "favorites", "places", "storage", "network", "network-resources"); they
/// have the trait Place and those of their kind. One with a localPath() is listed from there and shows that directory;
/// of the others childs() tells what is in them.
///
/// Thread: entry(), parent(), orderIndex() and mayContainContainers() are asked on any thread, the GUI thread among
/// them, several at a time: they answer at once from what is known, and never wait for a server. So does childs() for
/// the two groups; for other entries it may block, as it is asked on a worker. Signals may come from any thread.
class VESKPLATFORM_EXPORT NetworkPlaces : public QObject
{
    Q_OBJECT

public:
    explicit NetworkPlaces(QObject *parent = nullptr);
    ~NetworkPlaces() override;

    static NetworkPlaces *ptr(); ///< what is installed, else null
    /// Puts @p places in; null takes them out. Models list the groups again. Call it on the GUI thread, after
    /// VFS::install(); returns what was installed before, which must outlive listings under way. The caller keeps the
    /// ownership of both.
    static NetworkPlaces *install(NetworkPlaces *places);

    /// The entry of a path with one of its schemes, known or not: a bookmark may lead to a server that was never seen.
    /// Null for other paths.
    virtual Entry entry(const QString &path) const = 0;
    /// What is below one of the groups or one of its own entries. A non-zero @p cancel (which may be null) stops it.
    virtual EntryList childs(const Entry &entry, QAtomicInt *cancel) const = 0;
    virtual Entry parent(const Entry &entry) const = 0; ///< of its own entries: another one, or a group
    /// Position of @p place, one of its own, under @p parent; smaller comes first. 0 for all unless overridden.
    virtual int orderIndex(const Entry &place, const Entry &parent) const;
    /// Whether one of its own entries gets an expander in a tree. True unless overridden.
    virtual bool mayContainContainers(const Entry &entry) const;

Q_SIGNALS:
    // What EntryWatcher's signals of these names tell, about its own entries and the two groups.
    void entryCreated(const VeskFM::Entry &entry);
    void entryDeleted(const VeskFM::Entry &entry);
    void entryChanged(const VeskFM::Entry &entry);
    void entryReset(const VeskFM::Entry &entry);
};

} // namespace VeskFM
