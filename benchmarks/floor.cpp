// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "floor.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace
{

struct Row
{
    std::string key;
    std::string name;
    off_t size;
    mode_t mode;
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Bytes that compare as the names do when numbers count by value: a number is led by the count of its digits.
std::string naturalKey(const char *name, bool isDirectory)
{
    std::string key(1, isDirectory ? '0' : '1');
    while (*name) {
        if (!isDigit(*name)) {
            key += *name++;
            continue;
        }
        while (*name == '0' && isDigit(name[1]))
            ++name;
        const char *const start = name;
        while (isDigit(*name))
            ++name;
        key += static_cast<char>('0' + std::min<std::ptrdiff_t>(name - start, 9));
        key.append(start, name);
    }
    return key;
}

} // namespace

double measureFloor(const QString &directory)
{
    QElapsedTimer clock;
    clock.start();
    DIR *const stream = opendir(QFile::encodeName(directory).constData());
    if (!stream)
        return -1;
    std::vector<Row> rows;
    while (const dirent *const child = readdir(stream)) {
        const std::string name = child->d_name;
        struct stat facts;
        if (name == "." || name == ".." || fstatat(dirfd(stream), child->d_name, &facts, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        rows.push_back({naturalKey(child->d_name, S_ISDIR(facts.st_mode)), name, facts.st_size, facts.st_mode});
    }
    closedir(stream);
    std::sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) { return a.key < b.key; });
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}
