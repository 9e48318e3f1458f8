// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "diskpath.h"

#include "archivesources.h"

#include <veskplatform/newentry.h>
#include <veskplatform/vfs.h>

#include <fcntl.h>

#include <cerrno>

using namespace VeskFM;

namespace
{

Descriptor openForLookup(const QByteArray &path)
{
    Descriptor directory(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory || errno != EACCES)
        return directory;
    return Descriptor(::open(path.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC)); // names may be used, not listed
}

} // namespace

QByteArray diskBytes(const QString &vfsPath)
{
    QString path = vfsPath;
    while (path.startsWith(QLatin1String("//"))) // a URL would take what follows for a host
        path.remove(0, 1);
    if (!path.startsWith(QLatin1Char('/')))
        path = VFS::ptr()->entry(path).localPath();
    if (!path.startsWith(QLatin1Char('/')))
        return {};
    const QList<QUrl> urls = VFS::ptr()->urlsFromEntries(EntryList(newEntry(path)));
    if (urls.isEmpty() || !urls.first().isLocalFile())
        return {};
    return QByteArray::fromPercentEncoding(urls.first().path(QUrl::FullyEncoded).toLatin1());
}

Entry entryOfPath(const QString &vfsPath)
{
    const Entry present = VFS::ptr()->entry(vfsPath);
    return present.isNull() ? newEntry(vfsPath) : present;
}

QString vfsPath(const QByteArray &bytes)
{
    const QUrl url = QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"), QUrl::StrictMode);
    const EntryList entries = VFS::ptr()->entriesFromUrls({url});
    return entries.isEmpty() ? QString::fromUtf8(bytes) : entries.first().path();
}

Result DiskPlace::open(const QByteArray &path, DiskPlace *place)
{
    QByteArray trimmed = path;
    while (trimmed.endsWith('/'))
        trimmed.chop(1);
    const int slash = trimmed.lastIndexOf('/');
    const QByteArray name = trimmed.mid(slash + 1);
    if (!path.startsWith('/') || name.isEmpty() || name == "." || name == "..")
        return Result::NotSupported;
    const Result result = openDirectory(trimmed.left(qMax(1, slash)), place);
    place->name = name;
    return result;
}

Result DiskPlace::openDirectory(const QByteArray &path, DiskPlace *place)
{
    if (!path.startsWith('/'))
        return Result::NotSupported;
    place->path = path;
    place->name.clear();
    place->directory = openForLookup(path);
    if (place->directory)
        return Result::Success;
    const int error = errno;
    return error == ENOTDIR && leadsIntoArchive(path) ? Result::NotSupported : resultOfError(error);
}

QByteArray DiskPlace::fullPath() const
{
    return path.endsWith('/') ? path + name : path + '/' + name;
}
