// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QList>
#include <QObject>

#include <functional>

class FileWork;
class Pane;
class QAction;
class QKeySequence;
class QMenu;
class QPoint;
class QWidget;

/// What can be done with the directory of a pane and its selected rows: the actions with their keys, and drops.
class FileActions : public QObject
{
    Q_OBJECT

public:
    explicit FileActions(QWidget *window); ///< becomes a child of @p window, as the actions do

    /// The actions are for @p active from now on; @p other is where "the other pane" is, null for none.
    void setPanes(Pane *active, Pane *other);
    void listenTo(Pane *pane); ///< to what is dropped on it and activated in it

    QList<QAction *> fileMenu() const { return m_fileMenu; }
    QList<QAction *> editMenu() const { return m_editMenu; }
    /// @param last  actions that come behind ours
    void showMenu(const QPoint &globalPosition, const QList<QAction *> &last);

    FileWork *work() const { return m_work; } ///< that does it

private:
    QAction *add(QList<QAction *> *menu, const char *name, const QString &text, const QString &iconName,
                 const QList<QKeySequence> &keys, const std::function<void()> &slot);
    void addSeparator(QList<QAction *> *menu);
    void createFileMenu();
    void createEditMenu();
    void enableActions();
    void fillTemplates();

    void openSelection();

    VeskFM::EntryList selection() const;

    QWidget *m_window;       // these three borrowed
    Pane *m_pane = nullptr;  // the active one
    Pane *m_other = nullptr; // may be null
    FileWork *m_work;
    QList<QAction *> m_fileMenu;
    QList<QAction *> m_editMenu;
    QList<QAction *> m_onSelection; // make sense with selected rows only
    QList<QAction *> m_onChange;    // and where something can be changed
    QList<QAction *> m_onWritable;  // need no selection
    QAction *m_rename = nullptr;
    QAction *m_trash = nullptr;
    QAction *m_delete = nullptr;
    QAction *m_restore = nullptr;
    QAction *m_emptyTrash = nullptr;
    QAction *m_paste = nullptr;
    QAction *m_copyToOther = nullptr;
    QAction *m_moveToOther = nullptr;
    QMenu *m_templates = nullptr;
};
