// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "trashinfo.h"

#include "smallfile.h"

#include <QDateTime>

#include <cctype>

namespace
{

constexpr qint64 largestInfo = 64 * 1024; // bytes; the longest path takes three times 4096

bool isTrustworthy(const QByteArray &path)
{
    if (path.isEmpty() || path.endsWith('/'))
        return false;
    const QList<QByteArray> sections = path.split('/');
    return !sections.contains("..") && !sections.contains(".");
}

qint64 secondsSinceEpoch(const QByteArray &text)
{
    const QDateTime date = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate); // local unless it says more
    return date.isValid() ? date.toSecsSinceEpoch() : 0;
}

} // namespace

bool TrashInfo::read(const QByteArray &file, const QByteArray &top)
{
    QByteArray content;
    if (!readSmallFile(file, largestInfo, &content, false))
        return false;
    const QList<QByteArray> lines = content.split('\n');
    if (lines.first().trimmed() != "[Trash Info]")
        return false;
    path.clear();
    QByteArray date;
    for (int i = 1; i < lines.size() && !lines.at(i).startsWith('['); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        if (path.isEmpty() && line.startsWith("Path=") && !trashPercentDecoded(line.mid(5), &path)) // the first counts
            return false;
        if (date.isEmpty() && line.startsWith("DeletionDate="))
            date = line.mid(13);
    }
    deletionDate = secondsSinceEpoch(date);
    if (!isTrustworthy(path) || path.startsWith('/') != top.isEmpty())
        return false;
    path.prepend(top.isEmpty() || top.endsWith('/') ? top : top + '/');
    return true;
}

QByteArray TrashInfo::toText() const
{
    const QDateTime date = QDateTime::fromSecsSinceEpoch(deletionDate);
    return "[Trash Info]\nPath=" + trashPercentEncoded(path)
        + "\nDeletionDate=" + date.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toLatin1() + '\n';
}

QByteArray trashPercentEncoded(const QByteArray &path)
{
    return path.toPercentEncoding("/");
}

bool trashPercentDecoded(const QByteArray &encoded, QByteArray *path)
{
    for (int at = encoded.indexOf('%'); at >= 0; at = encoded.indexOf('%', at + 1)) {
        const QByteArray digits = encoded.mid(at + 1, 2);
        if (digits.size() < 2 || !isxdigit(uchar(digits.at(0))) || !isxdigit(uchar(digits.at(1))))
            return false;
    }
    *path = QByteArray::fromPercentEncoding(encoded);
    return !path->contains('\0');
}
