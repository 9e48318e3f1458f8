// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>
#include <veskplatform/storagemount.h>

#include <QObject>

#include <functional>

class FileWork;
class SidePanel;
class QPoint;

/// What can be done with the places in the side panel: their menu, favorites, devices.
class PlaceWork : public QObject
{
    Q_OBJECT

public:
    PlaceWork(SidePanel *panel, FileWork *files,
              QWidget *window); ///< becomes a child of @p window; the rest is borrowed

    /// Mounts the device behind @p place where that has to be done first, and calls @p use with the place then.
    void withDevice(const VeskFM::Entry &place, const std::function<void(const VeskFM::Entry &place)> &use);
    void addFavorite(const VeskFM::Entry &directory);

Q_SIGNALS:
    void opened(const VeskFM::Entry &entry, bool inOtherPane);
    void message(const QString &text, bool lasting);

private:
    void showMenu(const VeskFM::Entry &entry, const QPoint &globalPosition);
    void removeFavorite(const VeskFM::Entry &favorite);
    void renameFavorite(const VeskFM::Entry &favorite);
    void onMountFinished(const VeskFM::Entry &place, const QString &errorText);
    void report(bool done, const QString &errorText);

    SidePanel *m_panel;
    FileWork *m_files;
    QWidget *m_window;
    VeskFM::StorageMount m_mounts;
    VeskFM::Entry m_awaited; // being mounted for m_use
    std::function<void(const VeskFM::Entry &)> m_use;
};
