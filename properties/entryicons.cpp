// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entryicons_p.h"

#include <veskfm/corepaths.h>
#include <veskfm/trash.h>
#include <veskplatform/storageplace.h>
#include <veskplatform/veskicon.h>
#include <veskplatform/veskicontheme.h>

#include <QFileInfo>
#include <QMap>
#include <QPixmap>

namespace VeskFM
{

namespace
{

struct PlaceIcon
{
    EntryTrait trait;
    QString name;
};

template <size_t count> QString firstMatch(const EntryData &data, const PlaceIcon (&icons)[count])
{
    for (const PlaceIcon &icon : icons) {
        if (data.is(icon.trait))
            return icon.name;
    }
    return {};
}

bool showsTrash(const Entry &entry)
{
    // A regular file is never the trash directory; the question costs too much to be asked of every one.
    return entry.isTrashDirPlace() || (!entry.isFile() && Trash::ptr()->isTrash(entry));
}

constexpr int maxLinkDepth = 40; // as the kernel's own limit

QString fileIconName(const QString &path, const QString &mimeType, bool full, bool executable, int depth)
{
    if (mimeType == QLatin1String("inode/symlink")) {
        const QFileInfo target(QFileInfo(path).symLinkTarget());
        if (depth >= maxLinkDepth || !target.exists())
            return QStringLiteral("unknown");
        const QString targetPath = target.filePath();
        return fileIconName(targetPath, mimeTypeForFile(targetPath, full), full,
                            target.isFile() && target.isExecutable(), depth + 1);
    }
    if (executable && mimeType == QLatin1String("application/octet-stream"))
        return QStringLiteral("system-run");
    const QString name = VeskIconTheme::instance()->getMimeIconName(mimeType);
    return name.isEmpty() ? QStringLiteral("unknown") : name;
}

} // namespace

QIcon IconRecipe::make() const
{
    if (!image.isNull())
        return QIcon(QPixmap::fromImage(image));
    QString chosen = name;
    if (!fallback.isEmpty() && (name.isEmpty() || (!keepsName && QIcon::fromTheme(name).isNull())))
        chosen = fallback;
    QMap<Qt::Corner, QString> emblems;
    if (showsMounted)
        emblems.insert(Qt::BottomRightCorner, QStringLiteral("emblem-mounted"));
    const QIcon icon = VeskIcon::fromTheme(chosen, emblems, QIcon());
    return icon.isNull() && !lastResort.isEmpty() ? VeskIcon::fromTheme(lastResort) : icon;
}

QString placeIconName(const Entry &entry)
{
    static const PlaceIcon beforeTrash[] = {
        {EntryTrait::ComputerPlace, QStringLiteral("computer")},
        {EntryTrait::FavoritesPlace, QStringLiteral("user-bookmarks")},
        {EntryTrait::NetworkPlace, QStringLiteral("network")},
        {EntryTrait::SambaNetworkPlace, QStringLiteral("samba")},
        {EntryTrait::FileSystemRootPlace, QStringLiteral("folder")},
        {EntryTrait::HomeDirPlace, QStringLiteral("user-home")},
    };
    static const PlaceIcon afterTrash[] = {
        {EntryTrait::StorageDevicesPlace, QStringLiteral("inode-blockdevice")},
        {EntryTrait::ArchiveMountPoint, QStringLiteral("folder-tar")},
        {EntryTrait::SambaSharePlace, QStringLiteral("folder-remote")},
        {EntryTrait::FtpSharePlace, QStringLiteral("folder-remote")},
        {EntryTrait::SFtpSharePlace, QStringLiteral("folder-remote")},
        {EntryTrait::NetworkResourcesPlace, QStringLiteral("folder-remote")},
        {EntryTrait::SambaServerPlace, QStringLiteral("network-server")},
        {EntryTrait::SmbServerPlace, QStringLiteral("network-server")},
        {EntryTrait::SambaWorkgroupPlace, QStringLiteral("network-workgroup")},
        {EntryTrait::SmbNetworkPlace, QStringLiteral("samba")},
        {EntryTrait::FtpNetworkPlace, QStringLiteral("ftp")},
        {EntryTrait::SFtpNetworkPlace, QStringLiteral("utilities-terminal")},
        {EntryTrait::FavoriteNetworkPlace, QStringLiteral("folder")},
    };
    const EntryData *data = entry.data();
    if (!data)
        return {};
    QString name = firstMatch(*data, beforeTrash);
    if (name.isEmpty() && showsTrash(entry))
        name = Trash::ptr()->isEmpty() ? QStringLiteral("user-trash") : QStringLiteral("user-trash-full");
    if (name.isEmpty())
        name = firstMatch(*data, afterTrash);
    if (name.isEmpty() && data->type() == Entry::VirtualDir)
        name = QStringLiteral("folder");
    return name;
}

QString storageIconName(const StoragePlace &place)
{
    const auto ownElse = [&place](const QString &name) { return place.iconName().isEmpty() ? name : place.iconName(); };
    switch (place.type()) {
    case 1:
        return QStringLiteral("media-floppy");
    case 2:
        return QStringLiteral("media-optical");
    case 3:
        return ownElse(QStringLiteral("drive-removable-media-usb-pendrive"));
    case 4:
        return QStringLiteral("drive-harddisk");
    case 5:
        return ownElse(QStringLiteral("media-flash-sd-mmc"));
    case 6:
        return ownElse(QStringLiteral("media-flash-memory-stick"));
    case 7:
        return ownElse(QStringLiteral("media-flash-compact-flash"));
    case 8:
        return ownElse(QStringLiteral("media-flash-smart-media"));
    case 10:
        return QStringLiteral("multimedia-player");
    default:
        return {};
    }
}

QString fileIconName(const QString &path, const QString &mimeType, bool full, bool executable)
{
    return fileIconName(path, mimeType, full, executable, 0);
}

} // namespace VeskFM
