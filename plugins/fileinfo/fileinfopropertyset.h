// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrypropertyset.h>

#include <atomic>

namespace VeskFM
{

/// The columns "Size", known at once from what the listing told, and "Modified", "Owner" and "Permissions", known after
/// one lstat(). A symbolic link stands for itself.
///
/// Values: role 0 the text, role 256 the sort key (qlonglong, QDateTime, text, text). For "Size" also role 257, true
/// when the size could not be read, and role 259, the bytes as qlonglong. Directories have no size: no text, 0 bytes.
///
/// Thread: as EntryPropertySet says.
class FileInfoPropertySet : public EntryPropertySet
{
public:
    enum Column { Size, Modified, Owner, Permissions, ColumnCount };

    static QVariant headerData(int index, int role);

    void prepare(const Entry &entry) override;
    QVariant value(const Entry &entry, int index, int role) const override;
    bool canRefineData(const Entry &entry) const override;
    void refineData(const Entry &entry) override;

private:
    enum class Known : quint8 { Nothing, WhenAsked, Facts, Time, Failure };
    /// What one lstat() tells, or an archive, which has no owners for its files, and the time alone.
    struct Facts
    {
        qint64 modifiedMs = 0; // since the Unix epoch
        quint32 uid = 0;
        quint16 mode = 0;
        Known known = Known::Nothing;
    };
    class Guard;

    static Facts read(const Entry &entry);
    Facts facts(const Entry &entry) const; // reads them first where they are due when asked for
    QVariant sizeValue(const Entry &entry, int role) const;
    QVariant modifiedValue(const Entry &entry, int role) const;

    qint64 m_size = noSize; // owner's thread
    mutable Facts m_facts;
    mutable std::atomic_flag m_lock = ATOMIC_FLAG_INIT; // guards m_facts and m_generation, held for instructions only
    quint16 m_generation = 0;                           // counts preparations, so that a refinement notices one

    static constexpr qint64 noSize = -1;
    static constexpr qint64 unreadable = -2;
};

} // namespace VeskFM
