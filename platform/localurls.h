// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QUrl>

namespace VeskFM
{

/// The "file" URL of a path of the disk. Names that are no valid UTF-8 keep their exact bytes, percent-encoded.
QUrl fileUrlOfPath(const QString &path);

/// The path of the disk that a "file" URL of this machine names; empty for any other URL.
QString pathFromFileUrl(const QUrl &url);

} // namespace VeskFM
