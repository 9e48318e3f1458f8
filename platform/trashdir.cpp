// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "trashdir.h"

#include "xdgdirs.h"

#include <sys/stat.h>
#include <unistd.h>

namespace
{

QByteArray parentOf(const QByteArray &path)
{
    return path.left(path.lastIndexOf('/'));
}

QByteArray nameOf(const QByteArray &path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

bool isTopOfMount(const QByteArray &directory)
{
    struct stat itself = {};
    struct stat above = {};
    return stat((directory + '/').constData(), &itself) == 0 && stat((directory + "/..").constData(), &above) == 0
        && (itself.st_dev != above.st_dev || itself.st_ino == above.st_ino);
}

} // namespace

TrashDir TrashDir::home()
{
    return {xdgDataHome() + "/Trash", {}};
}

TrashDir TrashDir::holding(const QByteArray &files)
{
    struct stat found = {};
    struct stat own = {};
    if (stat(files.constData(), &found) != 0)
        return {};
    if (stat(home().filesDir().constData(), &own) == 0 && own.st_dev == found.st_dev && own.st_ino == found.st_ino)
        return home();
    if (nameOf(files) != "files")
        return {};

    const QByteArray path = parentOf(files);
    const QByteArray user = QByteArray::number(getuid());
    QByteArray top = parentOf(path);
    if (nameOf(path) == user && nameOf(top) == ".Trash") {
        struct stat shared = {}; // by all users, so that nobody else may put another directory in place of the user's
        if (lstat(top.constData(), &shared) != 0 || !S_ISDIR(shared.st_mode) || !(shared.st_mode & S_ISVTX))
            return {};
        top = parentOf(top);
    } else if (nameOf(path) != ".Trash-" + user) {
        return {};
    }
    const bool isOwn = lstat(path.constData(), &own) == 0 && S_ISDIR(own.st_mode) && own.st_uid == getuid();
    return isOwn && isTopOfMount(top) ? TrashDir{path, top.isEmpty() ? QByteArray("/") : top} : TrashDir();
}
