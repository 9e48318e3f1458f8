// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "directoryview.h"

#include <veskfm/model.h>

#include <QList>
#include <QMainWindow>
#include <QTimer>

class FileActions;
class PathBar;
class QLineEdit;
class QToolBar;
struct Options;

/// One directory in a window, with the ways out of it.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows nothing until openDirectory().
    explicit MainWindow(QWidget *parent = nullptr);

    VeskFM::Model *model();
    /// Sorting, filter and hidden files as the command line wants them. Returns false for an unknown sort column.
    bool configure(const Options &options);
    /// Goes to @p directory, which becomes the latest place of the history.
    void openDirectory(const VeskFM::Entry &directory);

private:
    void createToolBar();
    QAction *addNavigation(QToolBar *bar, const QString &iconName, const QString &text, const QList<QKeySequence> &keys,
                           void (MainWindow::*slot)());
    void createShortcuts();
    void openAnotherWindow();
    void followDirectory();
    void goBack();
    void goForward();
    void goUp();
    void activateEntry(const VeskFM::Entry &entry);
    bool showDirectory(const VeskFM::Entry &directory);
    void showWhereWeAre();
    void leaveDeletedDirectory(const VeskFM::Entry &deleted);
    void applyFilter();

    VeskFM::Model m_model;
    DirectoryView m_view; // a member, so that it goes before its model
    FileActions *m_actions = nullptr;
    PathBar *m_pathBar = nullptr;
    QLineEdit *m_filter = nullptr;
    QAction *m_back = nullptr;
    QAction *m_forward = nullptr;
    QAction *m_up = nullptr;
    QAction *m_hidden = nullptr;
    QTimer m_filterTimer;           // a filter lists anew: wait until the typing pauses
    QList<VeskFM::Entry> m_earlier; // the latest last
    QList<VeskFM::Entry> m_later;   // the next last
    VeskFM::Entry m_cameFrom;       // gets the cursor when its parent has been listed
};
