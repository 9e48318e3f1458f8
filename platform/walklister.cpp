// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "walklister.h"

#include "opendirectory.h"
#include "walkedentrydata.h"

#include <QAtomicInt>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace VeskFM
{

namespace
{
constexpr size_t blockSize = 32768; // bytes of names that the kernel hands out at a time

/// Makes entries of what a directory tells of its names.
class WalkedEntryMaker
{
public:
    WalkedEntryMaker(int fd, const QString &directory, bool archivesAsFiles)
        : m_fd(fd)
        , m_prefix(directory.endsWith(QLatin1Char('/')) ? directory : directory + QLatin1Char('/'))
        , m_archivesAsFiles(archivesAsFiles)
    {
    }

    /// Null for what is gone.
    EntryData *make(const dirent64 *found) const
    {
        const int size = int(strlen(found->d_name));
        struct stat node = {};
        node.st_mode = DTTOIF(found->d_type);
        node.st_size = 1;               // not asked: what is called an archive passes for one until it is looked at
        if (found->d_type == DT_UNKNOWN // some file systems tell no kinds
            && fstatat(m_fd, found->d_name, &node, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT) != 0 && errno != EACCES)
            return nullptr;
        const LocalFacts facts = LocalFacts::of(node, nullptr, found->d_name, size, m_archivesAsFiles);
        return WalkedEntryData::make(m_prefix, found->d_name, size, facts, m_archivesAsFiles);
    }

private:
    const int m_fd;
    const QString m_prefix;
    const bool m_archivesAsFiles;
};
} // namespace

DirectoryListing listForWalk(const QString &path, bool archivesAsFiles, const QAtomicInt *cancel)
{
    DirectoryListing result;
    const OpenDirectory directory(path);
    result.error = directory.error();
    if (result.error)
        return result;
    const WalkedEntryMaker maker(directory.descriptor(), path, archivesAsFiles);
    alignas(dirent64) char block[blockSize];
    while (!cancel || cancel->loadRelaxed() == 0) {
        // Not through a stream, which costs two calls more: most directories are small.
        const ssize_t size = getdents64(directory.descriptor(), block, sizeof block);
        if (size <= 0)
            break;
        for (ssize_t at = 0; at < size;) {
            const auto *const found = reinterpret_cast<const dirent64 *>(block + at);
            at += found->d_reclen;
            EntryData *const data = isDotOrDotDot(found->d_name) ? nullptr : maker.make(found);
            if (data)
                result.entries.append(Entry(data));
        }
    }
    return result;
}

} // namespace VeskFM
