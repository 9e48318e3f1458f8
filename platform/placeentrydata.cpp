// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placeentrydata.h"

#include <atomic>

namespace VeskFM
{

PlaceFacts::PlaceFacts(const QString &shownName, const QString &directory, std::initializer_list<EntryTrait> kind)
    : name(shownName)
    , localPath(directory)
{
    set(EntryTrait::Exists); // whether a directory behind it does is for its listing to find out
    set(EntryTrait::Place);
    set(directory.isEmpty() ? EntryTrait::PurePlace : EntryTrait::DirPlace);
    for (const EntryTrait trait : kind)
        set(trait);
}

bool PlaceFacts::operator==(const PlaceFacts &other) const
{
    return name == other.name && localPath == other.localPath && traits == other.traits
        && storage.type() == other.storage.type() && storage.iconName() == other.storage.iconName()
        && storage.isMounted() == other.storage.isMounted();
}

PlaceEntryData::PlaceEntryData(const QString &path, const PlaceFacts &facts)
    : m_path(path)
    , m_facts(std::make_shared<const PlaceFacts>(facts))
{
}

std::shared_ptr<const PlaceFacts> PlaceEntryData::facts() const
{
    return std::atomic_load(&m_facts);
}

void PlaceEntryData::setFacts(const PlaceFacts &facts)
{
    std::atomic_store(&m_facts, std::make_shared<const PlaceFacts>(facts));
}

QString PlaceEntryData::path() const
{
    return m_path;
}

int PlaceEntryData::type() const
{
    // What is of the kind of virtual directories is drawn as a folder, and devices have pictures of their own.
    return is(EntryTrait::StoragePlace) ? Entry::Dir : Entry::VirtualDir;
}

bool PlaceEntryData::is(EntryTrait trait) const
{
    return facts()->traits.test(size_t(trait));
}

QString PlaceEntryData::localPath() const
{
    return facts()->localPath;
}

QString PlaceEntryData::fileName() const
{
    return facts()->name;
}

} // namespace VeskFM
