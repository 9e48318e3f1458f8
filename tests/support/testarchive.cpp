// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testarchive.h"

#include <K7Zip>
#include <KTar>
#include <KZip>
#include <QMap>

#include <memory>
#include <numeric>

void packArchive(const QString &path, const QVector<TestMember> &members)
{
    static const QMap<QString, QString> types{{"gz", "application/gzip"},
                                              {"bz2", "application/x-bzip"},
                                              {"xz", "application/x-xz"},
                                              {"zst", "application/zstd"}};
    const QString suffix = path.section('.', -1);
    std::unique_ptr<KArchive> archive;
    if (suffix == "zip")
        archive = std::make_unique<KZip>(path);
    else if (suffix == "7z")
        archive = std::make_unique<K7Zip>(path);
    else
        archive = std::make_unique<KTar>(path, types.value(suffix, "application/x-tar"));
    bool isDone = archive->open(QIODevice::WriteOnly);
    for (const TestMember &member : members) {
        const QString name = QString::fromUtf8(member.name);
        isDone = isDone
            && (member.type == '5'       ? archive->writeDir(name)
                    : member.type == '2' ? archive->writeSymLink(name, QString::fromUtf8(member.content))
                                         : archive->writeFile(name, member.content));
    }
    if (!archive->close() || !isDone)
        qFatal("packArchive: cannot write %s", qPrintable(path));
}

QByteArray tarOf(const QVector<TestMember> &members, qint64 size)
{
    constexpr int block = 512;
    QByteArray tar;
    for (const TestMember &member : members) {
        const QByteArray content = member.type == '0' || member.type == 'L' ? member.content : QByteArray();
        const bool isFalse = size >= 0 && &member == &members.last();
        QByteArray header(block, '\0');
        const auto put = [&header](int at, const QByteArray &text) { header.replace(at, text.size(), text); };
        put(0, member.name.left(100));
        put(100, "0004755"); // set-user-id, which nobody may get from an archive
        put(124, QByteArray::number(isFalse ? size : content.size(), 8).rightJustified(11, '0'));
        put(148, "        ");
        put(156, QByteArray(1, member.type) + member.content.left(100));
        const int sum = std::accumulate(header.begin(), header.end(), 0, [](int s, char c) { return s + uchar(c); });
        put(148, QByteArray::number(sum, 8).rightJustified(6, '0') + '\0');
        tar += header + content + QByteArray((block - content.size() % block) % block, '\0');
    }
    return tar + QByteArray(2 * block, '\0');
}
