// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QHash>
#include <QVector>

#include <memory>

namespace VeskFM
{

/// One line of the kernel's table of mounts, see proc(5), /proc/PID/mountinfo. Paths are bytes.
struct Mount
{
    int id = -1;
    int parent = -1;       ///< the one it is mounted on; possibly not in the table
    QByteArray device;     ///< "major:minor"
    QByteArray root;       ///< the directory of the file system that is seen; "/" unless only a part is mounted
    QByteArray mountPoint; ///< where
    QByteArray type;       ///< of file system, "fuse.sshfs" for one that a program serves
    QByteArray source;     ///< the device file, or whatever the file system takes for it

    bool isNetwork() const; ///< on another machine
    bool mayHang() const;   ///< a look at it may wait for another machine, or for its being mounted
};

/// A table of mounts. Never touches what is mounted. Thread: any.
class MountTable
{
public:
    static const char *const file; ///< the table of this process; poll() tells changes of it as POLLPRI

    explicit MountTable(const QByteArray &text = QByteArray()); ///< skips lines that it does not understand
    /// The present table of this process, read again only after changes.
    static std::shared_ptr<const MountTable> current();

    const QVector<Mount> &mounts() const { return m_mounts; }
    /// Whether its mount point leads to it: nothing else was mounted there, or further up, after it.
    bool isVisible(const Mount &mount) const;
    const Mount *ofPath(const QByteArray &path) const;     ///< the one that @p path lies in, taken as it is written
    const Mount *ofDevice(const QByteArray &device) const; ///< null for none; as long as this object

private:
    QVector<Mount> m_mounts;
    QHash<QByteArray, int> m_topmost; // by mount point
    QHash<int, int> m_rows;           // by id
};

} // namespace VeskFM
