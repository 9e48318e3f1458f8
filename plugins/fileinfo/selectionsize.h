// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QPair>
#include <QSet>

#include <memory>
#include <vector>

#include <dirent.h>
#include <sys/stat.h>

namespace VeskFM
{

/// Adds up a selection on the local disk, directories with all they hold. Sizes are those of lstat(): a symbolic link
/// counts for itself and is never followed. What is reached twice, by hard links or because a directory and something
/// in it are both selected, counts once. /proc and /sys count nothing. What cannot be read is left out.
///
/// Thread: one object per thread.
class SelectionSize
{
public:
    /// @param running read atomically; false asks to stop. Null: never stopped.
    explicit SelectionSize(const bool *running);
    ~SelectionSize();
    /// Blocks for as long as the disk takes. Returns false when it was stopped.
    bool add(const EntryList &entries);

    qint64 bytes() const { return m_bytes; } ///< of everything that is no directory
    int files() const { return m_files; }    ///< everything that is no directory
    int directories() const { return m_directories; }

private:
    struct CloseDirectory
    {
        void operator()(DIR *directory) const { closedir(directory); }
    };
    struct Directory
    {
        std::unique_ptr<DIR, CloseDirectory> stream;
        dev_t device = 0;
    };

    bool isStopped() const;
    bool count(const struct stat &found, bool selected);
    void enter(int parent, const char *name);
    bool walk();
    bool addFromArchive(const Entry &entry);

    const bool *const m_running; // the caller's
    qint64 m_bytes = 0;
    int m_files = 0;
    int m_directories = 0;
    QSet<QPair<quint64, quint64>> m_counted; // device and inode of what may be met again
    std::vector<Directory> m_open;           // from the selected directory down to the one being read
};

} // namespace VeskFM
