// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archivefiles.h"
#include "operationtracker.h"

#include <veskplatform/entrylist.h>

#include <QObject>
#include <QPointer>

class Pane;
class QAbstractItemView;
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

    ArchiveFiles *archives() { return &m_archives; }

    void open(const VeskFM::EntryList &entries, bool chooseApplication);
    void copy(const VeskFM::EntryList &entries); ///< to the clipboard
    void cut(const VeskFM::EntryList &entries);
    void drag(QAbstractItemView *view, const VeskFM::EntryList &entries);
    /// Copies or moves; what goes to the trash is trashed, what comes out of an archive is copied.
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
    void openFiles(const VeskFM::EntryList &files, bool chooseApplication);
    void transferFiles(const VeskFM::EntryList &files, const VeskFM::Entry &target, bool move);
    bool confirm(const QString &title, const QString &question);
    void await(const VeskFM::Entry &entry, bool renames);
    void showMade(const VeskFM::EntryList &entries, VeskFM::FOps::OperationType type);
    void showAwaited();
    VeskFM::Entry freeEntry(const QString &baseName, const QString &suffix) const;

    QWidget *m_window;      // these two borrowed
    Pane *m_pane = nullptr; // the active one
    OperationTracker m_operations;
    ArchiveFiles m_archives;
    QPointer<Pane> m_awaitingPane;
    VeskFM::Entry m_awaited;       // just made; gets the cursor when its row arrives
    bool m_renamesAwaited = false; // and a name
    bool m_openerSeen = false;     // the service that opens was there once
};
