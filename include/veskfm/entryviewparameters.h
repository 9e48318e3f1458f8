// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QObject>
#include <QStringList>

#include <atomic>
#include <mutex>

namespace VeskFM
{

/// What changes how entries are named, drawn and sorted: a mirror of Settings that the models and the property engine
/// read often and from any thread.
///
/// It starts with defaults; the application calls initFromSettings() once when it has started.
/// Thread: getters any; the rest in the application's thread, where the signals come.
class VESKFM_EXPORT EntryViewParameters : public QObject
{
    Q_OBJECT

public:
    explicit EntryViewParameters(QObject *parent = nullptr);
    ~EntryViewParameters() override;

    /// The one instance, made on first use, by any thread, and destroyed when the process exits.
    static EntryViewParameters *ptr();

    /// Takes the values over from Settings and follows its changes from then on.
    void initFromSettings();

    bool useMetaInfoForDirNames() const; ///< names from ".directory" files; off at start for the super-user
    bool useMetaInfoForDirIcons() const;
    bool showThumbnails() const;
    bool showThumbnailsInNetwork() const;
    QStringList shownThumbnailGroups() const;
    int maxImageFileSizeToShowThumbnailMB() const; ///< megabytes; 0 means no limit
    bool isNumericSortingEnabled() const;
    bool isLocaleSortingEnabled() const;
    bool showFileSizeInBytes() const;
    bool isKineticScrollingEnabled() const;
    bool isPinchZoomEnabled() const;

    void setUseMetaInfoForDirNames(bool on);
    void setUseMetaInfoForDirIcons(bool on);
    void setShowThumbnails(bool on);
    void setShowThumbnailsInNetwork(bool on);
    void setShownThumbnailGroups(const QStringList &groups);
    void setMaxImageFileSizeToShowThumbnailMB(int megabytes);
    void setNumericSortingEnabled(bool on);
    void setLocaleSortingEnabled(bool on);
    void setShowFileSizeInBytes(bool on);
    void setKineticScrollingEnabled(bool on); ///< silent
    void setPinchZoomEnabled(bool on);        ///< silent

Q_SIGNALS:
    void useMetaInfoForDirsChanged(); ///< names or icons
    void showThumbnailsChanged();
    void showThumbnailsInNetworkChanged();
    void shownThumbnailGroupsChanged();
    void maxImageFileSizeToShowThumbnailChanged();
    void numericSortingEnabledChnaged(); // published spelling: applications connect to it by name
    void localeSortingEnabledChnaged();  // published spelling: applications connect to it by name
    void showFileSizeInBytesChanged();

private:
    friend class SettingsReaper;
    static std::atomic<EntryViewParameters *> m_ptr;

    std::atomic<bool> m_useMetaInfoForDirNames;
    std::atomic<bool> m_useMetaInfoForDirIcons{true};
    std::atomic<bool> m_showThumbnails{true};
    std::atomic<bool> m_showThumbnailsInNetwork{false};
    std::atomic<int> m_maxImageFileSizeToShowThumbnailMB{0};
    std::atomic<bool> m_numericSortingEnabled{true};
    std::atomic<bool> m_localeSortingEnabled{false};
    std::atomic<bool> m_showFileSizeInBytes{false};
    std::atomic<bool> m_kineticScrollingEnabled{true};
    std::atomic<bool> m_pinchZoomEnabled{true};
    mutable std::mutex m_groupsMutex;
    QStringList m_shownThumbnailGroups{QStringLiteral("image")}; // guarded by m_groupsMutex
};

} // namespace VeskFM
