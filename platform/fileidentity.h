// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <sys/stat.h>

namespace VeskFM
{

/// Which directory a path leads to, and when its list of names changed last.
struct FileIdentity
{
    dev_t device = 0;
    ino_t node = 0;
    timespec modified = {0, 0};
    bool exists = false;

    static FileIdentity of(const QByteArray &path)
    {
        struct stat facts;
        if (stat(path.constData(), &facts) != 0 || !S_ISDIR(facts.st_mode))
            return {};
        return {facts.st_dev, facts.st_ino, facts.st_mtim, true};
    }
    bool isSameNode(const FileIdentity &other) const
    {
        return exists == other.exists && device == other.device && node == other.node;
    }
    bool isUnchanged(const FileIdentity &other) const
    {
        return isSameNode(other) && modified.tv_sec == other.modified.tv_sec
            && modified.tv_nsec == other.modified.tv_nsec;
    }
};

} // namespace VeskFM
