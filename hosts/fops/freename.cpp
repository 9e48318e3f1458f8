// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "freename.h"

#include <QCoreApplication>
#include <QMimeDatabase>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>

namespace
{

/// What the name is known to end with, "tar.gz" as a whole, with its dot. Bytes that are no text are in no suffix.
QByteArray knownSuffix(const QByteArray &name)
{
    const QByteArray suffix = QMimeDatabase().suffixForFileName(QString::fromUtf8(name)).toUtf8();
    return !suffix.isEmpty() && name.endsWith('.' + suffix) ? '.' + suffix : QByteArray();
}

bool isInsideCharacter(char byte)
{
    return (uchar(byte) & 0xC0) == 0x80;
}

bool isSameNode(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// Whether a directory is, or lies in, what has a name in another.
bool isInside(int directory, int parent, const char *name)
{
    struct stat tree = {};
    struct stat last = {};
    struct stat step = {};
    if (fstatat(parent, name, &tree, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    Descriptor current(openat(directory, ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    while (current && fstat(current.get(), &step) == 0 && !isSameNode(step, last)) { // the root is its own parent
        if (isSameNode(step, tree))
            return true;
        last = step;
        current = Descriptor(openat(current.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
    }
    return false;
}

/// For file systems that cannot rename and refuse to replace in one step. A file gets its new name by a link, which
/// never replaces; where that fails, too, only a look before is left. Returns an errno.
int renameInSteps(int fromParent, const char *from, int toParent, const char *to)
{
    struct stat facts = {};
    if (fstatat(fromParent, from, &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return errno;
    if (!S_ISDIR(facts.st_mode)) {
        if (linkat(fromParent, from, toParent, to, 0) == 0)
            return unlinkat(fromParent, from, 0) == 0 ? 0 : errno;
        if (errno == EEXIST || errno == EXDEV)
            return errno;
    }
    struct stat present = {};
    if (fstatat(toParent, to, &present, AT_SYMLINK_NOFOLLOW) == 0)
        return EEXIST;
    return renameat(fromParent, from, toParent, to) == 0 ? 0 : errno;
}

/// Returns an errno.
int renameWithoutReplacing(int fromParent, const char *from, int toParent, const char *to)
{
    if (renameat2(fromParent, from, toParent, to, RENAME_NOREPLACE) == 0)
        return 0;
    return errno == EINVAL || errno == ENOSYS ? renameInSteps(fromParent, from, toParent, to) : errno;
}

/// Whether the name is taken by the node itself: a file system without case gives it back under another spelling.
bool isOtherSpelling(int fromParent, const char *from, int toParent, const char *to)
{
    struct stat own = {};
    struct stat taken = {};
    return fstatat(fromParent, from, &own, AT_SYMLINK_NOFOLLOW) == 0
        && fstatat(toParent, to, &taken, AT_SYMLINK_NOFOLLOW) == 0 && isSameNode(own, taken)
        && (own.st_nlink == 1 || S_ISDIR(own.st_mode)) && qstricmp(from, to) == 0 && qstrcmp(from, to) != 0;
}

} // namespace

FreeName::FreeName(const QByteArray &name, bool isDirectory, const QString &addition)
    : m_isDirectory(isDirectory)
    , m_base(name)
{
    if (addition.isEmpty())
        return;
    splitSuffix();
    m_addition = " - " + addition.toUtf8();
}

void FreeName::splitSuffix()
{
    if (!m_isDirectory)
        m_suffix = knownSuffix(m_base);
    m_base.chop(m_suffix.size());
}

FreeName FreeName::exactly(const QByteArray &name)
{
    FreeName exact(name, true, {});
    exact.m_isExact = true;
    return exact;
}

FreeName FreeName::like(const QByteArray &name, bool isDirectory)
{
    return FreeName(name, isDirectory, {});
}

FreeName FreeName::forCopyOf(const QByteArray &name, bool isDirectory)
{
    return FreeName(name, isDirectory, QCoreApplication::translate("CorePaths", "copy"));
}

FreeName FreeName::forShortcutTo(const QByteArray &name, bool isDirectory)
{
    return FreeName(name, isDirectory, QCoreApplication::translate("FileOperations", "shortcut"));
}

QByteArray FreeName::current() const
{
    QByteArray tail = m_addition;
    if (m_number > 1)
        tail += " (" + QByteArray::number(m_number) + ')';
    tail += m_suffix;
    QByteArray base = m_base;
    if (!m_isExact && base.size() + tail.size() > NAME_MAX && tail.size() < NAME_MAX) {
        int end = NAME_MAX - tail.size();
        while (end > 1 && isInsideCharacter(base.at(end)))
            --end;
        base.truncate(end);
    }
    return base + tail;
}

bool FreeName::next()
{
    if (++m_number == 2 && m_addition.isEmpty() && !m_isExact)
        splitSuffix();
    return !m_isExact;
}

Result renameToFreeName(int fromParent, const QByteArray &from, int toParent, FreeName name, QByteArray *taken,
                        bool *crossesDevices)
{
    do {
        const QByteArray candidate = name.current();
        const char *const to = candidate.constData();
        int error = renameWithoutReplacing(fromParent, from.constData(), toParent, to);
        if (error == EEXIST && isOtherSpelling(fromParent, from.constData(), toParent, to))
            error = renameat(fromParent, from.constData(), toParent, to) == 0 ? 0 : errno;
        if (crossesDevices)
            *crossesDevices = error == EXDEV;
        if (error == 0)
            *taken = candidate;
        if (error == EINVAL && isInside(toParent, fromParent, from.constData()))
            return Result::IntoItself;
        if (error != EEXIST)
            return resultOfError(error);
    } while (name.next());
    return Result::Exists;
}
