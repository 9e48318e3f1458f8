// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "bookmarklines.h"
#include "placegroup.h"

#include <atomic>

class QObject;

namespace VeskFM
{

/// The favorites: what the bookmarks file of the GTK file dialogs lists. One that leads nowhere is there like the
/// others; those of the network are when NetworkPlaces knows their scheme.
///
/// The file is read once for each change. Until somebody follows it, each question looks whether it is another one;
/// from then on changes are taken over in the application's thread only.
///
/// Thread: any, unless said otherwise.
class FavoritePlaces
{
public:
    /// @param context borrowed; lives in the application's thread
    FavoritePlaces(const Entry &group, EntryWatcher *watcher, QObject *context);

    EntryList entries();
    Entry entry(const QString &path); ///< null when there is none
    int indexOf(const QString &path); ///< -1 when there is none
    /// Where the favorite with this path leads to, see Bookmark::target; empty for other paths.
    static QString target(const QString &path);
    /// Whether what leads there is shown: a directory, or what NetworkPlaces has an entry of.
    static bool isShown(const QString &target);

    /// Called once the file is watched, and after each change of it: has update() called in the application's thread.
    void follow();
    void update();         ///< looks at the file, and tells what changed
    static QString file(); ///< its path

private:
    /// Tells whether the file is the one that was read.
    struct Version
    {
        quint64 device = 0;
        quint64 node = 0;
        qint64 size = -1;
        qint64 modifiedNs = 0;
        const void *network = nullptr; // what was installed then
        bool operator==(const Version &other) const;
    };
    static Version present();
    void lookUnlessFollowed();

    QObject *const m_context;
    PlaceGroup m_group;
    std::mutex m_mutex; // of the version, and of reading the file
    Version m_version;
    std::atomic<bool> m_shown{false}; // somebody has seen the list
    std::atomic<bool> m_followed{false};
};

} // namespace VeskFM
