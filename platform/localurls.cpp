// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localurls.h"

#include "pathcodec.h"

namespace VeskFM
{

QUrl fileUrlOfPath(const QString &path)
{
    const QByteArray bytes = PathCodec::encode(path);
    if (QString::fromUtf8(bytes) == path)
        return QUrl::fromLocalFile(path);
    return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"), QUrl::StrictMode);
}

QString pathFromFileUrl(const QUrl &url)
{
    const QString host = url.host();
    if (url.scheme() != QLatin1String("file") || !(host.isEmpty() || host == QLatin1String("localhost")))
        return {};
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return bytes.startsWith('/') && !bytes.contains('\0') ? PathCodec::decode(bytes) : QString();
}

} // namespace VeskFM
