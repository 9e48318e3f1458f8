// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "localentrydata.h"

#include <mutex>

namespace VeskFM
{

/// A node that a walk met, known by what its directory tells of it: name and kind. Walks meet many and ask few of them
/// for more. The first question about the rest (size, permissions, what a link leads to, an archive) looks at the disk;
/// the answers then stay.
///
/// Thread: any.
class WalkedEntryData : public EntryData
{
public:
    /// @param directory with a slash behind it; shared by all that is in it
    /// @param name as it is on the disk; copied
    /// @param facts by name and kind alone
    static EntryData *make(const QString &directory, const char *name, int size, const LocalFacts &facts,
                           bool archivesAsFiles);
    ~WalkedEntryData() override;

    QString path() const override;
    int type() const override;
    bool is(EntryTrait trait) const override;
    QString localPath() const override;
    QString fileName() const override;
    QString symLinkTarget() const override;
    QString archiveMountPointOrLocalPath() const override;
    qint64 fileSize() const override;

private:
    WalkedEntryData(const QString &directory, int nameSize, const LocalFacts &facts, bool archivesAsFiles);
    static void *operator new(size_t size, size_t nameSize);
    static void operator delete(void *memory);
    char *name() const; // behind the object, in the same piece of memory

    LocalFacts known() const { return {0, m_kind, m_flags}; }
    bool isLink() const { return m_flags & LocalFacts::SymLink; } // only a look tells what it leads to
    bool mayBeArchive() const { return isLink() || m_kind == Entry::Archive; }
    const EntryData &looked() const;
    Entry look() const;
    Entry assumed() const;

    const quint16 m_kind; // first, where the reference counter leaves room
    const quint16 m_nameSize;
    const quint8 m_flags;
    const bool m_archivesAsFiles;
    const QString m_directory;
    mutable Entry m_looked; // set once, by the first look
    mutable std::once_flag m_once;
};

} // namespace VeskFM
