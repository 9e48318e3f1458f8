// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/pathanalyzerpair.h>
#include <veskplatform/entrylist.h>

#include <QList>
#include <QString>

class QAtomicInt;

namespace VeskFM
{

/// Turns a selection and a destination into the pairs of a copy or a move, and counts what they hold.
///
/// An existing directory takes every source under its own name. A destination that does not exist, in a directory that
/// does, is the new name of a single source; so is a file, which then is a conflict. Symbolic links are sources of their
/// own and never followed below one; archives are files.
///
/// Thread: any, one at a time. Nothing is changed on the disk.
class VESKFM_EXPORT PathAnalyzer
{
public:
    enum Error {
        NoError,
        NoSources,           ///< the selection is empty or holds a null entry
        NoDestination,       ///< nothing can be put there
        DirAndFileEntries,   ///< one directory onto a file
        EntriesAndFileEntry, ///< several entries onto a file, or onto a name that nothing has yet
        Cancelled
    };

    PathAnalyzer(const EntryList &sources, const Entry &destination);

    /// Forms the pairs. With an error there are none.
    bool resolve();
    /// Counts what the sources hold, at any depth, and the sources themselves. Reads every directory.
    /// @param cancel  borrowed, may be null; another thread stops the count by a value other than 0
    bool count(QAtomicInt *cancel = nullptr);
    /// resolve(), then count().
    bool analyze(QAtomicInt *cancel = nullptr);

    Error error() const { return m_error; }
    QString errorString() const; ///< for the user; empty without an error

    QList<PathAnalyzerPair> pairs() const { return m_pairs; } ///< in the order of the selection
    QList<PathAnalyzerPair> conflicts() const;                ///< those of the pairs that have one

    qint64 totalFiles() const { return m_totalFiles; } ///< all that are no directories
    qint64 totalDirs() const { return m_totalDirs; }
    qint64 totalBytes() const { return m_totalBytes; } ///< of the files, as their sizes say; links count nothing

private:
    QString targetDirectory();
    bool countEntry(const Entry &entry, QAtomicInt *cancel);

    const EntryList m_sources;
    const Entry m_destination;
    Error m_error = NoError;
    QList<PathAnalyzerPair> m_pairs;
    qint64 m_totalFiles = 0;
    qint64 m_totalDirs = 0;
    qint64 m_totalBytes = 0;
};

} // namespace VeskFM
