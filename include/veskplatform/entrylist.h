// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QList>

#include <initializer_list>

namespace VeskFM
{

/// A list of entries with the questions that file operations ask of a selection. Thread: any, as a value.
class VESKPLATFORM_EXPORT EntryList : public QList<Entry>
{
public:
    EntryList();
    explicit EntryList(const Entry &entry);
    EntryList(std::initializer_list<Entry> entries);

    EntryList dirs() const;
    EntryList files() const;
    bool hasDir() const;
    EntryList archiveFileMountPoints() const;
    EntryList brokenSymlinks() const; ///< symbolic links whose target does not exist
};

/// Bus form of a list, signature a(s).
VESKPLATFORM_EXPORT QDBusArgument &operator<<(QDBusArgument &argument, const EntryList &entries);
VESKPLATFORM_EXPORT const QDBusArgument &operator>>(const QDBusArgument &argument, EntryList &entries);

/// Registers entries, lists and listing filters with the meta-type system and the bus, so that they travel in queued
/// signals and calls. May be called any number of times.
VESKPLATFORM_EXPORT void registerEntryMetaTypes();

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::EntryList)
