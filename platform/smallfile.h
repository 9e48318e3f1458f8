// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

/// Reads a whole regular file of at most @p limit bytes; anything else, and any failure, gives false. Never waits for
/// another program, as opening a FIFO would, and never opens a device.
/// @param path exact bytes
/// @param followLinks whether a symbolic link stands for its target; otherwise it is no regular file
bool readSmallFile(const QByteArray &path, qint64 limit, QByteArray *content, bool followLinks = true);
