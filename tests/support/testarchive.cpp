// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testarchive.h"

#include <QMap>

#include <archive.h>
#include <archive_entry.h>

#include <numeric>

void packArchive(const QString &path, const QVector<TestMember> &members)
{
    static const QMap<QString, const char *> formats{{"zip", "zip"}, {"7z", "7zip"}};
    static const QMap<QString, const char *> filters{{"gz", "gzip"}, {"bz2", "bzip2"}, {"xz", "xz"}, {"zst", "zstd"}};
    const QString suffix = path.section('.', -1);
    archive *const packed = archive_write_new();
    archive_entry *const entry = archive_entry_new();
    int result = archive_write_set_format_by_name(packed, formats.value(suffix, "pax"));
    if (filters.contains(suffix))
        result |= archive_write_add_filter_by_name(packed, filters.value(suffix));
    if (path.contains(".store."))
        result |= archive_write_set_options(packed, "compression=store");
    result |= archive_write_open_filename(packed, path.toUtf8().constData());
    for (const TestMember &member : members) {
        const QByteArray content = member.type == '0' ? member.content : QByteArray();
        archive_entry_clear(entry);
        archive_entry_copy_pathname(entry, member.name.constData());
        archive_entry_set_mode(entry, member.type == '5' ? AE_IFDIR : member.type == '2' ? AE_IFLNK : AE_IFREG | 0644);
        archive_entry_set_size(entry, content.size());
        if (member.type == '2')
            archive_entry_copy_symlink(entry, member.content.constData());
        if (path.contains(".sparse.") && content.contains('\0')) {
            const int end = content.lastIndexOf('\0') + 1;
            archive_entry_sparse_add_entry(entry, 0, content.indexOf('\0'));
            archive_entry_sparse_add_entry(entry, end, content.size() - end);
        }
        result |= archive_write_header(packed, entry);
        result |= archive_write_data(packed, content.constData(), size_t(content.size())) == content.size()
            ? 0
            : ARCHIVE_FATAL;
    }
    result |= archive_write_close(packed);
    if (result != ARCHIVE_OK)
        qFatal("packArchive: cannot write %s: %s", qPrintable(path), archive_error_string(packed));
    archive_entry_free(entry);
    archive_write_free(packed);
}

QByteArray tarOf(const QVector<TestMember> &members, qint64 size)
{
    constexpr int block = 512;
    QByteArray tar;
    for (const TestMember &member : members) {
        const QByteArray content = QByteArray("0Lx").contains(member.type) ? member.content : QByteArray();
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
