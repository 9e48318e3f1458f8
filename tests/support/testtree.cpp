// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <QFile>
#include <QStringList>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

using namespace VeskFM;

namespace
{
void check(bool done, const char *what, const QByteArray &path)
{
    if (!done)
        qFatal("TestTree: cannot %s %s: %s", what, path.constData(), strerror(errno));
}

/// Made as the system takes it, byte by byte: names need not be text.
void makeDirectories(const QByteArray &path)
{
    for (int slash = path.indexOf('/', 1); slash > 0; slash = path.indexOf('/', slash + 1)) {
        const QByteArray part = path.left(slash);
        check(mkdir(part.constData(), 0755) == 0 || errno == EEXIST, "make", part);
    }
}

void writeFile(const QByteArray &path, const QByteArray &content)
{
    const int fd = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    check(fd >= 0 && ::write(fd, content.constData(), size_t(content.size())) == content.size(), "write", path);
    close(fd);
}
} // namespace

TestTree::TestTree(std::initializer_list<const char *> names)
{
    check(m_dir.isValid(), "make", "a temporary directory");
    for (const char *name : names)
        add(name);
}

TestTree::~TestTree()
{
    std::error_code ignored; // QTemporaryDir would leave names that are no text
    std::filesystem::remove_all(bytes().constData(), ignored);
}

QString TestTree::path(const QString &name) const
{
    return name.isEmpty() ? m_dir.path() : m_dir.path() + QLatin1Char('/') + name;
}

QByteArray TestTree::bytes(const QByteArray &name) const
{
    const QByteArray top = QFile::encodeName(m_dir.path());
    return name.isEmpty() ? top : top + '/' + name;
}

Entry TestTree::entry(const QString &name) const
{
    return VFS::ptr()->entry(path(name));
}

Entry TestTree::add(const QByteArray &name, const QByteArray &content)
{
    const QByteArray target = bytes(name);
    makeDirectories(target);
    if (!name.endsWith('/'))
        writeFile(target, content.isNull() ? name : content);
    return entry(QString::fromUtf8(name));
}

Entry TestTree::link(const QByteArray &name, const QByteArray &target)
{
    makeDirectories(bytes(name));
    check(symlink(target.constData(), bytes(name).constData()) == 0, "link", bytes(name));
    return entry(QString::fromUtf8(name));
}

void TestTree::write(const QByteArray &name, const QByteArray &content)
{
    writeFile(bytes(name), content);
}

void TestTree::rename(const QByteArray &from, const QByteArray &to)
{
    check(::rename(bytes(from).constData(), bytes(to).constData()) == 0, "rename", bytes(from));
}

void TestTree::remove(const QByteArray &name)
{
    std::error_code error;
    check(std::filesystem::remove_all(bytes(name).constData(), error) > 0 && !error, "remove", bytes(name));
}

EntryWatcher *watcher()
{
    return VFS::ptr()->entryWatcher();
}

QStringList fileNames(const EntryList &entries)
{
    QStringList names;
    for (const Entry &entry : entries)
        names.append(entry.fileName());
    return names;
}
