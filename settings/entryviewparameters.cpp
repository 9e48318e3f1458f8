// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/entryviewparameters.h>

#include "settingsreaper.h"

#include <veskfm/global.h>
#include <veskfm/settings.h>

#include <KUser>

#include <QCoreApplication>
#include <QMutexLocker>
#include <QSettings>
#include <QThread>

namespace VeskFM
{

std::atomic<EntryViewParameters *> EntryViewParameters::m_ptr{nullptr};

// Settings are built from these defaults: nothing here may ask for them before initFromSettings().
EntryViewParameters::EntryViewParameters(QObject *parent)
    : QObject(parent)
    , m_useMetaInfoForDirNames(!KUser(KUser::UseEffectiveUID).isSuperUser())
{
}

EntryViewParameters::~EntryViewParameters()
{
    EntryViewParameters *self = this;
    m_ptr.compare_exchange_strong(self, nullptr);
}

EntryViewParameters *EntryViewParameters::ptr()
{
    if (EntryViewParameters *existing = m_ptr.load(std::memory_order_acquire))
        return existing;
    static QBasicMutex creation;
    const QMutexLocker lock(&creation);
    if (!m_ptr.load()) {
        SettingsReaper::arm();
        auto *created = new EntryViewParameters;
        if (const QCoreApplication *application = QCoreApplication::instance())
            created->moveToThread(application->thread()); // a worker may be the first to ask
        m_ptr.store(created, std::memory_order_release);
    }
    return m_ptr.load();
}

void EntryViewParameters::initFromSettings()
{
    Settings *const settings = Settings::ptr();
    disconnect(settings, nullptr, this, nullptr);

    // Each reads the values anew, so that taking over and following a change are the same step.
    const auto follow = [this, settings](void (Settings::*changed)(), auto takeOver) {
        takeOver();
        connect(settings, changed, this, takeOver);
    };
    follow(&Settings::useMetaInfoForDirsChanged, [this, settings] {
        setUseMetaInfoForDirNames(settings->useMetaInfoForDirNames());
        setUseMetaInfoForDirIcons(settings->useMetaInfoForDirIcons());
    });
    follow(&Settings::showThumbnailsChanged, [this, settings] { setShowThumbnails(settings->showThumbnails()); });
    follow(&Settings::showThumbnailsInNetworkChanged,
           [this, settings] { setShowThumbnailsInNetwork(settings->showThumbnailsInNetwork()); });
    follow(&Settings::shownThumbnailGroupsChanged,
           [this, settings] { setShownThumbnailGroups(settings->shownThumbnailGroups()); });
    follow(&Settings::maxImageFileSizeToShowThumbnailChanged,
           [this, settings] { setMaxImageFileSizeToShowThumbnailMB(settings->maxImageFileSizeToShowThumbnailMB()); });
    follow(&Settings::numericSortingEnabledChanged,
           [this, settings] { setNumericSortingEnabled(settings->isNumericSortingEnabled()); });
    follow(&Settings::localeSortingEnabledChanged,
           [this, settings] { setLocaleSortingEnabled(settings->isLocaleSortingEnabled()); });
    follow(&Settings::showFileSizeInBytesChanged,
           [this, settings] { setShowFileSizeInBytes(settings->showFileSizeInBytes()); });

    const QSettings *const store = Global::ptr()->settings();
    setKineticScrollingEnabled(
        store->value(QStringLiteral("regularWindow/UseKineticScrolling"), isKineticScrollingEnabled()).toBool());
    setPinchZoomEnabled(store->value(QStringLiteral("regularWindow/UsePinchZoom"), isPinchZoomEnabled()).toBool());
}

bool EntryViewParameters::useMetaInfoForDirNames() const
{
    return m_useMetaInfoForDirNames;
}

bool EntryViewParameters::useMetaInfoForDirIcons() const
{
    return m_useMetaInfoForDirIcons;
}

bool EntryViewParameters::showThumbnails() const
{
    return m_showThumbnails;
}

bool EntryViewParameters::showThumbnailsInNetwork() const
{
    return m_showThumbnailsInNetwork;
}

QStringList EntryViewParameters::shownThumbnailGroups() const
{
    const std::lock_guard<std::mutex> lock(m_groupsMutex);
    return m_shownThumbnailGroups;
}

int EntryViewParameters::maxImageFileSizeToShowThumbnailMB() const
{
    return m_maxImageFileSizeToShowThumbnailMB;
}

bool EntryViewParameters::isNumericSortingEnabled() const
{
    return m_numericSortingEnabled;
}

bool EntryViewParameters::isLocaleSortingEnabled() const
{
    return m_localeSortingEnabled;
}

bool EntryViewParameters::showFileSizeInBytes() const
{
    return m_showFileSizeInBytes;
}

bool EntryViewParameters::isKineticScrollingEnabled() const
{
    return m_kineticScrollingEnabled;
}

bool EntryViewParameters::isPinchZoomEnabled() const
{
    return m_pinchZoomEnabled;
}

void EntryViewParameters::setUseMetaInfoForDirNames(bool on)
{
    if (m_useMetaInfoForDirNames.exchange(on) != on)
        Q_EMIT useMetaInfoForDirsChanged();
}

void EntryViewParameters::setUseMetaInfoForDirIcons(bool on)
{
    if (m_useMetaInfoForDirIcons.exchange(on) != on)
        Q_EMIT useMetaInfoForDirsChanged();
}

void EntryViewParameters::setShowThumbnails(bool on)
{
    if (m_showThumbnails.exchange(on) != on)
        Q_EMIT showThumbnailsChanged();
}

void EntryViewParameters::setShowThumbnailsInNetwork(bool on)
{
    if (m_showThumbnailsInNetwork.exchange(on) != on)
        Q_EMIT showThumbnailsInNetworkChanged();
}

void EntryViewParameters::setShownThumbnailGroups(const QStringList &groups)
{
    {
        const std::lock_guard<std::mutex> lock(m_groupsMutex);
        if (m_shownThumbnailGroups == groups)
            return;
        m_shownThumbnailGroups = groups;
    }
    Q_EMIT shownThumbnailGroupsChanged();
}

void EntryViewParameters::setMaxImageFileSizeToShowThumbnailMB(int megabytes)
{
    if (m_maxImageFileSizeToShowThumbnailMB.exchange(megabytes) != megabytes)
        Q_EMIT maxImageFileSizeToShowThumbnailChanged();
}

void EntryViewParameters::setNumericSortingEnabled(bool on)
{
    if (m_numericSortingEnabled.exchange(on) != on)
        Q_EMIT numericSortingEnabledChnaged();
}

void EntryViewParameters::setLocaleSortingEnabled(bool on)
{
    if (m_localeSortingEnabled.exchange(on) != on)
        Q_EMIT localeSortingEnabledChnaged();
}

void EntryViewParameters::setShowFileSizeInBytes(bool on)
{
    if (m_showFileSizeInBytes.exchange(on) != on)
        Q_EMIT showFileSizeInBytesChanged();
}

void EntryViewParameters::setKineticScrollingEnabled(bool on)
{
    m_kineticScrollingEnabled = on;
}

void EntryViewParameters::setPinchZoomEnabled(bool on)
{
    m_pinchZoomEnabled = on;
}

} // namespace VeskFM
