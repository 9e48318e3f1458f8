// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

/// What the trash remembers of one item: the contents of its ".trashinfo" file, after the Trash specification 1.0 of
/// freedesktop.org.
struct TrashInfo
{
    QByteArray path;         ///< where the item came from: absolute, exact bytes
    qint64 deletionDate = 0; ///< seconds since the Unix epoch; 0 when missing or not readable

    /// Reads @p file. Its path must be relative to @p top, or absolute when that is empty. False when it is missing, not a
    /// small regular file or has no trustworthy path: anybody may have written it, and what it names will be written to.
    bool read(const QByteArray &file, const QByteArray &top = {});
    QByteArray toText() const;
};

/// As in a URL, with "/" left alone.
QByteArray trashPercentEncoded(const QByteArray &path);
/// False for a malformed encoding and for one that hides a NUL.
bool trashPercentDecoded(const QByteArray &encoded, QByteArray *path);
