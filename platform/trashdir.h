// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

/// A directory of trashed items and of what is known of them, after the Trash specification 1.0 of freedesktop.org.
struct TrashDir
{
    QByteArray path; ///< absolute; empty for none
    QByteArray top; ///< of the mount, which the paths that items came from are relative to; empty in the user's own one

    static TrashDir home(); ///< the user's own; it need not be there
    /// The one whose items lie in @p files, a path without links: the user's own, or one that is the user's at the top
    /// of a mount. None for any other directory, whatever its name: anybody may have filled that.
    static TrashDir holding(const QByteArray &files);

    bool isNull() const { return path.isEmpty(); }
    QByteArray filesDir() const { return path + "/files"; }
    QByteArray infoDir() const { return path + "/info"; }
    QByteArray infoFile(const QByteArray &name) const { return infoDir() + '/' + name + infoSuffix(); }
    static QByteArray infoSuffix() { return QByteArrayLiteral(".trashinfo"); }
};
