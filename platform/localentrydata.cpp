// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "localentrydata.h"

#include "localarchivemounts.h"
#include "pathcodec.h"

#include <veskplatform/standardpaths.h>

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <strings.h>
#include <vector>

namespace VeskFM
{

namespace
{
/// Who the process is to permission bits; looked up once, since a row must not cost a system call for it.
struct Credentials
{
    uid_t user = geteuid();
    std::vector<gid_t> groups;

    Credentials()
    {
        const int count = getgroups(0, nullptr);
        groups.resize(size_t(qMax(count, 0)));
        groups.resize(size_t(qMax(getgroups(int(groups.size()), groups.data()), 0)));
        groups.push_back(getegid());
    }

    bool mayExecute(const struct stat &facts) const
    {
        if (user == 0)
            return facts.st_mode & (S_IXUSR | S_IXGRP | S_IXOTH);
        if (facts.st_uid == user)
            return facts.st_mode & S_IXUSR;
        if (std::find(groups.begin(), groups.end(), facts.st_gid) != groups.end())
            return facts.st_mode & S_IXGRP;
        return facts.st_mode & S_IXOTH;
    }
};

/// A short lower-case text as one number.
constexpr quint64 packed(const char *text)
{
    quint64 value = 0;
    for (; *text; ++text)
        value = (value << 8) | uchar(*text);
    return value;
}
} // namespace

/// Asked of every file that is listed, hence the numbers.
bool LocalFacts::isArchiveName(const char *name, int nameSize)
{
    constexpr int longestSuffix = 4;
    int dot = nameSize - 1;
    while (dot > 0 && nameSize - 1 - dot < longestSuffix && name[dot] != '.')
        --dot;
    if (dot <= 0 || name[dot] != '.')
        return false;
    quint64 suffix = 0;
    for (int i = dot + 1; i < nameSize; ++i)
        suffix = (suffix << 8) | uchar(name[i] | 0x20); // letters in lower case; digits are the same with it
    switch (suffix) {
    case packed("zip"):
    case packed("7z"):
    case packed("tar"):
    case packed("tgz"):
    case packed("tbz"):
    case packed("tbz2"):
    case packed("txz"):
    case packed("tzst"):
        return true;
    case packed("gz"):
    case packed("bz2"):
    case packed("xz"):
    case packed("zst"):
        return dot > 4 && strncasecmp(name + dot - 4, ".tar", 4) == 0;
    default:
        return false;
    }
}

LocalFacts LocalFacts::of(const struct stat &own, const struct stat *target, const char *name, int nameSize,
                          bool archivesAsFiles)
{
    static const Credentials credentials;
    const bool link = S_ISLNK(own.st_mode);
    const struct stat &node = link && target ? *target : own;
    LocalFacts facts;
    facts.flags = Exists;
    if (link)
        facts.flags |= SymLink;
    if (nameSize > 0 && name[0] == '.')
        facts.flags |= Hidden;
    if (S_ISDIR(node.st_mode)) {
        facts.kind = link ? Entry::DirLink : Entry::Dir;
    } else {
        facts.size = node.st_size;
        const bool archive = !archivesAsFiles && isArchive(node, name, nameSize);
        facts.kind = archive ? (link ? Entry::ArchiveLink : Entry::Archive) : (link ? Entry::FileLink : Entry::File);
    }
    if (!S_ISLNK(node.st_mode) && credentials.mayExecute(node))
        facts.flags |= Executable;
    return facts;
}

bool LocalFacts::is(EntryTrait trait) const
{
    switch (trait) {
    case EntryTrait::Exists:
        return flags & Exists;
    case EntryTrait::File:
        return !is(EntryTrait::Dir) && !is(EntryTrait::ArchiveMountPoint); // who shows a file does not list it
    case EntryTrait::Dir:
        return kind == Entry::Dir || kind == Entry::DirLink;
    case EntryTrait::SymLink:
        return flags & SymLink;
    case EntryTrait::Hidden:
        return flags & Hidden;
    case EntryTrait::Executable:
        return flags & Executable;
    case EntryTrait::ArchiveMountPoint:
        return kind == Entry::Archive || kind == Entry::ArchiveLink;
    default:
        return false;
    }
}

bool LocalFacts::isArchive(const struct stat &node, const char *name, int nameSize)
{
    return S_ISREG(node.st_mode) && node.st_size > 0 && isArchiveName(name, nameSize);
}

LocalFacts LocalFacts::of(const QByteArray &path, bool archivesAsFiles)
{
    struct stat own;
    struct stat target;
    if (path.isEmpty() || lstat(path.constData(), &own) != 0)
        return {};
    const bool reached = S_ISLNK(own.st_mode) && stat(path.constData(), &target) == 0;
    const int nameStart = path.lastIndexOf('/') + 1;
    return of(own, reached ? &target : nullptr, path.constData() + nameStart, path.size() - nameStart, archivesAsFiles);
}

LocalEntryData::LocalEntryData(const QString &path, const LocalFacts &facts)
    : LocalEntryData(path, path.size() - 1 - path.lastIndexOf(QLatin1Char('/')), facts)
{
}

LocalEntryData::LocalEntryData(const QString &path, int nameSize, const LocalFacts &facts)
    : m_kind(facts.kind)
    , m_nameSize(quint16(nameSize))
    , m_path(path)
    , m_size(facts.size)
    , m_flags(facts.flags)
{
}

QString LocalEntryData::path() const
{
    return m_path;
}

int LocalEntryData::type() const
{
    return m_kind;
}

bool LocalEntryData::is(EntryTrait trait) const
{
    return trait == EntryTrait::FSRoot ? m_nameSize == 0 : LocalFacts{m_size, m_kind, m_flags}.is(trait);
}

QString LocalEntryData::localPath() const
{
    return m_flags & LocalFacts::Unportable ? QString() : m_path;
}

QString LocalEntryData::fileName() const
{
    return m_path.right(m_nameSize);
}

QString LocalEntryData::lastPathSection() const
{
    return m_nameSize == 0 ? m_path : fileName();
}

QString LocalEntryData::archiveMountPointOrLocalPath() const
{
    const QString mount =
        is(EntryTrait::ArchiveMountPoint) ? LocalArchiveMounts::instance().mountPathOf(m_path) : QString();
    return mount.isEmpty() ? localPath() : mount;
}

qint64 LocalEntryData::fileSize() const
{
    return m_size;
}

QStringView LocalEntryData::name() const
{
    return QStringView(m_path).right(m_nameSize);
}

LocalLinkData::LocalLinkData(const QString &path, int nameSize, const LocalFacts &facts, const QString &target)
    : LocalEntryData(path, nameSize, facts)
    , m_target(target.startsWith(QLatin1Char('/')) ? target : path.left(path.size() - nameSize) + target)
{
}

QString LocalLinkData::symLinkTarget() const
{
    return m_target;
}

Entry makeLocalEntry(const QString &path, bool archivesAsFiles, bool evenIfMissing)
{
    const QByteArray bytes = PathCodec::encode(path);
    LocalFacts facts = LocalFacts::of(bytes, archivesAsFiles);
    if (!(facts.flags & LocalFacts::Exists) && !evenIfMissing)
        return {};
    if (!PathCodec::isPortable(path))
        facts.flags |= LocalFacts::Unportable;
    if (!(facts.flags & LocalFacts::SymLink))
        return Entry(new LocalEntryData(path, facts));
    char target[PATH_MAX];
    const ssize_t size = readlink(bytes.constData(), target, sizeof target);
    return Entry(new LocalLinkData(path, path.size() - 1 - path.lastIndexOf(QLatin1Char('/')), facts,
                                   PathCodec::decode(QByteArray(target, int(qMax<ssize_t>(size, 0))))));
}

const QString &localHomePath()
{
    static const QString path = [] {
        const QByteArray home = qgetenv("HOME");
        return home.startsWith('/') ? QDir::cleanPath(PathCodec::decode(home)) : QDir::homePath();
    }();
    return path;
}

const QString &localTrashPath()
{
    static const QString path = QDir::cleanPath(StandardPaths::trashDirPath());
    return path;
}

} // namespace VeskFM
