// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrywatcher.h>
#include <veskplatform/vfs.h>

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <initializer_list>

/// A temporary tree of files below the directory of the test's temporary files; gone with the object.
///
/// Names are UTF-8 and relative to the top; one that ends with "/" makes a directory, missing ones above it are made.
/// Files hold their own name unless content is given. What cannot be made ends the test program with a message or an exception's text.
class TestTree
{
public:
    TestTree(std::initializer_list<const char *> names = {});
    ~TestTree();

    QString path(const QString &name = QString()) const;        ///< absolute; of the top without a name
    QByteArray bytes(const QByteArray &name = {}) const;        ///< the same for system calls
    VeskFM::Entry entry(const QString &name = QString()) const; ///< as it is on the disk now; null when not there

    VeskFM::Entry add(const QByteArray &name, const QByteArray &content = {}); ///< makes or replaces it
    VeskFM::Entry link(const QByteArray &name, const QByteArray &target);      ///< makes a symbolic link
    void write(const QByteArray &name, const QByteArray &content);             ///< changes a file in place
    void rename(const QByteArray &from, const QByteArray &to);
    void remove(const QByteArray &name); ///< a directory with all it holds

private:
    QTemporaryDir m_dir;
};

QByteArray contentOf(const QString &path); ///< of a file; nothing when it cannot be read

/// The watcher of the VFS in use.
VeskFM::EntryWatcher *watcher();

/// The file names of entries, in their order.
QStringList fileNames(const VeskFM::EntryList &entries);
