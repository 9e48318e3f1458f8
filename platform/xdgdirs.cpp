// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "xdgdirs.h"

#include <pwd.h>
#include <unistd.h>

#include <array>

namespace
{

QByteArray withoutTrailingSlashes(QByteArray path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path;
}

QByteArray homeDir()
{
    const QByteArray home = qgetenv("HOME");
    if (home.startsWith('/'))
        return withoutTrailingSlashes(home);
    std::array<char, 4096> buffer;
    passwd record = {};
    passwd *found = nullptr;
    getpwuid_r(getuid(), &record, buffer.data(), buffer.size(), &found);
    return found && found->pw_dir && *found->pw_dir == '/' ? withoutTrailingSlashes(found->pw_dir) : QByteArray("/");
}

QByteArray baseDir(const char *variable, const char *belowHome)
{
    const QByteArray set = qgetenv(variable);
    if (set.startsWith('/')) // a relative path is to be ignored
        return withoutTrailingSlashes(set);
    const QByteArray home = homeDir();
    return home == "/" ? QByteArray(belowHome) : home + belowHome;
}

} // namespace

QByteArray xdgDataHome()
{
    return baseDir("XDG_DATA_HOME", "/.local/share");
}

QByteArray xdgConfigHome()
{
    return baseDir("XDG_CONFIG_HOME", "/.config");
}

QByteArray xdgCacheHome()
{
    return baseDir("XDG_CACHE_HOME", "/.cache");
}
