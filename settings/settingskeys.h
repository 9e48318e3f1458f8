// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QVariant>
#include <QtGlobal>

#include <array>

namespace VeskFM
{

class Settings;

/// The settings in the order in which they are read.
enum class SettingsKey {
    ServiceLifeTime,
    TrashSize,
    UseMetaInfoForDirNames,
    UseMetaInfoForDirIcons,
    ShowFullPathInWindowTitle,
    ShowScaleSliderInStatusBar,
    ShowDiskSpaceInfoInStatusBar,
    ShowThumbnails,
    ShowThumbnailsInNetwork,
    ShownThumbnailGroups,
    MaxImageFileSizeToShowThumbnailMB,
    ShowDeleteItemInDirViewCtxMenu,
    ShowViewSettingsInDirViewCtxMenu,
    NumericSorting,
    LocaleSorting,
    ShowFileSizeInBytes,
    AlternateRowColorsInTable,
    AllowTrashActionFromNetwork,
    FillMailtoSubjectFromAttachments,
    HiddenTreeItems,
    EnableUndoAction,
    SingleLocationBar,
    HiddenToolBarActions,
    ZarnelVersion,
    OldStylePlacesWidget,
    PlacesCollapsible,
    AutoOpenEcryptedArchives,
    FollowSmbToNetworkResource,
    HiddenCategories
};
constexpr int settingsKeyCount = int(SettingsKey::HiddenCategories) + 1;

struct SettingsKeyInfo
{
    SettingsKey key;
    const char *name;
    quint32 bit;                 ///< in the mask of modified keys; 0 for a key that the library only reads
    void (Settings::*changed)(); ///< null for a key that changes silently
};

/// Indexed by key.
extern const std::array<SettingsKeyInfo, settingsKeyCount> settingsKeys;

/// The keys that are written, in the order in which they are.
extern const std::array<SettingsKey, 22> writtenSettingsKeys;

/// Whether the effective user is the super-user or a member of "zarnel-admin".
bool isAdministrator();

/// The value of a key that no file names; its type is the type of the key. Some come from the view parameters.
QVariant settingsDefault(SettingsKey key);

} // namespace VeskFM
