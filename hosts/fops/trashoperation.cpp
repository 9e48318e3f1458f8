// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "trashoperation.h"

#include "freename.h"
#include "orphaninfos.h"
#include "treemover.h"

#include <veskplatform/standardpaths.h>
#include <veskplatform/vesktrash.h>

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <mutex>

#include <gio/gio.h>

namespace
{

Result resultOfGioError(const GError *error)
{
    if (!error || error->domain != G_IO_ERROR)
        return Result::Other;
    switch (error->code) {
    case G_IO_ERROR_NOT_FOUND:
        return Result::NotFound;
    case G_IO_ERROR_PERMISSION_DENIED:
    case G_IO_ERROR_READ_ONLY:
        return Result::AccessDenied;
    case G_IO_ERROR_NO_SPACE:
        return Result::NoSpace;
    case G_IO_ERROR_NOT_SUPPORTED:
        return Result::NotSupported;
    default:
        return Result::Other;
    }
}

/// The trash at the top of the mount that the file is on. It does not tell the place there.
Result trashOnItsMount(const QByteArray &path)
{
    GFile *const file = g_file_new_for_path(path.constData());
    GError *error = nullptr;
    const bool isDone = g_file_trash(file, nullptr, &error);
    const Result result = isDone ? Result::Success : resultOfGioError(error);
    g_clear_error(&error);
    g_object_unref(file);
    return result;
}

/// Whether the trash lies in the directory, or is it.
bool holdsTrash(const struct stat &directory)
{
    QByteArray path = QFile::encodeName(VeskFM::StandardPaths::trashDirPath());
    for (; !path.isEmpty(); path.truncate(path.lastIndexOf('/'))) {
        struct stat facts = {};
        if (stat(path.constData(), &facts) == 0 && facts.st_dev == directory.st_dev && facts.st_ino == directory.st_ino)
            return true;
    }
    return false;
}

/// Makes the directory and the missing ones above it.
Result makeDirs(const QByteArray &path)
{
    constexpr mode_t asUmaskPermits = 0777;
    for (int slash = path.indexOf('/', 1);; slash = path.indexOf('/', slash + 1)) {
        const QByteArray directory = slash < 0 ? path : path.left(slash);
        if (mkdir(directory.constData(), asUmaskPermits) != 0 && errno != EEXIST) {
            struct stat facts = {}; // a directory that is there may be refused for other reasons, too
            const int error = errno;
            if (stat(directory.constData(), &facts) != 0)
                return resultOfError(error);
        }
        if (slash < 0)
            return Result::Success;
    }
}

} // namespace

TrashOperation::TrashOperation(const QString &stamp, const QStringList &entries, bool goesOn)
    : Operation(stamp, entries.value(0))
    , m_entries(entries)
    , m_goesOn(goesOn)
{
}

void TrashOperation::run()
{
    static std::once_flag isTidy; // once for each service is enough
    std::call_once(isTidy, removeOrphanInfos);
    note(m_entries.isEmpty() ? Result::NotFound : Result::Success);
    progress().setTotal(m_entries.size() * Progress::unitsPerNode);
    for (const QString &entry : m_entries) {
        const Result result = progress().isCancelled() ? Result::Cancelled : trash(diskBytes(entry));
        progress().add(Progress::unitsPerNode);
        if (!note(result) && (!m_goesOn || isHopeless()))
            return;
    }
}

Result TrashOperation::trash(const QByteArray &path)
{
    DiskPlace place;
    const Result result = DiskPlace::open(path, &place);
    struct stat facts = {};
    if (result != Result::Success)
        return result;
    if (fstatat(place.directory.get(), place.name.constData(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return resultOfError(errno);
    const std::string source = place.fullPath().toStdString();
    if (VeskTrash::isFileInTrash(source) || holdsTrash(facts))
        return Result::NotSupported;

    const std::string reserved = VeskTrash::registerFile(source);
    if (reserved.empty()) // there is no trash in the home directory
        return trashOnItsMount(place.fullPath());
    DiskPlace target;
    Result moved = DiskPlace::open(QByteArray::fromStdString(reserved), &target);
    bool crossesDevices = false;
    if (moved == Result::Success)
        moved = renameToFreeName(place.directory.get(), place.name, target.directory.get(),
                                 FreeName::exactly(target.name), &target.name, &crossesDevices);
    if (moved == Result::Success) {
        addMade(target.fullPath());
        return Result::Success;
    }
    VeskTrash::unregisterFile(reserved);
    return crossesDevices ? trashOnItsMount(place.fullPath()) : moved;
}

RestoreOperation::RestoreOperation(const QString &stamp, const QStringList &entries)
    : Operation(stamp, entries.value(0))
    , m_entries(entries)
{
}

void RestoreOperation::run()
{
    note(m_entries.isEmpty() ? Result::NotFound : Result::Success);
    progress().setTotal(m_entries.size() * Progress::unitsPerNode);
    for (const QString &entry : m_entries) {
        note(progress().isCancelled() ? Result::Cancelled : restore(diskBytes(entry)));
        if (isHopeless())
            return;
        progress().add(Progress::unitsPerNode);
    }
}

Result RestoreOperation::restore(const QByteArray &path)
{
    DiskPlace trashed;
    Result result = DiskPlace::open(path, &trashed);
    struct stat facts = {};
    if (result != Result::Success)
        return result;
    if (fstatat(trashed.directory.get(), trashed.name.constData(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return resultOfError(errno);
    const std::string item = trashed.fullPath().toStdString();
    const QByteArray origin = QByteArray::fromStdString(VeskTrash::getFilePathToRestore(item));
    if (origin.isEmpty())
        return Result::NotFound;
    const int slash = origin.lastIndexOf('/');
    result = slash > 0 ? makeDirs(origin.left(slash)) : Result::Success;
    DiskPlace target;
    if (result == Result::Success)
        result = openTarget(origin, &target);
    if (result == Result::Success)
        result = TreeMover(&progress())
                     .move(trashed.directory.get(), trashed.name, target.directory.get(),
                           FreeName::like(target.name, S_ISDIR(facts.st_mode)), &target.name);
    if (result != Result::Success)
        return result;
    VeskTrash::unregisterFile(item);
    addMade(target.fullPath());
    return Result::Success;
}
