// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/vesktrash.h>

#include "smallfile.h"
#include "trashdir.h"
#include "trashdirsizes.h"
#include "trashinfo.h"

#include <QDateTime>
#include <QFile>
#include <QMutex>
#include <QRandomGenerator>
#include <QSet>

#include <dirent.h>
#include <fcntl.h>
#include <fts.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

namespace
{

constexpr int longestName = 255;  // bytes, of any file name
constexpr int numberedNames = 20; // random ones follow, so that a common name does not get slower and slower
constexpr int triedNames = 100;

QMutex dirSizesMutex; // one at a time reads, changes and replaces the file of directory sizes

QByteArray topDir()
{
    return TrashDir::home().path;
}

QByteArray filesDir()
{
    return TrashDir::home().filesDir();
}

QByteArray infoFile(const QByteArray &name)
{
    return TrashDir::home().infoFile(name);
}

QByteArray dirSizesFile()
{
    return topDir() + "/directorysizes";
}

// Bytes that the locale's encoding has no text for are handed on as they are.
std::string toResult(const QByteArray &bytes)
{
    const QString text = QFile::decodeName(bytes);
    return (QFile::encodeName(text) == bytes ? text.toUtf8() : bytes).toStdString();
}

// Without empty and "." sections; empty for what is no absolute path of an item.
QByteArray itemPath(const std::string &path)
{
    const QByteArray given = QByteArray::fromStdString(path);
    if (!given.startsWith('/') || given.contains('\0'))
        return {};
    QByteArray item;
    const QList<QByteArray> sections = given.split('/');
    for (const QByteArray &section : sections) {
        if (!section.isEmpty() && section != ".")
            item += '/' + section;
    }
    return item.endsWith("/..") ? QByteArray() : item;
}

QByteArray resolved(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&free)> real(realpath(path.constData(), nullptr), &free);
    return real ? QByteArray(real.get()) : QByteArray();
}

QByteArray parentOf(const QByteArray &item)
{
    return item.left(qMax(1, item.lastIndexOf('/')));
}

QByteArray nameOf(const QByteArray &item)
{
    return item.mid(item.lastIndexOf('/') + 1);
}

bool isSameOrBelow(const QByteArray &path, const QByteArray &dir)
{
    return path == dir || path.startsWith(dir + '/');
}

// The path with the links of its parents resolved: the item itself may be a link, which is trashed, not its target.
QByteArray resolvedItem(const QByteArray &item)
{
    const QByteArray parent = resolved(parentOf(item));
    if (parent.isEmpty())
        return item.contains("/../") ? QByteArray() : item;
    return (parent == "/" ? QByteArray() : parent) + '/' + nameOf(item);
}

struct TrashedItem
{
    TrashDir trash; // null when the item lies in none, or deeper in one
    QByteArray name;

    QByteArray infoFile() const { return trash.infoFile(name); }
};

TrashedItem trashedItem(const std::string &path)
{
    const QByteArray item = itemPath(path);
    if (item.isEmpty())
        return {};
    const QByteArray parent = parentOf(item);
    return {parent == filesDir() ? TrashDir::home() : TrashDir::holding(resolved(parent)), nameOf(item)};
}

bool readInfo(const TrashedItem &item, TrashInfo *info)
{
    return !item.trash.isNull() && info->read(item.infoFile(), item.trash.top);
}

// "name.txt", "name.2.txt", ...; short enough for the name of its ".trashinfo" file, and cut between characters.
QByteArray candidateName(const QByteArray &name, int attempt)
{
    const int dot = name.lastIndexOf('.');
    const int longestExtension = 32; // what is longer is no extension
    const bool hasExtension = dot > 0 && name.size() - dot <= longestExtension;
    QByteArray tail = hasExtension ? name.mid(dot) : QByteArray();
    if (attempt >= numberedNames)
        tail.prepend('.' + QByteArray::number(QRandomGenerator::global()->generate64(), 16));
    else if (attempt > 0)
        tail.prepend('.' + QByteArray::number(attempt + 1));
    QByteArray stem = hasExtension ? name.left(dot) : name;
    const int room = longestName - TrashDir::infoSuffix().size() - tail.size();
    if (stem.size() > room) {
        int end = room;
        while (end > 1 && (uchar(stem.at(end)) & 0xC0) == 0x80)
            --end;
        stem.truncate(end);
    }
    return stem + tail;
}

enum class Reservation { Done, Taken, Failed };

Reservation reserve(const QByteArray &name, const QByteArray &info)
{
    const QByteArray file = infoFile(name);
    const int descriptor = open(file.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return errno == EEXIST ? Reservation::Taken : Reservation::Failed;
    const bool written = write(descriptor, info.constData(), size_t(info.size())) == info.size();
    const bool closed = close(descriptor) == 0;
    struct stat facts = {};
    const bool occupied = lstat((filesDir() + '/' + name).constData(), &facts) == 0; // left there without an info file
    if (written && closed && !occupied)
        return Reservation::Done;
    unlink(file.constData());
    return occupied ? Reservation::Taken : Reservation::Failed;
}

// Seconds since the Unix epoch; -1 when there is no such file.
qint64 infoTime(const QByteArray &name)
{
    struct stat facts = {};
    return stat(infoFile(name).constData(), &facts) == 0 ? qint64(facts.st_mtim.tv_sec) : -1;
}

// What the directory and all in it take on disk, in bytes; a file with several links is counted once.
qint64 diskUsage(const QByteArray &dir)
{
    QByteArray root = dir;
    char *const roots[] = {root.data(), nullptr};
    FTS *const walk = fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR, nullptr);
    if (!walk)
        return 0;
    constexpr qint64 blockSize = 512; // the unit of st_blocks
    QSet<QPair<quint64, quint64>> linked;
    qint64 size = 0;
    while (const FTSENT *const node = fts_read(walk)) {
        if (node->fts_info == FTS_DP || node->fts_info == FTS_NS || node->fts_info == FTS_DNR)
            continue;
        const struct stat &facts = *node->fts_statp;
        if (facts.st_nlink > 1 && !S_ISDIR(facts.st_mode)) {
            const QPair<quint64, quint64> identity(facts.st_dev, facts.st_ino);
            if (linked.contains(identity))
                continue;
            linked.insert(identity);
        }
        size += qint64(facts.st_blocks) * blockSize;
    }
    fts_close(walk);
    return size;
}

struct CloseDir
{
    void operator()(DIR *dir) const { closedir(dir); }
};

// Calls @p visit with the name and the facts of each trashed item, until it returns false.
template <typename Visit> void forEachItem(const Visit &visit)
{
    const std::unique_ptr<DIR, CloseDir> dir(opendir(filesDir().constData()));
    if (!dir)
        return;
    while (const dirent *const node = readdir(dir.get())) {
        const QByteArray name(node->d_name);
        struct stat facts = {};
        if (name == "." || name == ".." || fstatat(dirfd(dir.get()), node->d_name, &facts, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        if (!visit(name, facts))
            return;
    }
}

bool holdsNothing()
{
    bool empty = true;
    forEachItem([&empty](const QByteArray &, const struct stat &) { return empty = false; });
    return empty;
}

bool isNameInDir(const QByteArray &name)
{
    return !name.isEmpty() && name != "." && name != ".." && !name.contains('/') && !name.contains('\0');
}

} // namespace

std::string VeskTrash::registerFile(const std::string &path)
{
    const QByteArray item = itemPath(path);
    if (item.isEmpty() || !makeDirs(filesDir()) || !makeDirs(topDir() + "/info"))
        return {};
    const QByteArray real = resolvedItem(item);
    const QByteArray top = resolved(topDir());
    if (real.isEmpty() || isSameOrBelow(real, top) || isSameOrBelow(top, real)) // neither trashed again nor into itself
        return {};
    const QByteArray origin = item.contains("/../") ? real : item;
    const QByteArray info = TrashInfo{origin, QDateTime::currentSecsSinceEpoch()}.toText();
    for (int attempt = 0; attempt < triedNames; ++attempt) {
        const QByteArray name = candidateName(nameOf(item), attempt);
        const Reservation outcome = reserve(name, info);
        if (outcome == Reservation::Done)
            return toResult(filesDir() + '/' + name);
        if (outcome == Reservation::Failed)
            break;
    }
    return {};
}

bool VeskTrash::unregisterFile(const std::string &path)
{
    const TrashedItem item = trashedItem(path);
    return !item.trash.isNull() && unlink(item.infoFile().constData()) == 0;
}

std::string VeskTrash::getFilePathToRestore(const std::string &path)
{
    const TrashedItem item = trashedItem(path);
    TrashInfo info;
    if (!readInfo(item, &info) || isSameOrBelow(info.path, item.trash.path))
        return {};
    return toResult(info.path);
}

long long VeskTrash::getDeletionDate(const std::string &path)
{
    TrashInfo info;
    return readInfo(trashedItem(path), &info) ? info.deletionDate : 0;
}

bool VeskTrash::isFileInTrash(const std::string &path)
{
    const QByteArray item = itemPath(path);
    if (item.isEmpty())
        return false;
    if (parentOf(item) == filesDir())
        return true;
    const QByteArray real = resolvedItem(item);
    const QByteArray realFiles = resolved(filesDir());
    if (real.startsWith((realFiles.isEmpty() ? filesDir() : realFiles) + '/'))
        return true;
    const QByteArray step = QByteArrayLiteral("/files/"); // in the trash of another mount
    for (int at = real.indexOf(step); at >= 0; at = real.indexOf(step, at + 1)) {
        if (!TrashDir::holding(real.left(at + step.size() - 1)).isNull())
            return true;
    }
    return false;
}

bool VeskTrash::isEmpty()
{
    static QMutex mutex;
    static struct stat knownDir = {}; // as it was when it was read
    static bool knownEmpty = true;

    struct stat dir = {};
    if (stat(filesDir().constData(), &dir) != 0)
        return true;
    const QMutexLocker locker(&mutex);
    const bool isKnown = dir.st_dev == knownDir.st_dev && dir.st_ino == knownDir.st_ino
        && dir.st_mtim.tv_sec == knownDir.st_mtim.tv_sec && dir.st_mtim.tv_nsec == knownDir.st_mtim.tv_nsec;
    if (isKnown)
        return knownEmpty;
    const bool empty = holdsNothing();
    // A directory that has just changed may change again without a new time: file systems count in up to two seconds.
    constexpr qint64 coarsestTime = 2;
    const bool isSettled = QDateTime::currentSecsSinceEpoch() - dir.st_mtim.tv_sec > coarsestTime;
    knownDir = isSettled ? dir : (struct stat){};
    knownEmpty = empty;
    return empty;
}

unsigned long long VeskTrash::size()
{
    const QMutexLocker locker(&dirSizesMutex);
    TrashDirSizes dirSizes(dirSizesFile());
    QSet<QByteArray> dirs;
    unsigned long long total = 0;
    forEachItem([&](const QByteArray &name, const struct stat &facts) {
        if (S_ISREG(facts.st_mode))
            total += quint64(facts.st_size);
        if (!S_ISDIR(facts.st_mode))
            return true;
        dirs.insert(name);
        const qint64 time = infoTime(name);
        qint64 size = time < 0 ? -1 : dirSizes.size(name, time);
        if (size < 0) {
            size = diskUsage(filesDir() + '/' + name);
            if (time >= 0)
                dirSizes.insert(name, size, time);
        }
        total += quint64(size);
        return true;
    });
    dirSizes.removeUnless([&dirs](const QByteArray &name) { return dirs.contains(name); });
    dirSizes.save();
    return total;
}

bool VeskTrash::hasSizeCache()
{
    const QMutexLocker locker(&dirSizesMutex);
    const TrashDirSizes dirSizes(dirSizesFile());
    bool complete = true;
    forEachItem([&](const QByteArray &name, const struct stat &facts) {
        if (S_ISDIR(facts.st_mode)) {
            const qint64 time = infoTime(name);
            complete = time >= 0 && dirSizes.size(name, time) >= 0;
        }
        return complete;
    });
    return complete;
}

void VeskTrash::registerDirSize(const std::string &name, long long size)
{
    const QByteArray dirName = QByteArray::fromStdString(name);
    const qint64 time = isNameInDir(dirName) ? infoTime(dirName) : -1;
    if (time < 0 || size < 0) // without an info file nothing would tell when the size no longer holds
        return;
    const QMutexLocker locker(&dirSizesMutex);
    TrashDirSizes dirSizes(dirSizesFile());
    dirSizes.insert(dirName, size, time);
    dirSizes.save();
}

void VeskTrash::unregisterDirSize(const std::string &name)
{
    const QMutexLocker locker(&dirSizesMutex);
    TrashDirSizes dirSizes(dirSizesFile());
    dirSizes.remove(QByteArray::fromStdString(name));
    dirSizes.save();
}

std::string VeskTrash::getTopDirPath()
{
    return toResult(topDir());
}
