// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivemountroot.h"

#include "removetree.h"
#include "smallfile.h"
#include "xdgdirs.h"

#include <QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace VeskFM
{

namespace
{
constexpr char lockName[] = "lock";
constexpr int randomDigits = 16;

QByteArray baseDirectory()
{
    return xdgCacheHome() + "/vesk-fm/archives";
}

QByteArray freshName()
{
    const QByteArray random = QByteArray::number(QRandomGenerator::system()->generate64(), 16);
    return QByteArray::number(getpid()) + '-' + random.rightJustified(randomDigits, '0');
}

/// Only what has a name as we give it is ever removed.
bool isOurName(const QByteArray &name)
{
    const int dash = name.indexOf('-');
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto isHexDigit = [&](char c) { return isDigit(c) || (c >= 'a' && c <= 'f'); };
    return dash > 0 && name.size() == dash + 1 + randomDigits && std::all_of(name.begin(), name.begin() + dash, isDigit)
        && std::all_of(name.begin() + dash + 1, name.end(), isHexDigit);
}

int openDirectory(int parent, const QByteArray &name)
{
    const int directory = openat(parent, name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat facts = {};
    if (directory >= 0 && (fstat(directory, &facts) != 0 || facts.st_uid != geteuid())) {
        close(directory);
        return -1;
    }
    return directory;
}

/// A lock file, locked. -1 when somebody else has it.
int lockIn(int directory, int operation)
{
    const int lock = openat(directory, lockName, O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (lock < 0)
        return -1;
    int result = 0;
    do
        result = flock(lock, operation);
    while (result != 0 && errno == EINTR);
    if (result == 0)
        return lock;
    close(lock);
    return -1;
}

/// Calls @p act with the open directory of all processes, for one process at a time: a directory that has no lock yet would
/// pass for a stale one.
template <typename Act> bool inTurn(const QByteArray &path, Act act)
{
    const int base = openDirectory(AT_FDCWD, path);
    if (base < 0)
        return false;
    const int turn = lockIn(base, LOCK_EX);
    const bool isDone = turn >= 0 && act(base);
    if (turn >= 0)
        close(turn);
    close(base);
    return isDone;
}
} // namespace

bool ArchiveMountRoot::isBelowAny(const QByteArray &path)
{
    const QByteArray base = baseDirectory() + '/';
    return path.startsWith(base) && isOurName(path.mid(base.size(), path.indexOf('/', base.size()) - base.size()));
}

bool ArchiveMountRoot::isAnyLeft()
{
    return access(baseDirectory().constData(), F_OK) == 0;
}

void ArchiveMountRoot::removeAllThatIsLeft()
{
    inTurn(baseDirectory(), [](int base) {
        removeStale(base);
        return true;
    });
}

ArchiveMountRoot::ArchiveMountRoot()
    : m_base(baseDirectory())
    , m_name(freshName())
{
}

ArchiveMountRoot::~ArchiveMountRoot()
{
    if (m_lock >= 0)
        close(m_lock);
    if (m_directory >= 0)
        close(m_directory);
}

bool ArchiveMountRoot::make()
{
    if (isMade())
        return true;
    return makeDirs(m_base) && inTurn(m_base, [this](int base) {
               const bool isDone = makeLocked(base);
               if (isDone)
                   removeStale(base);
               return isDone;
           });
}

bool ArchiveMountRoot::makeLocked(int base)
{
    if (mkdirat(base, m_name.constData(), S_IRWXU) != 0)
        return false;
    m_directory = openDirectory(base, m_name);
    m_lock = m_directory < 0 ? -1 : lockIn(m_directory, LOCK_EX | LOCK_NB);
    if (m_lock >= 0)
        return true;
    if (m_directory >= 0)
        close(m_directory);
    m_directory = -1;
    removeTree(base, m_name);
    return false;
}

void ArchiveMountRoot::removeStale(int base)
{
    const int listed = openat(base, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR *const stream = listed < 0 ? nullptr : fdopendir(listed);
    if (!stream)
        return;
    while (const dirent *const node = readdir(stream)) {
        if (!isOurName(node->d_name))
            continue;
        const int directory = openDirectory(base, node->d_name);
        const int lock = directory < 0 ? -1 : lockIn(directory, LOCK_EX | LOCK_NB);
        if (lock >= 0) // its process is gone; our own is locked, too
            removeTree(base, node->d_name);
        if (lock >= 0)
            close(lock);
        if (directory >= 0)
            close(directory);
    }
    closedir(stream);
}

void ArchiveMountRoot::remove()
{
    if (!isMade())
        return;
    const int base = openDirectory(AT_FDCWD, m_base);
    if (base >= 0) {
        removeTree(base, m_name);
        close(base);
    }
    close(m_lock);
    close(m_directory);
    m_lock = m_directory = -1;
}

} // namespace VeskFM
