// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace VeskFM
{

class Entry;
class EntryList;

/// Questions about the user's trash, and its book-keeping: where a trashed file came from, when it was deleted, and the
/// cached sizes of trashed directories. Files are moved to the trash and restored by the file-operation service.
///
/// Without state of its own; a path that the local 8-bit encoding cannot express is refused rather than mistaken for
/// another file.
///
/// Thread: any. Errors: none are reported; empty texts, false and 0 stand for them.
class VESKFM_EXPORT Trash
{
public:
    /// The instance, made on first use. The library never deletes it; a test may, and the next call makes a new one.
    static Trash *ptr();

    Trash() = default;
    ~Trash();
    Trash(const Trash &) = delete;
    Trash &operator=(const Trash &) = delete;

    /// Reserves a place in the trash for the file @p path, which the caller then moves there. On success
    /// @p trashedPath is that place; on failure it is untouched.
    bool registerFile(const QString &path, QString &trashedPath);
    bool unregisterFile(const QString &path); ///< forgets a path in the trash

    QString registeredFilePath(const QString &path) const; ///< where to restore a path in the trash to
    QDateTime deletionDate(const QString &path) const;     ///< local time; the Unix epoch when unknown

    bool isEmpty() const;
    qulonglong size() const; ///< bytes
    /// Whether size() is answered without a walk over the trashed directories.
    bool hasSizeCache() const;
    QString actualIconName() const; ///< "user-trash" or "user-trash-full"

    /// Whether the entry, or what the VFS has behind the URL text, is the trash directory itself. Paths are compared
    /// exactly: with a trailing slash they differ.
    bool isTrash(const Entry &entry) const;
    bool isTrash(const QString &url) const;

    /// Whether all of them lie in the trash; false for none. A place never does.
    bool hasEntries(const EntryList &entries) const;
    /// The same for paths or URL texts, by the beginning of their local paths.
    bool hasEntries(const QStringList &urls) const;

    /// Remembers or forgets the size, in bytes, of a directory; ignored unless it lies directly in the trash directory.
    void registerDirSize(const QString &path, qint64 size);
    void unregisterDirSize(const QString &path);
};

} // namespace VeskFM
