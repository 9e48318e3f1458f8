// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QList>
#include <QObject>

class FileActions;
class QAction;
class QActionGroup;
class QKeySequence;
class QMainWindow;
class QMenu;
class QMenuBar;
class QToolBar;

/// The actions of a window, aside from what is done with files, and the menus that hold all of them. What they do is for
/// who connects to them. "Properties", "Find" and "Settings" are disabled until somebody does.
///
/// The name of each object is that of its field.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    explicit WindowActions(QMainWindow *window); ///< becomes a child of @p window, as the actions do

    void fillMenuBar(QMenuBar *bar, const FileActions &files);
    void fillToolBar(QToolBar *bar) const;

    QAction *newWindow, *closeWindow, *quit, *properties;
    QAction *selectAll, *invertSelection, *settings;
    QAction *table, *icons, *zoomIn, *zoomOut, *zoomReset, *hidden, *thumbnails, *sidePanel, *twoPanes, *filter,
        *reload, *stop;
    QAction *back, *forward, *up, *home, *trashCan, *favorite, *path, *panelFocus, *otherPane;
    QAction *find;
    QAction *about;
    QMenu *sortMenu = nullptr; ///< empty; to be filled when it is about to be shown

private:
    QAction *add(const char *name, const QString &text, const QString &iconName, const QList<QKeySequence> &keys = {});
    QAction *addCheckable(const char *name, const QString &text, const QString &iconName,
                          const QList<QKeySequence> &keys = {});
    QMenu *addMenu(QMenuBar *bar, const char *name, const QString &title, const QList<QAction *> &actions);

    QMainWindow *m_window; // borrowed
};
