// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStatusBar>
#include <QTimer>

class DirectoryView;
class QLabel;
class QSlider;

namespace VeskFM
{
class Model;
}

/// The bottom line of the window: what is being listed, how many entries there are or why there are none, what is
/// selected, and a slider for the size of the icons. It also gives the view its text for an empty directory.
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    StatusLine(VeskFM::Model *model, DirectoryView *view, QWidget *parent = nullptr); ///< both must outlive it

private:
    void followModel();
    void followIconSize();
    void describeListing();
    void describeSelection();

    VeskFM::Model *m_model; // these two borrowed
    DirectoryView *m_view;
    QLabel *m_listing;
    QLabel *m_selection;
    QSlider *m_iconSize;
    QTimer m_listingTimer; // events come by the thousand, texts are for people
    QTimer m_selectionTimer;
};
