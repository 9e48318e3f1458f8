// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "settingskeys.h"

#include <veskfm/entryviewparameters.h>
#include <veskfm/settings.h>

#include <KUser>

#include <QStringList>

namespace VeskFM
{

// clang-format off
const std::array<SettingsKeyInfo, settingsKeyCount> settingsKeys = {{
    {SettingsKey::ServiceLifeTime, "serviceLifeTime", 0x1, nullptr},
    {SettingsKey::TrashSize, "trashSize", 0x2, nullptr},
    {SettingsKey::UseMetaInfoForDirNames, "useMetaInfoForDirNames", 0x4, &Settings::useMetaInfoForDirsChanged},
    {SettingsKey::UseMetaInfoForDirIcons, "useMetaInfoForDirIcons", 0x8, &Settings::useMetaInfoForDirsChanged},
    {SettingsKey::ShowFullPathInWindowTitle, "showFullPathInWindowTitle", 0x10, &Settings::showFullPathInWindowTitleChanged},
    {SettingsKey::ShowScaleSliderInStatusBar, "showScaleSliderInStatusBar", 0x20, &Settings::showScaleSliderInStatusBarChanged},
    {SettingsKey::ShowDiskSpaceInfoInStatusBar, "showDiskSpaceInfoInStatusBar", 0x40, &Settings::showDiskSpaceInfoInStatusBarChanged},
    {SettingsKey::ShowThumbnails, "showThumbnails", 0x200, &Settings::showThumbnailsChanged},
    {SettingsKey::ShowThumbnailsInNetwork, "showThumbnailsInNetwork", 0x400, &Settings::showThumbnailsInNetworkChanged},
    {SettingsKey::ShownThumbnailGroups, "shownThumbnailGroups", 0x800, &Settings::shownThumbnailGroupsChanged},
    {SettingsKey::MaxImageFileSizeToShowThumbnailMB, "maxImageFileSizeToShowThumbnailMB", 0x1000, &Settings::maxImageFileSizeToShowThumbnailChanged},
    {SettingsKey::ShowDeleteItemInDirViewCtxMenu, "showDeleteItemInDirViewCtxMenu", 0x80, nullptr},
    {SettingsKey::ShowViewSettingsInDirViewCtxMenu, "showViewSettingsInDirViewCtxMenu", 0x100, nullptr},
    {SettingsKey::NumericSorting, "numericSorting", 0x2000, &Settings::numericSortingEnabledChanged},
    {SettingsKey::LocaleSorting, "localeSorting", 0x4000, &Settings::localeSortingEnabledChanged},
    {SettingsKey::ShowFileSizeInBytes, "showFileSizeInBytes", 0x8000, &Settings::showFileSizeInBytesChanged},
    {SettingsKey::AlternateRowColorsInTable, "alternateRowColorsInTable", 0x10000, &Settings::alternateRowColorsInTableChanged},
    {SettingsKey::AllowTrashActionFromNetwork, "allowTrashActionFromNetwork", 0x20000, nullptr},
    {SettingsKey::FillMailtoSubjectFromAttachments, "fillMailtoSubjectFromAttachments", 0, nullptr},
    {SettingsKey::HiddenTreeItems, "hiddenTreeItems", 0x40000, &Settings::hiddenTreeItemsChanged},
    {SettingsKey::EnableUndoAction, "enableUndoAction", 0, nullptr},
    {SettingsKey::SingleLocationBar, "singleLocationBar", 0, nullptr},
    {SettingsKey::HiddenToolBarActions, "hiddenToolBarActions", 0x80000, &Settings::hiddenToolBarActionsChanged},
    {SettingsKey::ZarnelVersion, "zarnelVersion", 0, nullptr},
    {SettingsKey::OldStylePlacesWidget, "oldStylePlacesWidget", 0, nullptr},
    {SettingsKey::PlacesCollapsible, "placesCollapsible", 0, nullptr},
    {SettingsKey::AutoOpenEcryptedArchives, "autoOpenEcryptedArchives", 0, nullptr}, // published spelling
    {SettingsKey::FollowSmbToNetworkResource, "followSmbToNetworkResource", 0x100000, nullptr}, // silent, though it has a signal
    {SettingsKey::HiddenCategories, "hiddenCategories", 0x200000, &Settings::hiddenCategoriesChanged},
}};
// clang-format on

const std::array<SettingsKey, 22> writtenSettingsKeys = {
    SettingsKey::ServiceLifeTime,
    SettingsKey::TrashSize,
    SettingsKey::UseMetaInfoForDirNames,
    SettingsKey::UseMetaInfoForDirIcons,
    SettingsKey::ShowFullPathInWindowTitle,
    SettingsKey::ShowScaleSliderInStatusBar,
    SettingsKey::ShowDiskSpaceInfoInStatusBar,
    SettingsKey::ShowDeleteItemInDirViewCtxMenu,
    SettingsKey::ShowViewSettingsInDirViewCtxMenu,
    SettingsKey::ShowThumbnails,
    SettingsKey::ShowThumbnailsInNetwork,
    SettingsKey::ShownThumbnailGroups,
    SettingsKey::MaxImageFileSizeToShowThumbnailMB,
    SettingsKey::HiddenTreeItems,
    SettingsKey::NumericSorting,
    SettingsKey::LocaleSorting,
    SettingsKey::ShowFileSizeInBytes,
    SettingsKey::AlternateRowColorsInTable,
    SettingsKey::AllowTrashActionFromNetwork,
    SettingsKey::HiddenToolBarActions,
    SettingsKey::FollowSmbToNetworkResource,
    SettingsKey::HiddenCategories,
};

bool isAdministrator()
{
    const KUser user(KUser::UseEffectiveUID);
    return user.isSuperUser() || user.groupNames().contains(QLatin1String("zarnel-admin"));
}

QVariant settingsDefault(SettingsKey key)
{
    const EntryViewParameters *const views = EntryViewParameters::ptr();
    switch (key) {
    case SettingsKey::ServiceLifeTime:
        return 20000;
    case SettingsKey::TrashSize:
        return qulonglong(2048);
    case SettingsKey::UseMetaInfoForDirNames:
        return views->useMetaInfoForDirNames();
    case SettingsKey::UseMetaInfoForDirIcons:
        return views->useMetaInfoForDirIcons();
    case SettingsKey::ShowThumbnails:
        return views->showThumbnails();
    case SettingsKey::ShowThumbnailsInNetwork:
        return views->showThumbnailsInNetwork();
    case SettingsKey::ShownThumbnailGroups:
        return views->shownThumbnailGroups();
    case SettingsKey::MaxImageFileSizeToShowThumbnailMB:
        return views->maxImageFileSizeToShowThumbnailMB();
    case SettingsKey::NumericSorting:
        return views->isNumericSortingEnabled();
    case SettingsKey::LocaleSorting:
        return views->isLocaleSortingEnabled();
    case SettingsKey::ShowFileSizeInBytes:
        return views->showFileSizeInBytes();
    case SettingsKey::ZarnelVersion:
        return 8;
    case SettingsKey::HiddenTreeItems:
        return isAdministrator() ? QStringList() : QStringList(QStringLiteral("FileSystem"));
    case SettingsKey::HiddenToolBarActions:
    case SettingsKey::HiddenCategories:
        return QStringList();
    case SettingsKey::ShowScaleSliderInStatusBar:
    case SettingsKey::ShowDiskSpaceInfoInStatusBar:
    case SettingsKey::ShowDeleteItemInDirViewCtxMenu:
    case SettingsKey::ShowViewSettingsInDirViewCtxMenu:
    case SettingsKey::AlternateRowColorsInTable:
    case SettingsKey::FillMailtoSubjectFromAttachments:
    case SettingsKey::EnableUndoAction:
    case SettingsKey::AutoOpenEcryptedArchives:
        return true;
    case SettingsKey::ShowFullPathInWindowTitle:
    case SettingsKey::AllowTrashActionFromNetwork:
    case SettingsKey::SingleLocationBar:
    case SettingsKey::OldStylePlacesWidget:
    case SettingsKey::PlacesCollapsible:
    case SettingsKey::FollowSmbToNetworkResource:
        return false;
    }
    return {};
}

} // namespace VeskFM
