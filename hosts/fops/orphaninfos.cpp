// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "orphaninfos.h"

#include "directoryreader.h"

#include <veskplatform/standardpaths.h>

#include <QByteArrayList>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <ctime>

namespace
{

constexpr time_t youngestSeconds = 24 * 60 * 60;
const QByteArray suffix = QByteArrayLiteral(".trashinfo");

bool isOrphan(int infos, int items, const QByteArray &info)
{
    struct stat facts = {};
    const QByteArray item = info.chopped(suffix.size());
    return fstatat(items, item.constData(), &facts, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENOENT
        && fstatat(infos, info.constData(), &facts, AT_SYMLINK_NOFOLLOW) == 0
        && facts.st_mtime < time(nullptr) - youngestSeconds;
}

} // namespace

void removeOrphanInfos()
{
    const QByteArray files = QFile::encodeName(VeskFM::StandardPaths::trashDirPath());
    const Descriptor items = openDirectory(AT_FDCWD, files.constData());
    const Descriptor infos = openDirectory(AT_FDCWD, (files + "/../info").constData());
    if (!items || !infos)
        return;
    QByteArrayList orphans;
    DirectoryReader reader(infos.get());
    while (const dirent *const node = reader.next()) {
        const QByteArray name(node->d_name);
        if (name.size() > suffix.size() && name.endsWith(suffix) && isOrphan(infos.get(), items.get(), name))
            orphans.append(name);
    }
    for (const QByteArray &name : qAsConst(orphans))
        unlinkat(infos.get(), name.constData(), 0);
}
