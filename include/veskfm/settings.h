// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QObject>
#include <QStringList>

#include <atomic>
#include <memory>

namespace VeskFM
{

class SettingsPrivate;

/// The user's settings: kept in memory, written at once when changed, read again when another process changes the file
/// (organisation "tessaro", application "vesk-fm", group "Global"), each change announced by its signal.
///
/// While the file cannot be read or written, values stay as they are and changes are kept for the next sync() that
/// succeeds; a broken file is left untouched until somebody repairs it.
///
/// Thread: main.
class VESKFM_EXPORT Settings : public QObject
{
    Q_OBJECT

public:
    explicit Settings(QObject *parent = nullptr);
    ~Settings() override;

    /// The one instance, made on first use and destroyed when the process exits. Not before main(). Without an
    /// application object the file is watched as soon as there is one.
    static Settings *ptr();

    int serviceLifeTime() const; ///< milliseconds that an idle bus service lives
    unsigned long long trashSize() const;
    bool useMetaInfoForDirNames() const;
    bool useMetaInfoForDirIcons() const;
    bool showFullPathInWindowTitle() const;
    bool showScaleSliderInStatusBar() const;
    bool showDiskSpaceInfoInStatusBar() const;
    bool showThumbnails() const;
    bool showThumbnailsInNetwork() const;
    QStringList shownThumbnailGroups() const;
    int maxImageFileSizeToShowThumbnailMB() const;
    bool showDeleteItemInDirViewCtxMenu() const;
    bool showViewSettingsInDirViewCtxMenu() const;
    bool isNumericSortingEnabled() const;
    bool isLocaleSortingEnabled() const;
    bool showFileSizeInBytes() const;
    bool alternateRowColorsInTable() const;
    bool allowTrashActionFromNetwork() const;
    bool fillMailtoSubjectFromAttachments() const;
    QStringList hiddenTreeItems() const;
    bool enableUndoAction() const;
    bool singleLocationBar() const;
    QStringList hiddenToolBarActions() const;
    int zarnelVersion() const; ///< 6 to 8
    bool oldStylePlacesWidget() const;
    bool isPlacesCollapsible() const;
    bool autoOpenEcryptedArchives() const; // published spelling, as is its key
    bool followSmbToNetworkResources() const;
    QStringList hiddenCategories() const;

    /// Setters write the file, unless the value is the current one; setServiceLifeTime() always writes.
    void setServiceLifeTime(int milliseconds);
    void setTrashSize(unsigned long long size);
    void setUseMetaInfoForDirNames(bool on);
    void setUseMetaInfoForDirIcons(bool on);
    void setShowFullPathInWindowTitle(bool on);
    void setShowScaleSliderInStatusBar(bool on);
    void setShowDiskSpaceInfoInStatusBar(bool on);
    void setShowThumbnails(bool on);
    void setShowThumbnailsInNetwork(bool on);
    void setShownThumbnailGroups(const QStringList &groups);
    void setMaxImageFileSizeToShowThumbnailMB(int megabytes);
    void setShowDeleteItemInDirViewCtxMenu(bool on);
    void setShowViewSettingsInDirViewCtxMenu(bool on);
    void setNumericSortingEnabled(bool on);
    void setLocaleSortingEnabled(bool on);
    void setShowFileSizeInBytes(bool on);
    void setAlternateRowColorsInTable(bool on);
    void setAllowTrashActionFromNetwork(bool on);
    void setHiddenTreeItems(const QStringList &items);
    void setHiddenToolBarActions(const QStringList &actions);
    void setFollowSmbToNetworkResources(bool on);
    void setHiddenCategories(const QStringList &categories);

    /// Writes the changed keys, and only those: what an administrator wrote is not overwritten by defaults.
    void sync();

    bool isKioskMode() const; ///< a kiosk session, or the user is a kiosk user
    bool isAdmin() const;     ///< the super-user, or a member of "zarnel-admin"
    /// The command lines that the kiosk allows; empty outside kiosk mode. Found at the first call in the process and
    /// the same for ever after. Any thread after the first call.
    QStringList kioskExecs() const;

    /// Adds to what is hidden where the file names no hidden actions. For the owners of toolbars, once at start.
    void addDefaultHiddenToolBarActions(const QStringList &actions);

public Q_SLOTS:
    void refresh(); ///< reads the file again and announces what is different
    void refreshHiddenToolBarActions();

Q_SIGNALS:
    void useMetaInfoForDirsChanged(); ///< names or icons
    void showFullPathInWindowTitleChanged();
    void showScaleSliderInStatusBarChanged();
    void showDiskSpaceInfoInStatusBarChanged();
    void showThumbnailsChanged();
    void showThumbnailsInNetworkChanged();
    void shownThumbnailGroupsChanged();
    void maxImageFileSizeToShowThumbnailChanged();
    void hiddenTreeItemsChanged();
    void numericSortingEnabledChanged();
    void localeSortingEnabledChanged();
    void showFileSizeInBytesChanged();
    void alternateRowColorsInTableChanged();
    void hiddenToolBarActionsChanged();
    void followSmbToNetworkResourceChanged(); ///< never emitted
    void hiddenCategoriesChanged();

private:
    friend class SettingsPrivate;
    friend class SettingsReaper;
    static std::atomic<Settings *> m_ptr;

    const std::unique_ptr<SettingsPrivate> d;
};

} // namespace VeskFM
