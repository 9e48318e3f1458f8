// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fakevfs.h"

#include <veskplatform/entrywatcher.h>
#include <veskplatform/vfsplacebase.h>

#include <QHash>

/// A watcher that only takes down what it is asked for: the test emits its signals.
class FakeWatcher : public VeskFM::EntryWatcher
{
public:
    void listDir(const VeskFM::Entry &entry, VeskFM::VFS::EntryChildFilters filters) override
    {
        asked.append(entry.path() + QLatin1Char(' ') + QString::number(filters));
    }
    void addBadEntry(const VeskFM::Entry &entry) override { bad.append(entry.path()); }

    QStringList asked; // path and filters of each listing
    QStringList bad;
};

/// Places in the order that the test gives their paths.
class FakePlaces : public VeskFM::VFSPlaceBase
{
public:
    VeskFM::EntryList childEntries(const VeskFM::Entry &) const override { return {}; }
    int placeOrderIndex(const VeskFM::Entry &place, const VeskFM::Entry &) const override
    {
        return order.value(place.path());
    }

    QHash<QString, int> order;
};

/// A VFS of fake entries, with a watcher that says what the test makes it say. Install it before models are made.
class TreeVfs : public FakeVfs
{
public:
    /// The entry of @p path, newly made; directories and links behave like those of a disk.
    VeskFM::Entry add(const QString &path, int kind = VeskFM::Entry::File,
                      std::initializer_list<VeskFM::EntryTrait> more = {})
    {
        using VeskFM::EntryTrait;
        const bool isDir = kind == VeskFM::Entry::Dir || kind == VeskFM::Entry::DirLink;
        QSet<int> traits = {int(EntryTrait::Exists), int(isDir ? EntryTrait::Dir : EntryTrait::File)};
        for (const EntryTrait trait : more)
            traits.insert(int(trait));
        if (traits.contains(int(EntryTrait::Place)))
            traits.remove(int(EntryTrait::File));
        auto *const data = new FakeEntryData(path, traits);
        data->kind = kind;
        const VeskFM::Entry made(data);
        nodes.insert(path, made);
        return made;
    }

    VeskFM::Entry entry(const QString &path) const override { return nodes.value(path); }
    VeskFM::Entry rootEntry() const override { return nodes.value(QStringLiteral("/")); }
    VeskFM::Entry parent(const VeskFM::Entry &entry) const override { return nodes.value(parentDirPath(entry.path())); }
    bool isEntryExists(const VeskFM::Entry &entry) const override { return nodes.contains(entry.path()); }
    VeskFM::EntryList pathEntryList(const VeskFM::Entry &entry) const override
    {
        VeskFM::EntryList list;
        for (QString path = entry.path(); nodes.contains(path); path = parentDirPath(path))
            list.prepend(nodes.value(path));
        return list;
    }
    VeskFM::VFSPlaceBase *placeBase() const override { return &places; }
    VeskFM::EntryWatcher *entryWatcher() const override { return &watcher; }

    QHash<QString, VeskFM::Entry> nodes; // by path; what is not in here does not exist
    mutable FakePlaces places;
    mutable FakeWatcher watcher;
};
