// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <QFile>
#include <QStringList>

#include <filesystem>
#include <fstream>

using namespace VeskFM;
namespace fs = std::filesystem; // byte by byte, as the system takes names: they need not be text

TestTree::TestTree(std::initializer_list<const char *> names)
{
    if (!m_dir.isValid())
        qFatal("TestTree: cannot make a temporary directory");
    for (const char *name : names)
        add(name);
}

TestTree::~TestTree()
{
    std::error_code ignored; // QTemporaryDir would leave names that are no text, and what may not be written
    const auto options = fs::directory_options::skip_permission_denied;
    for (const fs::directory_entry &node : fs::recursive_directory_iterator(bytes().constData(), options, ignored)) {
        if (node.is_directory(ignored) && !node.is_symlink(ignored))
            fs::permissions(node.path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    }
    fs::remove_all(bytes().constData(), ignored);
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
    fs::create_directories(fs::path(bytes(name).constData()).parent_path());
    if (!name.endsWith('/'))
        write(name, content.isNull() ? name : content);
    return entry(QString::fromUtf8(name));
}

Entry TestTree::link(const QByteArray &name, const QByteArray &target)
{
    fs::create_directories(fs::path(bytes(name).constData()).parent_path());
    fs::create_symlink(target.constData(), bytes(name).constData());
    return entry(QString::fromUtf8(name));
}

void TestTree::write(const QByteArray &name, const QByteArray &content)
{
    std::ofstream file(bytes(name).constData(), std::ios::binary);
    if (!file.write(content.constData(), content.size()).flush())
        qFatal("TestTree: cannot write %s", bytes(name).constData());
}

void TestTree::rename(const QByteArray &from, const QByteArray &to)
{
    fs::rename(bytes(from).constData(), bytes(to).constData());
}

void TestTree::remove(const QByteArray &name)
{
    fs::remove_all(bytes(name).constData());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
