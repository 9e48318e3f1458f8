// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QList>

/// All that a copy of a file or tree must keep, one line for each node in the order of their names: kind, mode, time,
/// extended attributes, names of the same file, blocks of a file with holes, and content. Empty when there is nothing.
QList<QByteArray> treeSnapshot(const QByteArray &path);
