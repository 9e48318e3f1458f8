// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "permissiontext.h"

#include <veskplatform/entry.h>

#include <QHash>

#include <cerrno>
#include <functional>
#include <mutex>
#include <vector>

#include <pwd.h>
#include <sys/stat.h>

namespace VeskFM
{

namespace
{

QChar typeLetter(unsigned int mode)
{
    switch (mode & S_IFMT) {
    case S_IFDIR:
        return u'd';
    case S_IFLNK:
        return u'l';
    case S_IFCHR:
        return u'c';
    case S_IFBLK:
        return u'b';
    case S_IFIFO:
        return u'p';
    case S_IFSOCK:
        return u's';
    default:
        return u'-';
    }
}

/// The third letter of a triple: @p special is the set-id or sticky bit, written over the right to execute.
QChar executeLetter(bool execute, bool special, char16_t letter)
{
    if (special)
        return execute ? QChar(letter) : QChar(letter).toUpper();
    return execute ? u'x' : u'-';
}

QString readUserName(unsigned int uid)
{
    std::vector<char> buffer(1024);
    struct passwd user = {};
    struct passwd *found = nullptr;
    while (getpwuid_r(uid, &user, buffer.data(), buffer.size(), &found) == ERANGE && buffer.size() < (1u << 20))
        buffer.resize(buffer.size() * 2);
    return found ? QString::fromLocal8Bit(found->pw_name) : QString();
}

/// Names by number, each read once.
class NameCache
{
public:
    explicit NameCache(std::function<QString(unsigned int)> read)
        : m_read(std::move(read))
    {
    }
    QString name(unsigned int id)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            const auto known = m_names.constFind(id);
            if (known != m_names.constEnd())
                return *known;
        }
        QString name = m_read(id); // not locked: it may take long, and the other thread asks for other names
        if (name.isEmpty())
            name = QString::number(id);
        const std::lock_guard<std::mutex> lock(m_mutex);
        return *m_names.insert(id, name);
    }

private:
    const std::function<QString(unsigned int)> m_read;
    std::mutex m_mutex;
    QHash<unsigned int, QString> m_names;
};

} // namespace

QString permissionText(unsigned int mode)
{
    const auto letter = [mode](unsigned int bit, char16_t set) { return mode & bit ? QChar(set) : QChar(u'-'); };
    const QChar text[] = {typeLetter(mode),
                          letter(S_IRUSR, u'r'),
                          letter(S_IWUSR, u'w'),
                          executeLetter(mode & S_IXUSR, mode & S_ISUID, u's'),
                          letter(S_IRGRP, u'r'),
                          letter(S_IWGRP, u'w'),
                          executeLetter(mode & S_IXGRP, mode & S_ISGID, u's'),
                          letter(S_IROTH, u'r'),
                          letter(S_IWOTH, u'w'),
                          executeLetter(mode & S_IXOTH, mode & S_ISVTX, u't')};
    return QString(text, int(std::size(text)));
}

QString userName(unsigned int uid)
{
    static auto *const names = new NameCache(readUserName); // alive until the end: a worker may still ask
    return names->name(uid);
}

QString groupName(unsigned int gid)
{
    static auto *const names = new NameCache(&Entry::groupName);
    return names->name(gid);
}

} // namespace VeskFM
