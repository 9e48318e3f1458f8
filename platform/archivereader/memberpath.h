// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QList>

namespace VeskFM
{

/// Splits the name of a member into the names of the directories down to it. "." and needless slashes count for nothing.
/// False for a name that leads out of the archive, or that no disk takes.
bool splitMemberPath(const QByteArray &path, QList<QByteArray> *names);

/// Whether a link @p depth directories below the top of an archive stays inside, if each step of it is a directory.
bool staysInside(const QByteArray &link, int depth);

} // namespace VeskFM
