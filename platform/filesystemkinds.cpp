// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filesystemkinds.h"

#include "mounttable.h"
#include "pathcodec.h"

#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/sysmacros.h>

namespace VeskFM
{

namespace
{
constexpr int answerMs = 60000;

bool isMountedFromNetwork(dev_t device)
{
    const std::shared_ptr<const MountTable> table = MountTable::current();
    const Mount *const mount =
        table->ofDevice(QByteArray::number(major(device)) + ':' + QByteArray::number(minor(device)));
    return mount && mount->isNetwork();
}

bool findOutNetwork(const QByteArray &path, dev_t device)
{
    struct statfs facts;
    if (statfs(path.constData(), &facts) != 0)
        return false;
    switch (uint(facts.f_type)) {
    case NFS_SUPER_MAGIC:
    case SMB_SUPER_MAGIC:
    case CIFS_SUPER_MAGIC:
    case SMB2_SUPER_MAGIC:
    case NCP_SUPER_MAGIC:
    case CODA_SUPER_MAGIC:
    case AFS_SUPER_MAGIC:
    case AFS_FS_MAGIC:
    case CEPH_SUPER_MAGIC:
    case V9FS_MAGIC:
        return true;
    case FUSE_SUPER_MAGIC:
        return isMountedFromNetwork(device);
    default:
        return false;
    }
}
} // namespace

bool FileSystemKinds::isNetwork(const QString &path) const
{
    const QByteArray bytes = PathCodec::encode(path);
    struct stat facts;
    if (bytes.isEmpty() || stat(bytes.constData(), &facts) != 0)
        return false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto known = m_answers.constFind(facts.st_dev);
        if (known != m_answers.constEnd() && !known->validUntil.hasExpired())
            return known->network;
    }
    const bool network = findOutNetwork(bytes, facts.st_dev); // without the lock: a dead server blocks only who asks
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_answers.insert(facts.st_dev, Answer{network, QDeadlineTimer(answerMs)});
    return network;
}

bool FileSystemKinds::isSame(const QString &path, const QString &other) const
{
    struct stat a;
    struct stat b;
    return stat(PathCodec::encode(path).constData(), &a) == 0 && stat(PathCodec::encode(other).constData(), &b) == 0
        && a.st_dev == b.st_dev;
}

} // namespace VeskFM
