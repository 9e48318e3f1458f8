// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

struct stat;

namespace VeskFM
{

/// What one look at a node of the disk tells about it, in 16 bytes.
struct LocalFacts
{
    enum Flag : quint16 {
        Exists = 1,
        SymLink = 2,
        Hidden = 4,
        Executable = 8,
        Unportable = 16 ///< the toolkit's file classes do not reach it by its path
    };
    qint64 size = 0; ///< bytes
    quint16 kind = Entry::File;
    quint16 flags = 0;

    /// Of a node whose lstat() is @p own. For a symbolic link @p target is the stat() of what it leads to, null when
    /// that is nothing.
    /// @param archivesAsFiles gives archives the kind of files
    static LocalFacts of(const struct stat &own, const struct stat *target, const char *name, int nameSize,
                         bool archivesAsFiles);
    /// What kind and flags alone tell; false for everything else.
    bool is(EntryTrait trait) const;
    /// Whether vesk-archive reads files of such names.
    static bool isArchiveName(const char *name, int nameSize);
    /// Whether a node, with links resolved, is an archive that can be entered: by its name, and because it is a file that
    /// holds something.
    static bool isArchive(const struct stat &node, const char *name, int nameSize);
    /// Looks at the disk; without the flag Exists where there is nothing.
    static LocalFacts of(const QByteArray &path, bool archivesAsFiles = false);
};

/// What the local VFS knows of a file or directory; all its paths are one shared text.
///
/// Thread: any; nothing changes after construction.
class LocalEntryData : public EntryData
{
public:
    LocalEntryData(const QString &path, const LocalFacts &facts);
    LocalEntryData(const QString &path, int nameSize, const LocalFacts &facts);

    QString path() const override;
    int type() const override;
    bool is(EntryTrait trait) const override;
    QString localPath() const override; ///< empty for a path that the toolkit's file classes would take for another
    QString fileName() const override;
    QString lastPathSection() const override; ///< "/" for the root
    QString archiveMountPointOrLocalPath() const override;
    qint64 fileSize() const override;

    QStringView name() const; ///< valid as long as this object

private:
    quint16 m_kind; // first, where the reference counter leaves room
    quint16 m_nameSize;
    QString m_path;
    qint64 m_size;
    quint16 m_flags;
};

/// A symbolic link; it also keeps where it leads.
class LocalLinkData : public LocalEntryData
{
public:
    /// @param target as the link has it; relative ones are taken from the link's directory
    LocalLinkData(const QString &path, int nameSize, const LocalFacts &facts, const QString &target);

    QString symLinkTarget() const override; ///< an absolute path

private:
    QString m_target;
};

/// Makes the right one of the two for what is on the disk now. Null when there is nothing and @p evenIfMissing is off.
Entry makeLocalEntry(const QString &path, bool archivesAsFiles = false, bool evenIfMissing = false);

/// The home directory of the user and the trash, as VFS paths; constant in a process.
const QString &localHomePath();
const QString &localTrashPath();

} // namespace VeskFM
