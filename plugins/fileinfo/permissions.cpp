// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "permissions.h"

#include "diskpath.h"
#include "permissiontext.h"

#include <QCoreApplication>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VeskFM
{

namespace
{

constexpr int keptErrors = 5;
constexpr mode_t permissionBits = 07777;

/// Does it to exactly the file at @p path. Returns 0 or an error of errno.
int changeOne(const QByteArray &path, mode_t changed, mode_t bits)
{
    // Held by a descriptor from the look to the change: whatever takes its name meanwhile, above all a link, is not
    // touched. O_PATH needs no right to read the file.
    const int descriptor = open(path.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return errno;
    struct stat found = {};
    int error = 0;
    if (fstat(descriptor, &found) != 0) {
        error = errno;
    } else if (!S_ISLNK(found.st_mode)) {
        const QByteArray name = "/proc/self/fd/" + QByteArray::number(descriptor);
        if (chmod(name.constData(), (found.st_mode & permissionBits & ~changed) | bits) != 0)
            error = errno;
    }
    close(descriptor);
    return error;
}

/// The text of all entries, when it is the same.
void merge(QString &text, const QString &next, bool first)
{
    if (first)
        text = next;
    else if (text != next)
        text = QCoreApplication::translate("FileInfo", "(various)");
}

} // namespace

void PermissionErrors::add(const Entry &entry, int error)
{
    if (++count <= keptErrors)
        lines += entry.fileName() + QLatin1String(": ") + qt_error_string(error);
}

CommonPermissions CommonPermissions::of(const EntryList &entries)
{
    CommonPermissions common;
    struct stat previous = {}; // most files of a selection are alike: their texts are made once
    bool first = true;
    for (const Entry &entry : entries) {
        struct stat found = {};
        if (lstat(diskPath(entry).constData(), &found) != 0) {
            common.errors.add(entry, errno);
            continue;
        }
        if (first || found.st_uid != previous.st_uid)
            merge(common.owner, userName(found.st_uid), first);
        if (first || found.st_gid != previous.st_gid)
            merge(common.group, groupName(found.st_gid), first);
        if (first || found.st_mode != previous.st_mode)
            merge(common.text, permissionText(found.st_mode), first);
        first = false;
        previous = found;
        if (S_ISLNK(found.st_mode))
            continue;
        common.canChange = true;
        common.all &= found.st_mode;
        common.any |= found.st_mode;
    }
    return common;
}

PermissionErrors changePermissions(const EntryList &entries, mode_t changed, mode_t bits,
                                   const std::atomic<bool> *running)
{
    PermissionErrors errors;
    for (const Entry &entry : entries) {
        if (!*running)
            break;
        const int error = changeOne(diskPath(entry), changed, bits);
        if (error != 0)
            errors.add(entry, error);
    }
    return errors;
}

} // namespace VeskFM
