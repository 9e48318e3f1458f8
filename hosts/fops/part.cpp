// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "part.h"

#include "directoryreader.h"
#include "treeremover.h"

#include <QFile>
#include <QList>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>

namespace
{

constexpr char prefix[] = ".vesk-fm-part-"; // then PROCESS-STARTTIME-NUMBER
constexpr size_t prefixLength = sizeof prefix - 1;

/// When a process started, in ticks since the machine did; process ids are used again, the two together are not.
/// Empty when there is no such process, or it has ended and its parent has not asked for it yet.
QByteArray startTime(const QByteArray &process)
{
    QFile file(QLatin1String("/proc/") + QString::fromLatin1(process) + QLatin1String("/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray line = file.readAll();
    // Of all fields the 3rd is the state, the 22nd the time; the name, the 2nd, may hold blanks and brackets.
    const QList<QByteArray> behindName = line.mid(line.lastIndexOf(')') + 2).split(' ');
    constexpr int timeBehindName = 19;
    return behindName.first() == "Z" || behindName.first() == "X" ? QByteArray() : behindName.value(timeBehindName);
}

bool isNumber(const QByteArray &text)
{
    return !text.isEmpty() && text.size() < 20
        && std::all_of(text.cbegin(), text.cend(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Whether the maker of a part is gone. False for a name that no part has.
bool isOrphan(const char *name)
{
    const QList<QByteArray> fields = QByteArray(name + prefixLength).split('-');
    if (fields.size() != 3 || !std::all_of(fields.cbegin(), fields.cend(), isNumber))
        return false;
    return startTime(fields.at(0)) != fields.at(1);
}

bool isHeld(int directory, const char *name)
{
    struct stat facts = {};
    if (fstatat(directory, name, &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return true; // just gone
    if (!S_ISREG(facts.st_mode) && !S_ISDIR(facts.st_mode))
        return false;
    const Descriptor part(openat(directory, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return part && flock(part.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

} // namespace

QByteArray Part::freshName()
{
    static const QByteArray process = QByteArray::number(getpid());
    static const QByteArray maker = prefix + process + '-' + startTime(process) + '-';
    static std::atomic<unsigned> number{0};
    return maker + QByteArray::number(++number);
}

void Part::hold(int fd)
{
    flock(fd, LOCK_EX | LOCK_NB); // where there are no such locks, the process id must do
}

void Part::removeStale(int directory)
{
    QList<QByteArray> stale;
    DirectoryReader reader(directory);
    while (const dirent *const node = reader.next()) {
        if (std::strncmp(node->d_name, prefix, prefixLength) == 0 && isOrphan(node->d_name)
            && !isHeld(directory, node->d_name))
            stale.append(node->d_name);
    }
    for (const QByteArray &name : qAsConst(stale))
        TreeRemover(nullptr, TreeRemover::OwnAnyway).remove(directory, name.constData());
}
