// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testarchive.h"

#include <QMap>

#include <archive.h>
#include <archive_entry.h>

void packArchive(const QString &path, const QVector<TestMember> &members)
{
    static const QMap<QString, const char *> formats{{"zip", "zip"}, {"7z", "7zip"}};
    static const QMap<QString, const char *> filters{{"gz", "gzip"}, {"bz2", "bzip2"}, {"xz", "xz"}, {"zst", "zstd"}};
    static const QMap<char, int> types{{'2', AE_IFLNK}, {'3', AE_IFCHR}, {'5', AE_IFDIR}, {'6', AE_IFIFO}};
    const QString suffix = path.section('.', -1);
    archive *const packed = archive_write_new();
    archive_entry *const entry = archive_entry_new();
    const auto check = [&](int result) { // a warning tells of names that are no UTF-8
        if (result < ARCHIVE_WARN)
            qFatal("packArchive: cannot write %s: %s", qPrintable(path), archive_error_string(packed));
    };
    check(archive_write_set_format_by_name(packed, formats.value(suffix, "pax")));
    if (filters.contains(suffix))
        check(archive_write_add_filter_by_name(packed, filters.value(suffix)));
    if (path.contains(".store."))
        check(archive_write_set_options(packed, "compression=store"));
    check(archive_write_open_filename(packed, path.toUtf8().constData()));
    for (const TestMember &member : members) {
        const char *const content = member.content.constData();
        const int size = member.content.size();
        archive_entry_clear(entry);
        archive_entry_copy_pathname(entry, member.name.constData());
        archive_entry_set_mode(entry,
                               types.value(member.type, AE_IFREG) | 04755); // as nobody may get it from an archive
        archive_entry_set_mtime(entry, packedTime, 0);
        archive_entry_set_size(entry, member.type != '0' ? 0 : qMax<qint64>(size, member.claimedSize));
        if (member.type == '1')
            archive_entry_copy_hardlink(entry, content);
        else if (member.type == '2')
            archive_entry_copy_symlink(entry, content);
        if (path.contains(".sparse.") && member.content.contains('\0')) {
            const int end = member.content.lastIndexOf('\0') + 1;
            archive_entry_sparse_add_entry(entry, 0, member.content.indexOf('\0'));
            archive_entry_sparse_add_entry(entry, end, size - end);
        }
        check(archive_write_header(packed, entry));
        if (member.type == '0')
            check(int(archive_write_data(packed, content, size_t(size))));
        if (member.claimedSize > size)
            archive_write_fail(packed); // else it would be filled with zeros
    }
    check(archive_write_close(packed));
    archive_entry_free(entry);
    archive_write_free(packed);
}
