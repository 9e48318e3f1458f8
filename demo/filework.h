// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "operationtracker.h"

#include <veskplatform/entrylist.h>

#include <QObject>
#include <QPointer>

class Pane;
class QWidget;

/// Does what is asked for with files, through the services on the session bus, and says how it went. What is made gets
/// the cursor in the pane that was active, and a new name in place.
class FileWork : public QObject
{
    Q_OBJECT

public:
    explicit FileWork(QWidget *window); ///< becomes a child of @p window, which asks the questions

    void setPane(Pane *active);
    void listenTo(Pane *pane); ///< to its rows

    void open(const VeskFM::EntryList &entries, bool chooseApplication);
    void transfer(const VeskFM::EntryList &entries, const VeskFM::Entry &target, bool move);
    void paste();
    void trash(const VeskFM::EntryList &entries);
    void restore(const VeskFM::EntryList &entries);
    void remove(const VeskFM::EntryList &entries); ///< asks first
    void emptyTrash();                             ///< likewise
    void rename();                                 ///< the row with the cursor
    void makeFolder();
    void makeFile(const QString &templatePath, const QString &name); ///< an empty path makes an empty file

Q_SIGNALS:
    void message(const QString &text, bool lasting);

private:
    bool confirm(const QString &title, const QString &question);
    void await(const VeskFM::Entry &entry, bool renames);
    void showMade(const VeskFM::EntryList &entries, VeskFM::FOps::OperationType type);
    void showAwaited();
    VeskFM::Entry freeEntry(const QString &baseName, const QString &suffix) const;

    QWidget *m_window;      // these two borrowed
    Pane *m_pane = nullptr; // the active one
    OperationTracker m_operations;
    QPointer<Pane> m_awaitingPane;
    VeskFM::Entry m_awaited;       // just made; gets the cursor when its row arrives
    bool m_renamesAwaited = false; // and a name
    bool m_openerSeen = false;     // the service that opens was there once
};
