// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mounttable.h"

#include <QFile>

#include <fcntl.h>
#include <poll.h>

#include <algorithm>
#include <mutex>

namespace VeskFM
{

namespace
{
template <size_t size> bool isOneOf(const QByteArray &type, const char *const (&names)[size])
{
    return std::any_of(std::begin(names), std::end(names), [&type](const char *name) { return type == name; });
}

/// Undoes what the kernel does to blanks, tabs, line feeds and backslashes: "\040".
QByteArray unescaped(const QByteArray &field)
{
    QByteArray text;
    for (int i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int code = field.at(i) == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        text += isOctal ? char(code) : field.at(i);
        i += isOctal ? 3 : 0;
    }
    return text;
}

QByteArray parentOf(const QByteArray &path)
{
    const int slash = path.lastIndexOf('/');
    return slash > 0 || path.size() < 2 ? path.left(slash) : QByteArray("/");
}
} // namespace

const char *const MountTable::file = "/proc/self/mountinfo";

bool Mount::isNetwork() const
{
    static const char *const known[] = {"nfs",           "nfs4",
                                        "cifs",          "smb3",
                                        "smbfs",         "ncpfs",
                                        "coda",          "afs",
                                        "ceph",          "9p",
                                        "fuse.sshfs",    "fuse.curlftpfs",
                                        "fuse.davfs2",   "fuse.gvfsd-fuse",
                                        "fuse.kio-fuse", "fuse.rclone",
                                        "fuse.s3fs",     "fuse.glusterfs",
                                        "fuse.smbnetfs"};
    return isOneOf(type, known);
}

bool Mount::mayHang() const
{
    return isNetwork() || type == "autofs";
}

MountTable::MountTable(const QByteArray &text)
{
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.split(' ');
        const int separator = fields.indexOf("-", 6); // the number of fields before it varies
        if (separator < 0 || separator + 2 >= fields.size())
            continue;
        const Mount mount{fields.at(0).toInt(),
                          fields.at(1).toInt(),
                          fields.at(2),
                          unescaped(fields.at(3)),
                          unescaped(fields.at(4)),
                          fields.at(separator + 1),
                          unescaped(fields.at(separator + 2))};
        m_topmost.insert(mount.mountPoint, m_mounts.size());
        m_rows.insert(mount.id, m_mounts.size());
        m_mounts.append(mount);
    }
}

std::shared_ptr<const MountTable> MountTable::current()
{
    static std::mutex mutex;
    static std::shared_ptr<const MountTable> table;
    static const int descriptor = open(file, O_RDONLY | O_CLOEXEC);
    const std::lock_guard<std::mutex> lock(mutex);
    pollfd changes = {descriptor, POLLPRI, 0};
    if (table && poll(&changes, 1, 0) == 0)
        return table;
    QFile text(QString::fromLatin1(file));
    text.open(QIODevice::ReadOnly);
    table = std::make_shared<const MountTable>(text.readAll());
    return table;
}

bool MountTable::isVisible(const Mount &mount) const
{
    const Mount *seen = &m_mounts.at(m_topmost.value(mount.mountPoint));
    if (seen->id != mount.id)
        return false;
    for (int steps = m_mounts.size(); steps > 0; --steps) { // what the kernel writes has no loops
        const int below = m_rows.value(seen->parent, -1);
        if (seen->mountPoint == "/" || below < 0)
            return true;
        if (m_mounts.at(below).mountPoint != seen->mountPoint
            && &m_mounts.at(below) != ofPath(parentOf(seen->mountPoint)))
            return false;
        seen = &m_mounts.at(below);
    }
    return false;
}

const Mount *MountTable::ofPath(const QByteArray &path) const
{
    for (QByteArray step = path; !step.isEmpty(); step = parentOf(step)) {
        const int found = m_topmost.value(step, -1);
        if (found >= 0)
            return &m_mounts.at(found);
        if (step.size() < 2)
            break;
    }
    return nullptr;
}

const Mount *MountTable::ofDevice(const QByteArray &device) const
{
    const auto found = std::find_if(m_mounts.begin(), m_mounts.end(),
                                    [&device](const Mount &mount) { return mount.device == device; });
    return found == m_mounts.end() ? nullptr : &*found;
}

} // namespace VeskFM
