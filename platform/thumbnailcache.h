// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QImage>

/// The user's thumbnails of one file, as it is now: a place of the cache that programs share after the Thumbnail
/// Managing Standard of freedesktop.org. Thread: any, one object each.
class ThumbnailCache
{
public:
    enum Size { Normal = 128, Large = 256 }; ///< pixels of the longer side, at most

    /// @param path absolute, exact bytes
    explicit ThumbnailCache(const QByteArray &path);

    /// Whether there is a regular file that may have thumbnails.
    bool isUsable() const;
    /// Whether the file is itself in the cache; it has no thumbnails there, or each would get one of its own.
    bool isOwnFile() const;

    QImage load(Size size) const; ///< null when there is none, or only one of an older state of the file
    bool hasFailed() const;       ///< whether this program tried before, in vain

    /// Errors: a thumbnail that cannot be stored is made anew the next time. One of a file that has changed meanwhile
    /// is not stored.
    void store(const QImage &thumbnail, Size size) const;
    void storeFailure() const;

private:
    QByteArray file(const QByteArray &folder) const;
    QImage loadFrom(const QByteArray &thumbnailFile) const;
    void storeIn(const QByteArray &folder, QImage image) const;
    bool isCurrent() const;

    QByteArray m_path;
    QByteArray m_uri;
    QByteArray m_directory; // the cache's
    qint64 m_time = -1;     // modification, seconds since the Unix epoch; negative when there is no such file
    qint64 m_size = 0;      // bytes
};
