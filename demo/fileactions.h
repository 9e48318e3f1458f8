// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "operationtracker.h"

#include <veskplatform/entrylist.h>

#include <QList>
#include <QObject>

class DirectoryView;
class QAction;
class QKeySequence;
class QMenu;
class QPoint;

namespace VeskFM
{
class Model;
}

/// What can be done with the shown directory and the selected rows: the actions with their keys, the menu of the view,
/// drops, and new names in place. The work is done by the services on the session bus.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// Gives @p view its actions and its menu. Both are borrowed.
    FileActions(VeskFM::Model *model, DirectoryView *view, QObject *parent = nullptr);

    void open(const VeskFM::EntryList &entries, bool chooseApplication);

Q_SIGNALS:
    void message(const QString &text, bool lasting);

private:
    QAction *add(const QString &text, const QString &iconName, const QList<QKeySequence> &keys,
                 void (FileActions::*slot)());
    void addSeparator();
    void enableActions();
    void showMenu(const QPoint &position);
    void fillTemplates();

    void openWith();
    void copy();
    void cut();
    void paste();
    void rename();
    void trash();
    void restore();
    void remove();
    void makeFolder();
    void makeFile(const QString &templatePath, const QString &name);
    void drop(const VeskFM::EntryList &entries, const VeskFM::Entry &target, Qt::DropAction action);
    void transfer(const VeskFM::EntryList &entries, const VeskFM::Entry &target, bool move);
    void showMade(const VeskFM::EntryList &entries, VeskFM::FOps::OperationType type);
    void showAwaited();

    VeskFM::EntryList selection() const;
    VeskFM::Entry freeEntry(const QString &baseName, const QString &suffix) const;

    VeskFM::Model *m_model; // borrowed
    DirectoryView *m_view;  // borrowed
    OperationTracker m_operations;
    QList<QAction *> m_onSelection; // make sense with selected rows only
    QAction *m_rename = nullptr;
    QAction *m_restore = nullptr;
    QAction *m_paste = nullptr;
    QMenu *m_templates = nullptr;
    VeskFM::Entry m_awaited;       // just made; gets the cursor when its row arrives
    bool m_renamesAwaited = false; // and a name
    bool m_openerSeen = false;     // the service that opens was there once
};
