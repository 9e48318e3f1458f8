// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "diskspace.h"
#include "selectiondescription.h"

#include <QStatusBar>
#include <QTimer>

class Pane;
class QLabel;
class QSlider;

/// The bottom line of the window: what the active pane is listing, how many entries there are or why there are none,
/// what is selected, how much room is left, and a slider for the size of the icons. It also gives the panes their text for an empty directory.
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget *parent = nullptr);

    void listenTo(Pane *pane);
    void setPane(Pane *pane); ///< the one to describe; it must outlive this line

private:
    void followSettings();
    void describeListings();
    void describeListing(Pane *pane);
    void describeSelection();
    void showSelection(const QString &description);
    void showIconSize();
    void askForRoom();
    void showRoom(qint64 freeBytes, qint64 totalBytes);

    Pane *m_pane = nullptr; // borrowed
    QList<Pane *> m_panes;  // likewise
    QLabel *m_listing;
    QLabel *m_selection;
    QLabel *m_room;
    QSlider *m_iconSize;
    QTimer m_listingTimer; // events come by the thousand, texts are for people
    QTimer m_selectionTimer;
    DiskSpace m_diskSpace;
    SelectionDescription m_description;
};
