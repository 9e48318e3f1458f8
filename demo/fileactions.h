// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "operationtracker.h"

#include <veskplatform/entrylist.h>

#include <QList>
#include <QObject>
#include <QPointer>

class Pane;
class QAction;
class QKeySequence;
class QMenu;
class QPoint;
class QWidget;

/// What can be done with the directory of a pane and its selected rows: the actions with their keys, drops, and new
/// names in place. The work is done by the services on the session bus.
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

    void open(const VeskFM::EntryList &entries, bool chooseApplication);
    void transfer(const VeskFM::EntryList &entries, const VeskFM::Entry &target, bool move);

Q_SIGNALS:
    void message(const QString &text, bool lasting);

private:
    QAction *add(QList<QAction *> *menu, const char *name, const QString &text, const QString &iconName,
                 const QList<QKeySequence> &keys, void (FileActions::*slot)());
    void addSeparator(QList<QAction *> *menu);
    void createFileMenu();
    void createEditMenu();
    void enableActions();
    void fillTemplates();

    void openSelection();
    void openWith();
    void copy();
    void cut();
    void paste();
    void copyToOther();
    void moveToOther();
    void rename();
    void trash();
    void restore();
    void remove();
    void makeFolder();
    void makeFile(const QString &templatePath, const QString &name);
    void await(const VeskFM::Entry &entry, bool renames);
    void showMade(const VeskFM::EntryList &entries, VeskFM::FOps::OperationType type);
    void showAwaited();

    VeskFM::EntryList selection() const;
    VeskFM::Entry freeEntry(const QString &baseName, const QString &suffix) const;

    QWidget *m_window;       // these three borrowed
    Pane *m_pane = nullptr;  // the active one
    Pane *m_other = nullptr; // may be null
    OperationTracker m_operations;
    QList<QAction *> m_fileMenu;
    QList<QAction *> m_editMenu;
    QList<QAction *> m_onSelection; // make sense with selected rows only
    QList<QAction *> m_onChange;    // and where something can be changed
    QList<QAction *> m_onWritable;  // need no selection
    QAction *m_rename = nullptr;
    QAction *m_restore = nullptr;
    QAction *m_paste = nullptr;
    QAction *m_copyToOther = nullptr;
    QAction *m_moveToOther = nullptr;
    QMenu *m_templates = nullptr;
    QPointer<Pane> m_awaitingPane;
    VeskFM::Entry m_awaited;       // just made; gets the cursor when its row arrives
    bool m_renamesAwaited = false; // and a name
    bool m_openerSeen = false;     // the service that opens was there once
};
