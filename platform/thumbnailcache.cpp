// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "thumbnailcache.h"

#include "smallfile.h"
#include "xdgdirs.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>

#include <sys/stat.h>

namespace
{

constexpr qint64 largestThumbnailFile = 8 << 20; // bytes; other programs may have written anything
constexpr int largestThumbnailSide = 1024;       // pixels

const char failureFolder[] = "fail/vesk-fm-" VESKPLATFORM_VERSION; // another version tries again

// As the other programs write it, whose thumbnails would not be found otherwise.
QByteArray uriOf(const QByteArray &path)
{
    return "file://" + path.toPercentEncoding("/!$&'()*+,:=@");
}

QString key(const char *name)
{
    return QLatin1String("Thumb::") + QLatin1String(name);
}

} // namespace

ThumbnailCache::ThumbnailCache(const QByteArray &path)
    : m_path(path)
    , m_uri(uriOf(path))
    , m_directory(xdgCacheHome() + "/thumbnails")
{
    struct stat facts = {};
    if (path.startsWith('/') && stat(path.constData(), &facts) == 0 && S_ISREG(facts.st_mode)) {
        m_time = facts.st_mtim.tv_sec;
        m_size = facts.st_size;
    }
}

bool ThumbnailCache::isUsable() const
{
    return m_time >= 0;
}

bool ThumbnailCache::isOwnFile() const
{
    const QString directory = QFileInfo(QFile::decodeName(m_directory)).canonicalFilePath();
    const QString path = QFileInfo(QFile::decodeName(m_path)).canonicalFilePath();
    return !directory.isEmpty() && path.startsWith(directory + QLatin1Char('/'));
}

QByteArray ThumbnailCache::file(const QByteArray &folder) const
{
    const QByteArray name = QCryptographicHash::hash(m_uri, QCryptographicHash::Md5).toHex();
    return m_directory + '/' + folder + '/' + name + ".png";
}

QImage ThumbnailCache::load(Size size) const
{
    const QImage thumbnail = loadFrom(file(size == Large ? "large" : "normal"));
    const bool isSmallEnough = thumbnail.width() <= size && thumbnail.height() <= size;
    return isSmallEnough ? thumbnail : thumbnail.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

bool ThumbnailCache::hasFailed() const
{
    return !loadFrom(file(failureFolder)).isNull();
}

QImage ThumbnailCache::loadFrom(const QByteArray &thumbnailFile) const
{
    QByteArray content;
    if (!readSmallFile(thumbnailFile, largestThumbnailFile, &content))
        return {};
    QBuffer buffer(&content);
    QImageReader reader(&buffer, "png");
    const QSize size = reader.size();
    if (qMax(size.width(), size.height()) > largestThumbnailSide)
        return {};
    const QImage image = reader.read();
    const QString fileSize = image.text(key("Size")); // optional; tells states of the file within one second
    const bool isOfThisState = image.text(key("URI")) == QString::fromLatin1(m_uri)
        && image.text(key("MTime")) == QString::number(m_time)
        && (fileSize.isEmpty() || fileSize == QString::number(m_size));
    return isOfThisState ? image : QImage();
}

void ThumbnailCache::store(const QImage &thumbnail, Size size) const
{
    if (isCurrent())
        storeIn(size == Large ? "large" : "normal", thumbnail);
}

void ThumbnailCache::storeFailure() const
{
    QImage nothing(1, 1, QImage::Format_ARGB32);
    nothing.fill(Qt::transparent);
    if (isCurrent())
        storeIn(failureFolder, nothing);
}

void ThumbnailCache::storeIn(const QByteArray &folder, QImage image) const
{
    image.setText(key("URI"), QString::fromLatin1(m_uri));
    image.setText(key("MTime"), QString::number(m_time));
    image.setText(key("Size"), QString::number(m_size));
    image.setText(QStringLiteral("Software"), QStringLiteral("vesk-fm"));
    QByteArray content;
    QBuffer buffer(&content);
    if (QImageWriter(&buffer, "png").write(image) && makeDirs(m_directory + '/' + folder))
        replaceFile(file(folder), content);
}

bool ThumbnailCache::isCurrent() const
{
    const ThumbnailCache now(m_path);
    return now.m_time == m_time && now.m_size == m_size;
}
