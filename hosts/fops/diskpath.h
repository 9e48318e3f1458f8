// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "descriptor.h"
#include "result.h"

#include <veskplatform/entry.h>

#include <QByteArray>
#include <QString>

/// The exact bytes of a VFS path of the disk, whether something is there or not. Empty for one that names nothing of the
/// disk. A place is known by its directory.
QByteArray diskBytes(const QString &vfsPath);

/// An entry of a path; of one of the disk whether something is there or not.
VeskFM::Entry entryOfPath(const QString &vfsPath);

/// The VFS path of bytes of the disk.
QString vfsPath(const QByteArray &bytes);

/// A directory, held open, and a name in it: what system calls act on, whatever happens to the path meanwhile.
struct DiskPlace
{
    Descriptor directory;
    QByteArray path; ///< of the directory
    QByteArray name;

    /// Splits an absolute path, which may end with "/". Refuses the root and what ends with "." or "..".
    static Result open(const QByteArray &path, DiskPlace *place);
    /// A directory itself, with no name yet.
    static Result openDirectory(const QByteArray &path, DiskPlace *place);

    QByteArray fullPath() const;
};
