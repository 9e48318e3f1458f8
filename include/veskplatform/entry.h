// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QExplicitlySharedDataPointer>
#include <QMetaType>
#include <QSharedData>
#include <QString>

class QDBusArgument;

namespace VeskFM
{

/// What an entry can be asked about itself: one value for each predicate of Entry, without its "is".
enum class EntryTrait {
    Exists,
    File,
    Dir,
    SymLink,
    Hidden,
    Executable,
    Root,
    FSRoot,
    ArchiveMountPoint,
    NetworkResource,
    Place,
    PurePlace,
    DirPlace,
    ComputerPlace,
    HomeDirPlace,
    TrashDirPlace,
    FileSystemRootPlace,
    FavoritesPlace,
    FavoritePlace,
    FavoriteNetworkPlace,
    StorageDevicesPlace,
    StoragePlace,
    CdromDriveStoragePlace,
    NetworkPlace,
    NetworkResourcesPlace,
    SambaNetworkPlace,
    SmbNetworkPlace,
    FtpNetworkPlace,
    SFtpNetworkPlace,
    SambaServerPlace,
    SmbServerPlace,
    SambaWorkgroupPlace,
    SambaSharePlace,
    FtpSharePlace,
    SFtpSharePlace
};

/// What a VFS knows of one node. A VFS derives its own; entries share it.
///
/// Thread: read from any threads at the same time.
class VESKPLATFORM_EXPORT EntryData : public QSharedData
{
public:
    virtual ~EntryData();
    /// The path in the VFS: the identity of the node. Two entries with the same path are the same node.
    virtual QString path() const = 0;
    /// The kind code, see Entry::Type.
    virtual int type() const = 0;
    virtual bool is(EntryTrait trait) const = 0;
    virtual QString localPath() const;                    ///< empty unless overridden
    virtual QString absoluteFilePath() const;             ///< localPath() unless overridden
    virtual QString fileName() const;                     ///< what follows the last "/" of path() unless overridden
    virtual QString lastPathSection() const;              ///< fileName() unless overridden
    virtual QString symLinkTarget() const;                ///< empty unless overridden
    virtual QString archiveMountPointOrLocalPath() const; ///< localPath() unless overridden
    virtual qint64 fileSize() const;                      ///< bytes; 0 unless overridden
};

/// One node of the virtual file system: a file, a directory, a link, an archive, or a virtual place.
///
/// A small value that shares what the VFS knows of the node. A null entry names nothing: its texts are empty, its
/// numbers 0 and all its predicates false. It travels through queued signals as "VeskFM::Entry" and over the bus by its
/// path.
///
/// Thread: any; a single object is used by one thread at a time, as every value is.
class VESKPLATFORM_EXPORT Entry
{
public:
    /// The kind codes that the library gives meaning to. 10002 stays unused.
    enum Type {
        VirtualDir = 1000,
        File = 10000,
        Dir = 10001,
        FileLink = 10003,
        DirLink = 10004,
        Archive = 10005,
        ArchiveLink = 10006
    };

    Entry();
    explicit Entry(EntryData *data); ///< shares ownership of @p data; null gives a null entry
    Entry(const Entry &other);
    Entry(Entry &&other) noexcept;
    Entry &operator=(const Entry &other);
    Entry &operator=(Entry &&other) noexcept;
    ~Entry();

    bool isNull() const;
    const EntryData *data() const; ///< owned by the entries that share it; null for a null entry
    int type() const;              ///< the kind code; 0 for a null entry

    QString path() const;      ///< the VFS path; for local files the absolute path
    QString localPath() const; ///< empty when nothing on the local disk stands behind the entry
    QString absoluteFilePath() const;
    QString fileName() const;
    QString lastPathSection() const;
    QString symLinkTarget() const;
    QString archiveMountPointOrLocalPath() const;
    qint64 fileSize() const; ///< bytes

    bool isExists() const;
    bool isFile() const;
    bool isDir() const;
    bool isSymLink() const;
    bool isHidden() const;
    bool isExecutable() const;
    bool isRoot() const;
    bool isFSRoot() const;
    bool isArchiveMountPoint() const;
    bool isNetworkResource() const;
    bool isPlace() const;
    bool isPurePlace() const;
    bool isDirPlace() const;
    bool isComputerPlace() const;
    bool isHomeDirPlace() const;
    bool isTrashDirPlace() const;
    bool isFileSystemRootPlace() const;
    bool isFavoritesPlace() const;
    bool isFavoritePlace() const;
    bool isFavoriteNetworkPlace() const;
    bool isStorageDevicesPlace() const;
    bool isStoragePlace() const;
    bool isCdromDriveStoragePlace() const;
    bool isNetworkPlace() const;
    bool isNetworkResourcesPlace() const;
    bool isSambaNetworkPlace() const;
    bool isSmbNetworkPlace() const;
    bool isFtpNetworkPlace() const;
    bool isSFtpNetworkPlace() const;
    bool isSambaServerPlace() const;
    bool isSmbServerPlace() const;
    bool isSambaWorkgroupPlace() const;
    bool isSambaSharePlace() const;
    bool isFtpSharePlace() const;
    bool isSFtpSharePlace() const;

    /// The name of the group with the id @p gid; empty when the system knows none.
    static QString groupName(unsigned int gid);

    bool operator==(const Entry &other) const; ///< same path(), or both null
    bool operator!=(const Entry &other) const;
    bool operator<(const Entry &other) const; ///< by path(), null first; for sorted containers

private:
    bool is(EntryTrait trait) const;

    QExplicitlySharedDataPointer<EntryData> m_data;
};

VESKPLATFORM_EXPORT uint qHash(const Entry &entry, uint seed = 0);
/// Bus form of an entry, signature (s): its path.
VESKPLATFORM_EXPORT QDBusArgument &operator<<(QDBusArgument &argument, const Entry &entry);
/// Reads what operator<< wrote. The path becomes an entry through VFS::entry(); a null one where there is none.
VESKPLATFORM_EXPORT const QDBusArgument &operator>>(const QDBusArgument &argument, Entry &entry);

} // namespace VeskFM

Q_DECLARE_TYPEINFO(VeskFM::Entry, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(VeskFM::Entry)
