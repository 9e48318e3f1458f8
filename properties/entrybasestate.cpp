// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrybasestate_p.h"

#include <veskfm/corepaths.h>
#include <veskfm/desktopentrypool.h>
#include <veskfm/entryviewparameters.h>
#include <veskplatform/favoriteplace.h>
#include <veskplatform/storageplace.h>
#include <veskplatform/veskthumbnails.h>
#include <veskplatform/vfs.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>

#include <atomic>
#include <mutex>

namespace VeskFM
{

namespace
{

enum class DesktopFile { Entry, Directory }; // a ".desktop" file, or the ".directory" file of a directory

std::atomic<bool> denseScreen{false};

const QString &directoryMimeType()
{
    static const QString name = QStringLiteral("inode/directory");
    return name;
}

const QString &folderIcon()
{
    static const QString name = QStringLiteral("folder");
    return name;
}

const QString &unknownIcon()
{
    static const QString name = QStringLiteral("unknown");
    return name;
}

bool isDesktopFile(const Entry &entry)
{
    return entry.isFile() && entry.fileName().endsWith(QLatin1String(".desktop"))
        && !entry.absoluteFilePath().isEmpty(); // in an archive there is nothing to be read
}

bool isChildOfHome(const Entry &entry)
{
    const QString home = VFS::ptr()->homeEntry().localPath();
    return !home.isEmpty() && VFS::parentDirPath(entry.localPath()) == home;
}

bool isOnSlowFileSystem(const Entry &entry)
{
    return VFS::ptr()->isOnSlowFileSystem(entry.path(), entry.localPath());
}

/// Whether there is nothing in the state but a MIME type and an icon name.
bool isPlain(const EntryBaseState &state)
{
    return state.icon.isPlain() && state.displayName.isEmpty() && state.toolTip.isEmpty();
}

bool looksLike(const EntryBaseState &state, const EntryBaseState &plain)
{
    return isPlain(state) && !state.icon.showsMounted && state.icon.name == plain.icon.name
        && state.mimeType == plain.mimeType;
}

/// The state itself, or the one that all entries share that look like it.
EntryBaseStatePtr published(EntryBaseState &&state)
{
    if (!isPlain(state))
        return EntryBaseStatePtr(new EntryBaseState(std::move(state)));
    static std::mutex mutex;
    static auto *const shared =
        new QHash<QString, EntryBaseStatePtr>; // one for each MIME type and icon; alive until the end
    const QString key = state.mimeType + QChar(state.icon.showsMounted ? u'\n' : u'\0') + state.icon.name;
    const std::lock_guard<std::mutex> lock(mutex);
    EntryBaseStatePtr &known = (*shared)[key];
    if (!known)
        known = EntryBaseStatePtr(new EntryBaseState(std::move(state)));
    return known;
}

EntryBaseStatePtr plainState(const QString &mimeType, const QString &iconName)
{
    EntryBaseState state;
    state.mimeType = mimeType;
    state.icon.name = iconName;
    return published(std::move(state));
}

/// Names and draws an entry after a desktop-entry file. Returns false, with nothing changed, when that is not valid.
bool takeDesktopFile(EntryBaseState &state, const QString &path, DesktopFile kind)
{
    const VeskUIDesktopEntry file = DesktopEntryPool::ptr()->desktopEntry(path);
    if (!file.isValid())
        return false;
    const bool isEntry = kind == DesktopFile::Entry;
    const EntryViewParameters *parameters = EntryViewParameters::ptr();
    state.mimeType = QStringLiteral("application/x-desktop");

    const QString name = file.getBestAvailableName().trimmed();
    const QString comment = file.getBestAvailableComment().trimmed();
    if (!comment.isEmpty())
        state.toolTip = name + QLatin1Char('\n') + comment;
    if (isEntry || parameters->useMetaInfoForDirNames())
        state.displayName = name;
    if (isEntry && name.isEmpty())
        state.displayName = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);

    state.icon = IconRecipe();
    if (isEntry || parameters->useMetaInfoForDirIcons())
        state.icon.name = file.getBestAvailableIcon();
    state.icon.fallback = isEntry ? QStringLiteral("application-x-desktop") : folderIcon();
    state.icon.keepsName = file.getType() == QLatin1String("Link");
    return true;
}

/// The name of a place, where it is not just the last section of its path.
QString placeName(const Entry &entry)
{
    const auto withLocalPath = [&entry](const QString &name) {
        const QString localPath = entry.localPath();
        // Not by arg(): a label may hold a "%1" of its own.
        return localPath.isEmpty() ? name : QString(name + QLatin1String(" (") + localPath + QLatin1Char(')'));
    };
    if (entry.isCdromDriveStoragePlace())
        return withLocalPath(VFS::ptr()->storagePlace(entry).labelName());
    if (entry.isStoragePlace())
        return withLocalPath(entry.lastPathSection());
    if (entry.isFavoritePlace())
        return VFS::ptr()->favoritePlace(entry).name();
    if (entry.isDirPlace() && entry.isNetworkResource())
        return entry.lastPathSection();
    return {};
}

/// Names and draws a directory, after its ".directory" file where it has one and the parameters want it.
void takeDirectory(EntryBaseState &state, const Entry &entry)
{
    const EntryViewParameters *parameters = EntryViewParameters::ptr();
    const QString localPath = entry.localPath();
    const QString file = localPath + QLatin1String("/.directory");
    // An earlier ".directory" file must not survive the parameter that wanted it, or its removal.
    state.displayName = placeName(entry);
    state.toolTip.clear();
    const bool wantsFile = parameters->useMetaInfoForDirNames() || parameters->useMetaInfoForDirIcons();
    if (wantsFile && !localPath.isEmpty() && !isOnSlowFileSystem(entry) && QFileInfo::exists(file)) {
        if (!takeDesktopFile(state, file, DesktopFile::Directory) && state.icon.isEmpty())
            state.icon.name = folderIcon();
    } else {
        state.icon = IconRecipe();
        state.icon.name = folderIcon();
    }
    state.mimeType = directoryMimeType();
}

void takeKindIcon(IconRecipe &icon, const Entry &entry)
{
    icon.name = placeIconName(entry);
    if (!icon.name.isEmpty())
        return;
    if (entry.isStoragePlace()) {
        const StoragePlace place = VFS::ptr()->storagePlace(entry);
        icon.name = storageIconName(place);
        icon.showsMounted = place.isMounted();
    }
    if (icon.name.isEmpty())
        icon.name = entry.isDir() || entry.isDirPlace() ? folderIcon() : unknownIcon();
}

bool wantsThumbnail(const Entry &entry)
{
    const EntryViewParameters *parameters = EntryViewParameters::ptr();
    const bool here = parameters->showThumbnails();
    const bool inNetwork = parameters->showThumbnailsInNetwork();
    return here == inNetwork ? here : inNetwork == VFS::ptr()->isOnNonHomeNetworkFileSystem(entry);
}

QImage thumbnail(const Entry &entry, const QString &mimeType)
{
    const EntryViewParameters *parameters = EntryViewParameters::ptr();
    // In 32 bits, so that 2048 MB and more mean no limit, as 0 does; shifted unsigned, which is defined for all values.
    const int limit = int(unsigned(parameters->maxImageFileSizeToShowThumbnailMB()) << 20);
    const QStringList groups = parameters->shownThumbnailGroups();
    for (const QString &group : groups) {
        if (!VeskThumbnails::isMimeTypeFromGroup(mimeType, group))
            continue;
        if (group == QLatin1String("image") && limit >= 1 && entry.fileSize() > limit)
            return {};
        return VeskThumbnails::thumbnailImage(entry.localPath(), denseScreen ? 1 : 0, mimeType);
    }
    return {};
}

bool isDeadLink(const Entry &entry)
{
    if (!entry.isSymLink())
        return false;
    if (entry.localPath().isEmpty()) // only the VFS knows what is there
        return VFS::ptr()->symLinkTargetEntry(entry).isNull();
    const QString target = entry.symLinkTarget();
    // A relative target counts from the directory that holds the link.
    const QString base = VFS::parentDirPath(entry.localPath());
    return !QFileInfo::exists(QFileInfo(target).isAbsolute() || target.isEmpty() ? target
                                                                                 : base + QLatin1Char('/') + target);
}

void takeFile(EntryBaseState &state, const Entry &entry)
{
    const bool readContent = !entry.localPath().isEmpty() && !isOnSlowFileSystem(entry);
    const QString path = entry.localPath().isEmpty() ? entry.path() : entry.localPath();
    if (state.mimeType.isEmpty())
        state.mimeType = mimeTypeForFile(path, readContent);
    const QImage image =
        !entry.localPath().isEmpty() && wantsThumbnail(entry) ? thumbnail(entry, state.mimeType) : QImage();
    state.icon = IconRecipe();
    if (image.isNull())
        state.icon.name = fileIconName(path, state.mimeType, readContent, entry.isExecutable());
    else // in the form that screens draw without converting a copy
        state.icon.image =
            image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

} // namespace

EntryBaseStatePtr EntryBaseState::empty()
{
    static const EntryBaseStatePtr state(new EntryBaseState);
    return state;
}

EntryBaseStatePtr EntryBaseState::prepared(const Entry &entry)
{
    static const EntryBaseStatePtr plainFile = plainState(QString(), unknownIcon());
    static const EntryBaseStatePtr plainDirectory = plainState(directoryMimeType(), folderIcon());
    EntryBaseState state;
    if (!entry.isPlace()) {
        if (entry.isFile()) {
            if (isDesktopFile(entry) && takeDesktopFile(state, entry.absoluteFilePath(), DesktopFile::Entry))
                return published(std::move(state));
        } else if (entry.isDir()) {
            if (isChildOfHome(entry)) {
                takeDirectory(state, entry);
                return published(std::move(state));
            }
            state.mimeType = directoryMimeType();
        }
        if (entry.isFSRoot())
            state.displayName = QStringLiteral("/");
    }
    if (state.displayName.isEmpty())
        state.displayName = placeName(entry);
    takeKindIcon(state.icon, entry);
    // Nearly every row is one of the two, and needs no look-up.
    if (looksLike(state, *plainFile))
        return plainFile;
    return looksLike(state, *plainDirectory) ? plainDirectory : published(std::move(state));
}

EntryBaseStatePtr EntryBaseState::refined(const EntryBaseState &before, const Entry &entry, bool presentationUpdate)
{
    if (entry.isNull() || entry.isPurePlace() || entry.isStoragePlace())
        return {};
    EntryBaseState state = before;
    if (isDesktopFile(entry)) {
        if (!before.icon.fallback.isEmpty())
            return {}; // drawn by the preparation
        // It was no desktop entry when it was prepared. Whether it has an icon all the same, only the theme knows.
        state.icon.lastResort = DesktopEntryPool::ptr()->desktopEntry(entry.absoluteFilePath()).getBestAvailableIcon();
        return state.icon.lastResort.isEmpty() ? EntryBaseStatePtr() : published(std::move(state));
    }
    if (entry.isFSRoot())
        return {};
    if (entry.isDir()) {
        if (!presentationUpdate && isChildOfHome(entry))
            return {}; // done by the preparation
        takeDirectory(state, entry);
        return published(std::move(state));
    }
    if (!placeIconName(entry).isEmpty()) { // a fixed icon, set by the preparation
        if (!entry.isArchiveMountPoint() || !state.mimeType.isEmpty())
            return {};
        state.mimeType = mimeTypeForFile(entry.path(), false);
        return published(std::move(state));
    }
    if (!entry.isExists() || isDeadLink(entry)) {
        state.icon = IconRecipe();
        state.icon.name = QStringLiteral("dialog-cancel");
    } else if (entry.isFile()) {
        takeFile(state, entry);
    } else {
        return {};
    }
    return published(std::move(state));
}

void noteDevicePixelRatio()
{
    if (const auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        denseScreen.store(application->devicePixelRatio() >= 2.0, std::memory_order_relaxed);
}

} // namespace VeskFM
