// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/entry.h>

#include <veskplatform/vfs.h>

#include <QDBusArgument>

#include <grp.h>
#include <unistd.h>

#include <vector>

namespace VeskFM
{

EntryData::~EntryData() = default;

QString EntryData::localPath() const
{
    return {};
}

QString EntryData::absoluteFilePath() const
{
    return localPath();
}

QString EntryData::fileName() const
{
    const QString whole = path();
    return whole.mid(whole.lastIndexOf(QLatin1Char('/')) + 1);
}

QString EntryData::lastPathSection() const
{
    return fileName();
}

QString EntryData::symLinkTarget() const
{
    return {};
}

QString EntryData::archiveMountPointOrLocalPath() const
{
    return localPath();
}

qint64 EntryData::fileSize() const
{
    return 0;
}

Entry::Entry() = default;

Entry::Entry(EntryData *data)
    : m_data(data)
{
}

Entry::Entry(const Entry &other) = default;
Entry::Entry(Entry &&other) noexcept = default;
Entry &Entry::operator=(const Entry &other) = default;
Entry &Entry::operator=(Entry &&other) noexcept = default;
Entry::~Entry() = default;

bool Entry::isNull() const
{
    return !m_data;
}

const EntryData *Entry::data() const
{
    return m_data.data();
}

int Entry::type() const
{
    return m_data ? m_data->type() : 0;
}

bool Entry::is(EntryTrait trait) const
{
    return m_data && m_data->is(trait);
}

#define VESK_ENTRY_TEXT(name)                                                                                          \
    QString Entry::name() const                                                                                        \
    {                                                                                                                  \
        return m_data ? m_data->name() : QString();                                                                    \
    }
VESK_ENTRY_TEXT(path)
VESK_ENTRY_TEXT(localPath)
VESK_ENTRY_TEXT(absoluteFilePath)
VESK_ENTRY_TEXT(fileName)
VESK_ENTRY_TEXT(lastPathSection)
VESK_ENTRY_TEXT(symLinkTarget)
VESK_ENTRY_TEXT(archiveMountPointOrLocalPath)
#undef VESK_ENTRY_TEXT

qint64 Entry::fileSize() const
{
    return m_data ? m_data->fileSize() : 0;
}

#define VESK_ENTRY_PREDICATE(trait)                                                                                    \
    bool Entry::is##trait() const                                                                                      \
    {                                                                                                                  \
        return is(EntryTrait::trait);                                                                                  \
    }
VESK_ENTRY_PREDICATE(Exists)
VESK_ENTRY_PREDICATE(File)
VESK_ENTRY_PREDICATE(Dir)
VESK_ENTRY_PREDICATE(SymLink)
VESK_ENTRY_PREDICATE(Hidden)
VESK_ENTRY_PREDICATE(Executable)
VESK_ENTRY_PREDICATE(Root)
VESK_ENTRY_PREDICATE(FSRoot)
VESK_ENTRY_PREDICATE(ArchiveMountPoint)
VESK_ENTRY_PREDICATE(NetworkResource)
VESK_ENTRY_PREDICATE(Place)
VESK_ENTRY_PREDICATE(PurePlace)
VESK_ENTRY_PREDICATE(DirPlace)
VESK_ENTRY_PREDICATE(ComputerPlace)
VESK_ENTRY_PREDICATE(HomeDirPlace)
VESK_ENTRY_PREDICATE(TrashDirPlace)
VESK_ENTRY_PREDICATE(FileSystemRootPlace)
VESK_ENTRY_PREDICATE(FavoritesPlace)
VESK_ENTRY_PREDICATE(FavoritePlace)
VESK_ENTRY_PREDICATE(FavoriteNetworkPlace)
VESK_ENTRY_PREDICATE(StorageDevicesPlace)
VESK_ENTRY_PREDICATE(StoragePlace)
VESK_ENTRY_PREDICATE(CdromDriveStoragePlace)
VESK_ENTRY_PREDICATE(NetworkPlace)
VESK_ENTRY_PREDICATE(NetworkResourcesPlace)
VESK_ENTRY_PREDICATE(SambaNetworkPlace)
VESK_ENTRY_PREDICATE(SmbNetworkPlace)
VESK_ENTRY_PREDICATE(FtpNetworkPlace)
VESK_ENTRY_PREDICATE(SFtpNetworkPlace)
VESK_ENTRY_PREDICATE(SambaServerPlace)
VESK_ENTRY_PREDICATE(SmbServerPlace)
VESK_ENTRY_PREDICATE(SambaWorkgroupPlace)
VESK_ENTRY_PREDICATE(SambaSharePlace)
VESK_ENTRY_PREDICATE(FtpSharePlace)
VESK_ENTRY_PREDICATE(SFtpSharePlace)
#undef VESK_ENTRY_PREDICATE

QString Entry::groupName(unsigned int gid)
{
    const long hint = sysconf(_SC_GETGR_R_SIZE_MAX);
    std::vector<char> buffer(hint > 0 ? size_t(hint) : 1024);
    struct group record
    {
    };
    struct group *found = nullptr;
    while (getgrgid_r(gid, &record, buffer.data(), buffer.size(), &found) == ERANGE)
        buffer.resize(buffer.size() * 2); // groups with many members need more than the hint says
    return found ? QString::fromLocal8Bit(found->gr_name) : QString();
}

bool Entry::operator==(const Entry &other) const
{
    if (m_data == other.m_data)
        return true;
    return m_data && other.m_data && m_data->path() == other.m_data->path();
}

bool Entry::operator!=(const Entry &other) const
{
    return !(*this == other);
}

bool Entry::operator<(const Entry &other) const
{
    if (!m_data || !other.m_data)
        return !m_data && other.m_data;
    return m_data->path() < other.m_data->path();
}

uint qHash(const Entry &entry, uint seed)
{
    return entry.isNull() ? seed : qHash(entry.path(), seed);
}

QDBusArgument &operator<<(QDBusArgument &argument, const Entry &entry)
{
    argument.beginStructure();
    argument << entry.path();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Entry &entry)
{
    QString path;
    argument.beginStructure();
    argument >> path;
    argument.endStructure();
    entry = path.isEmpty() ? Entry() : VFS::ptr()->entry(path);
    return argument;
}

} // namespace VeskFM
