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
    static const QMap<QString, QString> types{{"tar", "application/x-tar"},
                                              {"gz", "application/gzip"},
                                              {"bz2", "application/x-bzip"},
                                              {"xz", "application/x-xz"},
                                              {"zst", "application/zstd"}};
    const QString suffix = path.mid(path.lastIndexOf('.') + 1);
    std::unique_ptr<KArchive> archive;
    if (suffix == "zip")
        archive = std::make_unique<KZip>(path);
    else if (suffix == "7z")
        archive = std::make_unique<K7Zip>(path);
    else
        archive = std::make_unique<KTar>(path, types.value(suffix));
    bool isDone = archive->open(QIODevice::WriteOnly);
    for (const TestMember &member : members) {
        const QString name = QString::fromUtf8(member.name);
        if (member.type == '5')
            isDone = isDone && archive->writeDir(name);
        else if (member.type == '2')
            isDone = isDone && archive->writeSymLink(name, QString::fromUtf8(member.content));
        else
            isDone = isDone && archive->writeFile(name, member.content);
    }
    if (!archive->close() || !isDone)
        qFatal("packArchive: cannot write %s", qPrintable(path));
}

QByteArray tarOf(const QVector<TestMember> &members, qint64 declaredSize)
{
    constexpr int block = 512;
    QByteArray tar;
    for (const TestMember &member : members) {
        const bool isLast = &member == &members.last();
        const QByteArray content = member.type == '0' || member.type == 'L' ? member.content : QByteArray();
        const qint64 size = isLast && declaredSize >= 0 ? declaredSize : content.size();
        QByteArray header = member.name.leftJustified(100, '\0', true) + "0004755" + QByteArray(17, '\0')
            + QByteArray::number(size, 8).rightJustified(11, '0') + '\0' + QByteArray(12, '\0') + QByteArray(8, ' ')
            + member.type + member.content.leftJustified(100, '\0', true);
        header.resize(header.size() + block - header.size() % block);
        std::fill(header.begin() + 257, header.end(), '\0');
        const int sum = std::accumulate(header.begin(), header.end(), 0, [](int s, char c) { return s + uchar(c); });
        header.replace(148, 8, QByteArray::number(sum, 8).rightJustified(6, '0') + '\0' + ' ');
        tar += header + content + QByteArray((block - content.size() % block) % block, '\0');
    }
    return tar + QByteArray(2 * block, '\0');
}
