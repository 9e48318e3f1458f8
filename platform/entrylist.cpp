// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/entrylist.h>

#include <veskplatform/vfs.h>

#include <QDBusArgument>
#include <QDBusMetaType>

#include <algorithm>

namespace VeskFM
{

namespace
{
template <typename Predicate> EntryList filtered(const EntryList &entries, Predicate accepts)
{
    EntryList result;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(result), accepts);
    return result;
}
} // namespace

EntryList::EntryList() = default;

EntryList::EntryList(const Entry &entry)
{
    append(entry);
}

EntryList::EntryList(std::initializer_list<Entry> entries)
    : QList<Entry>(entries)
{
}

EntryList EntryList::dirs() const
{
    return filtered(*this, [](const Entry &entry) { return entry.isDir(); });
}

EntryList EntryList::files() const
{
    return filtered(*this, [](const Entry &entry) { return entry.isFile(); });
}

bool EntryList::hasDir() const
{
    return std::any_of(begin(), end(), [](const Entry &entry) { return entry.isDir(); });
}

EntryList EntryList::archiveFileMountPoints() const
{
    return filtered(*this, [](const Entry &entry) { return entry.isArchiveMountPoint(); });
}

EntryList EntryList::brokenSymlinks() const
{
    return filtered(*this, [](const Entry &entry) {
        if (!entry.isSymLink())
            return false;
        const Entry target = VFS::ptr()->symLinkTargetEntry(entry);
        return target.isNull() || !VFS::ptr()->isEntryExists(target);
    });
}

QDBusArgument &operator<<(QDBusArgument &argument, const EntryList &entries)
{
    argument.beginArray(qMetaTypeId<Entry>());
    for (const Entry &entry : entries)
        argument << entry;
    argument.endArray();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, EntryList &entries)
{
    entries.clear();
    argument.beginArray();
    while (!argument.atEnd()) {
        Entry entry;
        argument >> entry;
        entries.append(entry);
    }
    argument.endArray();
    return argument;
}

void registerEntryMetaTypes()
{
    qRegisterMetaType<Entry>("VeskFM::Entry");
    qRegisterMetaType<EntryList>("VeskFM::EntryList");
    qRegisterMetaType<VFS::EntryChildFilters>("VeskFM::VFS::EntryChildFilters");
    qDBusRegisterMetaType<Entry>();
    qDBusRegisterMetaType<EntryList>();
}

} // namespace VeskFM
