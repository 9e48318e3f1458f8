// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace VeskFM
{

/// The directory that holds the archive mounts of this process: PID-RANDOM in $XDG_CACHE_HOME/vesk-fm/archives. A lock on a
/// file in it, which the system takes back when the process ends in whatever way, tells others that it is in use.
///
/// Thread: one at a time; path() any.
class ArchiveMountRoot
{
public:
    ArchiveMountRoot();
    ~ArchiveMountRoot(); ///< leaves the directory

    QByteArray path() const { return m_base + '/' + m_name; } ///< where it is, or is going to be

    /// Whether a path lies in the directory of a process.
    static bool isBelowAny(const QByteArray &path);

    static bool isAnyLeft();           ///< whether there may be directories of processes that are gone
    static void removeAllThatIsLeft(); ///< removes those

    /// Makes the directory, if it is not there, and removes those of processes that are gone.
    bool make();
    bool isMade() const { return m_directory >= 0; }
    int descriptor() const { return m_directory; } ///< -1 unless made
    void remove();                                 ///< with all that is in it

private:
    bool makeLocked(int base);
    static void removeStale(int base);

    const QByteArray m_base;
    const QByteArray m_name;
    int m_directory = -1;
    int m_lock = -1;
};

} // namespace VeskFM
