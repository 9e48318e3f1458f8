// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskthumbnails.h>

#include <QImageReader>

bool VeskThumbnails::isMimeTypeFromGroup(const QString &mimeType, const QString &group)
{
    return mimeType.section(QLatin1Char('/'), 0, 0) == group;
}

QImage VeskThumbnails::thumbnailImage(const QString &localPath, int, const QString &)
{
    return QImageReader(localPath).read();
}
