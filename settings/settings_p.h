// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "settingsfile.h"
#include "settingskeys.h"

#include <QStringList>
#include <QVariant>

#include <array>
#include <memory>

class KDirWatch;

namespace VeskFM
{

/// State of Settings. Lives in its thread.
class SettingsPrivate
{
public:
    explicit SettingsPrivate(Settings *settings);
    ~SettingsPrivate();

    const QVariant &value(SettingsKey key) const { return values[size_t(key)]; }
    static QString fullKey(SettingsKey key); ///< with its group
    /// What the file says, with @p fallback for a missing key.
    QVariant stored(SettingsKey key, const QVariant &fallback) const;

    void change(SettingsKey key, const QVariant &value);          ///< writes and announces it, if it is another
    void write(SettingsKey key, const QVariant &value);           ///< in any case
    void take(const SettingsKeyInfo &info, const QVariant &read); ///< announces it, if it is another

    void readKey(const SettingsKeyInfo &info);
    /// Each reading gives up what was not yet written of the two menu keys; menus rely on the file's state there.
    void forgetMenuChanges();
    void findKioskMode();

    void startWatching(); ///< does nothing without an application object

    /// The watch of the one instance lives between these: it needs the event loop, and with the application object goes
    /// what all watches of the process share.
    static void onApplicationStarted();
    static void onApplicationEnding();

    Settings *const q;
    std::array<QVariant, settingsKeyCount> values; // by key
    quint32 modified = 0;                          // bits of the keys that are not written yet
    QStringList defaultHiddenToolBarActions;
    bool isKioskSession = false;
    bool isKioskUser = false;
    SettingsFile file;
    std::unique_ptr<KDirWatch> watch; // null until there is an application object
};

} // namespace VeskFM
