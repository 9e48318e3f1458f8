// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fakevfs.h"

#include <veskplatform/entrywatcher.h>
#include <veskplatform/vfsplacebase.h>

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace VeskFM
{

/// A watcher that only takes down what it is asked for: the test emits its signals.
class FakeWatcher : public EntryWatcher
{
public:
    void listDir(const Entry &entry, VFS::EntryChildFilters filters) override
    {
        asked.append(entry.path() + QLatin1Char(' ') + QString::number(filters));
    }
    void addBadEntry(const Entry &entry) override { bad.append(entry.path()); }

    QStringList asked; // path and filters of each listing
    QStringList bad;
};

/// Places in the order that the test gives their paths.
class FakePlaces : public VFSPlaceBase
{
public:
    EntryList childEntries(const Entry &) const override { return {}; }
    int placeOrderIndex(const Entry &place, const Entry &) const override { return order.value(place.path()); }

    QHash<QString, int> order;
};

/// A VFS of fake entries, with a watcher that says what the test makes it say. Install it before models are made.
class TreeVfs : public FakeVfs
{
public:
    /// The entry of @p path, newly made; directories and links behave like those of a disk.
    Entry add(const QString &path, int kind = Entry::File, std::initializer_list<EntryTrait> more = {}, qint64 size = 0)
    {
        const bool isPlace = std::find(more.begin(), more.end(), EntryTrait::Place) != more.end();
        const bool isDir = kind == Entry::Dir || kind == Entry::DirLink;
        QVector<EntryTrait> traits(more);
        traits.append(EntryTrait::Exists);
        if (!isPlace)
            traits.append(isDir ? EntryTrait::Dir : EntryTrait::File);
        if (path.contains(QLatin1String("/.")))
            traits.append(EntryTrait::Hidden);
        auto *const data = new FakeEntryData(path, traits);
        data->kind = kind;
        data->size = size;
        const Entry made(data);
        nodes.insert(path, made);
        return made;
    }

    Entry entry(const QString &path) const override { return nodes.value(path); }
    Entry rootEntry() const override { return nodes.value(QStringLiteral("/")); }
    Entry parent(const Entry &entry) const override { return nodes.value(parentDirPath(entry.path())); }
    bool isEntryExists(const Entry &entry) const override { return nodes.contains(entry.path()); }
    EntryList pathEntryList(const Entry &entry) const override
    {
        EntryList list;
        for (QString path = entry.path(); nodes.contains(path); path = parentDirPath(path))
            list.prepend(nodes.value(path));
        return list;
    }
    EntryList pathEntryList(const Entry &entry, const Entry &from) const override
    {
        EntryList list = pathEntryList(entry);
        while (!list.isEmpty() && list.first() != from)
            list.removeFirst();
        return list;
    }
    bool mayContainContainers(const Entry &entry) const override { return !leaves.contains(entry.path()); }
    VFSPlaceBase *placeBase() const override { return &places; }
    EntryWatcher *entryWatcher() const override { return &watcher; }

    /// Lets the watcher say so, and the models hear it.
    void tell(void (EntryWatcher::*what)(const Entry &), const Entry &entry) const
    {
        Q_EMIT(watcher.*what)(entry);
        QCoreApplication::sendPostedEvents();
    }
    void answer(const Entry &entry, EntryChildFilters filters, const EntryList &children) const
    {
        Q_EMIT watcher.dirListed(entry, filters, children);
        QCoreApplication::sendPostedEvents();
    }

    QHash<QString, Entry> nodes; // by path; what is not in here does not exist
    QStringList leaves;          // paths of the directories that cannot contain directories
    mutable FakePlaces places;
    mutable FakeWatcher watcher;
};

} // namespace VeskFM
