// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

/// Reads a whole regular file of at most @p limit bytes; anything else, and any failure, gives false. Never waits for
/// another program, as opening a FIFO would, and never opens a device.
/// @param path exact bytes
/// @param followLinks whether a symbolic link stands for its target; otherwise it is no regular file
bool readSmallFile(const QByteArray &path, qint64 limit, QByteArray *content, bool followLinks = true);

/// Puts @p content in place of the file @p path, or makes it, in one step: readers see all of it or what was there
/// before. Readable by the user alone.
bool replaceFile(const QByteArray &path, const QByteArray &content);

/// Makes the directory and those above it, for the user alone; true when it is there.
bool makeDirs(const QByteArray &path);
