// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskthumbnails.h>

#include "thumbnailcache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr qint64 largestImage = 100 * 1000 * 1000; // pixels; 400 MB while it is decoded

// A descriptor of a regular file; -1 for anything else, at once.
int openRegularFile(const QByteArray &path)
{
    const int descriptor = open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat facts = {};
    if (descriptor < 0 || (fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode)))
        return descriptor;
    close(descriptor);
    return -1;
}

// Fits into the box; only drawings are enlarged.
QSize thumbnailSize(const QSize &image, const QByteArray &format, int box)
{
    const bool fits = image.width() <= box && image.height() <= box;
    if (fits && !format.startsWith("svg"))
        return image;
    return image.scaled(box, box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage readImage(QFile *file, int box)
{
    QImageReader reader(file);
    reader.setAutoTransform(true);
    const QSize size = reader.size(); // from the header: what does not tell it could be of any size
    if (size.isEmpty() || qint64(size.width()) * size.height() > largestImage)
        return {};
    reader.setScaledSize(thumbnailSize(size, reader.format(), box));
    const QImage image = reader.read();
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

QImage makeThumbnail(const ThumbnailCache &cache, const QString &path, ThumbnailCache::Size size)
{
    const bool isOwnFile = cache.isOwnFile();
    if (!isOwnFile && cache.hasFailed())
        return {};
    const int descriptor = openRegularFile(QFile::encodeName(path));
    if (descriptor < 0) // no failure to remember: permissions may change, the file's time does not
        return {};
    QFile file(path); // the name's suffix helps to tell formats without a signature
    file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    const QImage image = readImage(&file, size);
    if (!isOwnFile) {
        if (image.isNull())
            cache.storeFailure();
        else
            cache.store(image, size);
    }
    return image;
}

} // namespace

bool VeskThumbnails::isMimeTypeFromGroup(const QString &mimeType, const QString &group)
{
    return !group.isEmpty() && mimeType.section(QLatin1Char('/'), 0, 0) == group;
}

QImage VeskThumbnails::thumbnailImage(const QString &localPath, int size, const QString &mimeType)
{
    if (localPath.isEmpty())
        return {};
    const QString path = QDir::cleanPath(QFileInfo(localPath).absoluteFilePath());
    const ThumbnailCache::Size pixels = size > 0 ? ThumbnailCache::Large : ThumbnailCache::Normal;
    try { // the format plug-ins are other people's
        const ThumbnailCache cache(QFile::encodeName(path));
        if (!cache.isUsable())
            return {};
        const QImage known = cache.load(pixels);
        const bool isImage = isMimeTypeFromGroup(mimeType, QStringLiteral("image")); // others make those of the rest
        return known.isNull() && isImage ? makeThumbnail(cache, path, pixels) : known;
    } catch (...) {
        return {};
    }
}
