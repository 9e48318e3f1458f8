// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QObject>

#include <memory>

class QAtomicInt;

namespace VeskFM
{

class ArchiveMountPrivate;

/// Makes the contents of an archive files of the local disk, for programs that can read nothing else.
///
/// While a mount is held, localEntry() and Entry::localPath() give read-only files and directories below the user's cache
/// directory. The first mount of an archive extracts it as a whole; all mounts of it, in this process, share that. It is
/// removed when the last of them goes, and at exit.
///
/// An archive that changes on the disk is mounted anew by the next mount; those that are held keep what they have.
///
/// Thread: one at a time, signals come in the thread that the object lives in. mount() suits any thread that may block.
class VESKPLATFORM_EXPORT ArchiveMount : public QObject
{
    Q_OBJECT

public:
    explicit ArchiveMount(QObject *parent = nullptr);
    ~ArchiveMount() override; ///< cancels what has not finished; otherwise lets go of the mount

    /// Whether @p entry lies in an archive: such an entry has no local path while nothing mounts its archive. False for the
    /// archive itself. Looks at nothing.
    static bool isInArchive(const Entry &entry);
    /// The archive that @p entry is or lies in, as a file of the disk; null when it is none and lies in none.
    static Entry archiveOf(const Entry &entry);

    /// When what @p entry names was last changed, as the archive has it: milliseconds since the Unix epoch; 0 when that is not
    /// told, and for what lies in no archive. Looks at nothing.
    static qint64 modifiedMs(const Entry &entry);

    /// Whether a path of the disk lies in a mount, of this process or of another one: nothing there stays for long, and
    /// everything is read-only. Looks at nothing.
    static bool isInMount(const QString &localPath);

    /// Mounts the archive that @p entry is or lies in, and returns at once; one finished() answers, unless another start(),
    /// cancel() or the destructor comes first. Lets go of what was mounted before.
    void start(const Entry &entry);
    void cancel(); ///< gives up what has not finished, within some milliseconds; finished() will not come

    /// Like start(), and waits for the end; no signals. Do not call it on the thread of a user interface.
    /// @param cancel may be null; when another thread makes it non-zero, this returns false soon
    bool mount(const Entry &entry, QAtomicInt *cancel);

    bool isMounted() const;
    /// Why the archive could not be mounted, for the user; empty otherwise.
    QString problem() const;
    /// The file or directory of the disk that stands for @p entry, of the mounted archive; null for any other entry, and
    /// while nothing is mounted.
    Entry localEntry(const Entry &entry) const;

Q_SIGNALS:
    void progress(int percent); ///< 0 to 100; may not come at all
    void finished(bool isMounted);

private:
    const std::unique_ptr<ArchiveMountPrivate> d;
};

} // namespace VeskFM
