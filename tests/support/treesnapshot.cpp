// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "treesnapshot.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <dirent.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <climits>

namespace
{

QByteArray attributes(const QByteArray &path)
{
    char names[4096];
    const ssize_t size = llistxattr(path.constData(), names, sizeof names);
    QByteArray text;
    const QList<QByteArray> list = QByteArray(names, int(qMax<ssize_t>(0, size))).split('\0');
    for (const QByteArray &name : list) {
        char value[4096];
        const ssize_t length = name.isEmpty() ? -1 : lgetxattr(path.constData(), name.constData(), value, sizeof value);
        if (length >= 0)
            text += name + '=' + QByteArray(value, int(length)) + ' ';
    }
    return text;
}

QByteArray content(const QByteArray &path, const struct stat &facts)
{
    if (S_ISLNK(facts.st_mode)) {
        char target[PATH_MAX];
        return QByteArray(target, int(readlink(path.constData(), target, sizeof target)));
    }
    if (!S_ISREG(facts.st_mode))
        return {};
    QFile file;
    FILE *const stream = fopen(path.constData(), "re"); // by its bytes, which need not be text
    QCryptographicHash hash(QCryptographicHash::Md5);
    const bool isHashed = stream && file.open(stream, QIODevice::ReadOnly) && hash.addData(&file);
    file.close();
    if (stream)
        fclose(stream);
    const bool hasHoles = facts.st_size > 1024 * 1024 && facts.st_blocks * 512 < facts.st_size / 2;
    return (isHashed ? hash.result().toHex() : "unreadable") + (hasHoles ? " with holes" : "");
}

void addNodes(const QByteArray &path, const QByteArray &name, QList<QByteArray> *lines)
{
    struct stat facts = {};
    if (lstat(path.constData(), &facts) != 0)
        return;
    const QByteArray links = S_ISDIR(facts.st_mode) ? QByteArray() : QByteArray::number(qulonglong(facts.st_nlink));
    lines->append(name + " mode " + QByteArray::number(facts.st_mode, 8) + " modified "
                  + QByteArray::number(qlonglong(facts.st_mtim.tv_sec)) + '.'
                  + QByteArray::number(qlonglong(facts.st_mtim.tv_nsec)) + " links " + links + ' ' + attributes(path)
                  + content(path, facts));
    DIR *const dir = S_ISDIR(facts.st_mode) ? opendir(path.constData()) : nullptr;
    QList<QByteArray> children;
    while (const dirent *const node = dir ? readdir(dir) : nullptr)
        children.append(node->d_name);
    if (dir)
        closedir(dir);
    std::sort(children.begin(), children.end());
    for (const QByteArray &child : qAsConst(children)) {
        if (child != "." && child != "..")
            addNodes(path + '/' + child, name + '/' + child, lines);
    }
}

} // namespace

QList<QByteArray> treeSnapshot(const QByteArray &path)
{
    QList<QByteArray> lines;
    addNodes(path, {}, &lines);
    return lines;
}
