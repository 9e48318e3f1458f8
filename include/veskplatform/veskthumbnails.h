// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QImage>
#include <QString>

/// Thumbnail images, shared with other programs through the thumbnail cache of freedesktop.org. Thread: any.
class VESKPLATFORM_EXPORT VeskThumbnails
{
public:
    /// Whether thumbnails of @p group (for example "image") are made of files of that MIME type.
    static bool isMimeTypeFromGroup(const QString &mimeType, const QString &group);
    /// The thumbnail of a local file, read from the cache or made now; null when there is none. Blocks.
    /// @param size 0 for at most 128 pixels a side, 1 for at most 256
    static QImage thumbnailImage(const QString &localPath, int size, const QString &mimeType);
};
