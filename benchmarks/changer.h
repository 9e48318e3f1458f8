// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArrayList>
#include <QString>

/// The files that another process creates, writes and deletes below the listed directory, and how it does that.
namespace Changer
{

constexpr int fileCount = 5000;

QByteArrayList fileNames();
int fileSize(int file); ///< bytes of file number @p file after it was written

/// Runs one of "create", "write", "delete" over all files in @p directory and prints the time when the last one was
/// done, in nanoseconds of nowNs(). Returns the process's exit code.
int run(const QString &change, const QString &directory);
qint64 nowNs(); ///< the monotonic clock, which all processes share

} // namespace Changer
