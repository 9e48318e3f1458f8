// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/settings.h>

#include "settings_p.h"
#include "settingsreaper.h"

#include <veskplatform/veskuidesktopentry.h>

#include <KDirWatch>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QMutexLocker>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QThread>

namespace VeskFM
{

namespace
{

void endWatching()
{
    SettingsPrivate::onApplicationEnding();
}

void beginWatching()
{
    qAddPostRoutine(endWatching);
    SettingsPrivate::onApplicationStarted();
}

/// Command lines of the applications whose desktop entries are under @p directory, each once.
QStringList execsUnder(const QString &directory)
{
    QStringList execs;
    if (directory.isEmpty()) // would be the current one
        return execs;
    QDirIterator files(directory, {QStringLiteral("*.desktop")}, QDir::Files | QDir::CaseSensitive,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const VeskUIDesktopEntry entry(files.next());
        if (!entry.isValid() || !entry.isSuitable() || entry.getType() != QLatin1String("Application"))
            continue;
        const QString exec = entry.getExec();
        if (!exec.isEmpty() && !execs.contains(exec))
            execs.append(exec);
    }
    return execs;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(beginWatching)

std::atomic<Settings *> Settings::m_ptr{nullptr};

Settings::Settings(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<SettingsPrivate>(this))
{
    d->startWatching();
    const QSignalBlocker silent(this);
    refresh();
}

Settings::~Settings()
{
    Settings *self = this;
    m_ptr.compare_exchange_strong(self, nullptr);
}

Settings *Settings::ptr()
{
    if (Settings *existing = m_ptr.load(std::memory_order_acquire))
        return existing;
    static QBasicMutex creation;
    const QMutexLocker lock(&creation);
    if (!m_ptr.load()) {
        SettingsReaper::arm();
        m_ptr.store(new Settings, std::memory_order_release);
    }
    return m_ptr.load();
}

void SettingsPrivate::onApplicationStarted()
{
    Settings *const settings = Settings::m_ptr.load();
    if (!settings)
        return;
    settings->d->startWatching();
    QMetaObject::invokeMethod(settings, &Settings::refresh, Qt::QueuedConnection); // what changed unwatched
}

void SettingsPrivate::onApplicationEnding()
{
    if (const Settings *settings = Settings::m_ptr.load())
        settings->d->watch.reset();
}

void Settings::sync()
{
    if (d->modified == 0)
        return;
    QVector<QPair<QString, QVariant>> changes;
    for (const SettingsKey key : writtenSettingsKeys) {
        if (d->modified & settingsKeys[size_t(key)].bit)
            changes.append({SettingsPrivate::fullKey(key), d->value(key)});
    }
    if (d->file.write(changes))
        d->modified = 0;
}

void Settings::refresh()
{
    if (!d->file.reload())
        return;
    sync(); // what could not be written before
    for (const SettingsKeyInfo &info : settingsKeys) {
        d->readKey(info);
        if (info.key == SettingsKey::ShowViewSettingsInDirViewCtxMenu) {
            d->forgetMenuChanges();
            d->findKioskMode();
        }
    }
    refreshHiddenToolBarActions();
}

void Settings::refreshHiddenToolBarActions()
{
    const SettingsKeyInfo &info = settingsKeys[size_t(SettingsKey::HiddenToolBarActions)];
    d->take(info, d->stored(info.key, d->defaultHiddenToolBarActions));
}

void Settings::addDefaultHiddenToolBarActions(const QStringList &actions)
{
    d->defaultHiddenToolBarActions += actions;
    refreshHiddenToolBarActions();
}

bool Settings::isKioskMode() const
{
    return d->isKioskSession || d->isKioskUser;
}

bool Settings::isAdmin() const
{
    return isAdministrator();
}

QStringList Settings::kioskExecs() const
{
    static const QStringList execs = [this] {
        if (!isKioskMode())
            return QStringList();
        return execsUnder(d->isKioskSession ? qEnvironmentVariable("VESK_KIOSK_CONFIG_DIR")
                                            : QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    }();
    return execs;
}

int Settings::serviceLifeTime() const
{
    return d->value(SettingsKey::ServiceLifeTime).toInt();
}

unsigned long long Settings::trashSize() const
{
    return d->value(SettingsKey::TrashSize).toULongLong();
}

bool Settings::useMetaInfoForDirNames() const
{
    return d->value(SettingsKey::UseMetaInfoForDirNames).toBool();
}

bool Settings::useMetaInfoForDirIcons() const
{
    return d->value(SettingsKey::UseMetaInfoForDirIcons).toBool();
}

bool Settings::showFullPathInWindowTitle() const
{
    return d->value(SettingsKey::ShowFullPathInWindowTitle).toBool();
}

bool Settings::showScaleSliderInStatusBar() const
{
    return d->value(SettingsKey::ShowScaleSliderInStatusBar).toBool();
}

bool Settings::showDiskSpaceInfoInStatusBar() const
{
    return d->value(SettingsKey::ShowDiskSpaceInfoInStatusBar).toBool();
}

bool Settings::showThumbnails() const
{
    return d->value(SettingsKey::ShowThumbnails).toBool();
}

bool Settings::showThumbnailsInNetwork() const
{
    return d->value(SettingsKey::ShowThumbnailsInNetwork).toBool();
}

QStringList Settings::shownThumbnailGroups() const
{
    return d->value(SettingsKey::ShownThumbnailGroups).toStringList();
}

int Settings::maxImageFileSizeToShowThumbnailMB() const
{
    return d->value(SettingsKey::MaxImageFileSizeToShowThumbnailMB).toInt();
}

bool Settings::showDeleteItemInDirViewCtxMenu() const
{
    return d->value(SettingsKey::ShowDeleteItemInDirViewCtxMenu).toBool();
}

bool Settings::showViewSettingsInDirViewCtxMenu() const
{
    return d->value(SettingsKey::ShowViewSettingsInDirViewCtxMenu).toBool();
}

bool Settings::isNumericSortingEnabled() const
{
    return d->value(SettingsKey::NumericSorting).toBool();
}

bool Settings::isLocaleSortingEnabled() const
{
    return d->value(SettingsKey::LocaleSorting).toBool();
}

bool Settings::showFileSizeInBytes() const
{
    return d->value(SettingsKey::ShowFileSizeInBytes).toBool();
}

bool Settings::alternateRowColorsInTable() const
{
    return d->value(SettingsKey::AlternateRowColorsInTable).toBool();
}

bool Settings::allowTrashActionFromNetwork() const
{
    return d->value(SettingsKey::AllowTrashActionFromNetwork).toBool();
}

bool Settings::fillMailtoSubjectFromAttachments() const
{
    return d->value(SettingsKey::FillMailtoSubjectFromAttachments).toBool();
}

QStringList Settings::hiddenTreeItems() const
{
    return d->value(SettingsKey::HiddenTreeItems).toStringList();
}

bool Settings::enableUndoAction() const
{
    return d->value(SettingsKey::EnableUndoAction).toBool();
}

bool Settings::singleLocationBar() const
{
    return d->value(SettingsKey::SingleLocationBar).toBool();
}

QStringList Settings::hiddenToolBarActions() const
{
    return d->value(SettingsKey::HiddenToolBarActions).toStringList();
}

int Settings::zarnelVersion() const
{
    return d->value(SettingsKey::ZarnelVersion).toInt();
}

bool Settings::oldStylePlacesWidget() const
{
    return d->value(SettingsKey::OldStylePlacesWidget).toBool();
}

bool Settings::isPlacesCollapsible() const
{
    return d->value(SettingsKey::PlacesCollapsible).toBool();
}

bool Settings::autoOpenEcryptedArchives() const
{
    return d->value(SettingsKey::AutoOpenEcryptedArchives).toBool();
}

bool Settings::followSmbToNetworkResources() const
{
    return d->value(SettingsKey::FollowSmbToNetworkResource).toBool();
}

QStringList Settings::hiddenCategories() const
{
    return d->value(SettingsKey::HiddenCategories).toStringList();
}

void Settings::setServiceLifeTime(int milliseconds)
{
    d->write(SettingsKey::ServiceLifeTime, milliseconds);
}

void Settings::setTrashSize(unsigned long long size)
{
    d->change(SettingsKey::TrashSize, qulonglong(size));
}

void Settings::setUseMetaInfoForDirNames(bool on)
{
    d->change(SettingsKey::UseMetaInfoForDirNames, on);
}

void Settings::setUseMetaInfoForDirIcons(bool on)
{
    d->change(SettingsKey::UseMetaInfoForDirIcons, on);
}

void Settings::setShowFullPathInWindowTitle(bool on)
{
    d->change(SettingsKey::ShowFullPathInWindowTitle, on);
}

void Settings::setShowScaleSliderInStatusBar(bool on)
{
    d->change(SettingsKey::ShowScaleSliderInStatusBar, on);
}

void Settings::setShowDiskSpaceInfoInStatusBar(bool on)
{
    d->change(SettingsKey::ShowDiskSpaceInfoInStatusBar, on);
}

void Settings::setShowThumbnails(bool on)
{
    d->change(SettingsKey::ShowThumbnails, on);
}

void Settings::setShowThumbnailsInNetwork(bool on)
{
    d->change(SettingsKey::ShowThumbnailsInNetwork, on);
}

void Settings::setShownThumbnailGroups(const QStringList &groups)
{
    d->change(SettingsKey::ShownThumbnailGroups, groups);
}

void Settings::setMaxImageFileSizeToShowThumbnailMB(int megabytes)
{
    d->change(SettingsKey::MaxImageFileSizeToShowThumbnailMB, megabytes);
}

void Settings::setShowDeleteItemInDirViewCtxMenu(bool on)
{
    d->change(SettingsKey::ShowDeleteItemInDirViewCtxMenu, on);
}

void Settings::setShowViewSettingsInDirViewCtxMenu(bool on)
{
    d->change(SettingsKey::ShowViewSettingsInDirViewCtxMenu, on);
}

void Settings::setNumericSortingEnabled(bool on)
{
    d->change(SettingsKey::NumericSorting, on);
}

void Settings::setLocaleSortingEnabled(bool on)
{
    d->change(SettingsKey::LocaleSorting, on);
}

void Settings::setShowFileSizeInBytes(bool on)
{
    d->change(SettingsKey::ShowFileSizeInBytes, on);
}

void Settings::setAlternateRowColorsInTable(bool on)
{
    d->change(SettingsKey::AlternateRowColorsInTable, on);
}

void Settings::setAllowTrashActionFromNetwork(bool on)
{
    d->change(SettingsKey::AllowTrashActionFromNetwork, on);
}

void Settings::setHiddenTreeItems(const QStringList &items)
{
    d->change(SettingsKey::HiddenTreeItems, items);
}

void Settings::setHiddenToolBarActions(const QStringList &actions)
{
    d->change(SettingsKey::HiddenToolBarActions, actions);
}

void Settings::setFollowSmbToNetworkResources(bool on)
{
    d->change(SettingsKey::FollowSmbToNetworkResource, on);
}

void Settings::setHiddenCategories(const QStringList &categories)
{
    d->change(SettingsKey::HiddenCategories, categories);
}

} // namespace VeskFM
