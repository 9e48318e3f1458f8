// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "directoryhistory.h"
#include "entryviews.h"

#include <veskfm/model.h>

#include <QWidget>

class FilterBar;
class PathBar;
class QFrame;

/// One directory in a window: its views, its path, a filter, and where it has been before.
class Pane : public QWidget
{
    Q_OBJECT

public:
    /// Shows nothing until openDirectory().
    explicit Pane(QWidget *parent = nullptr);
    ~Pane() override;

    VeskFM::Model *model() { return m_model.get(); }
    EntryViews *views() const { return m_views; }
    PathBar *pathBar() const { return m_pathBar; }
    FilterBar *filterBar() const { return m_filter; }

    VeskFM::Entry directory() const; ///< null before the first openDirectory()
    bool isWritable() const;         ///< whether something can be made here, as far as can be told without trying
    bool hasTrash() const;           ///< whether what is here may be moved to the trash
    bool canGoBack() const { return m_history.hasEarlier(); }
    bool canGoForward() const { return m_history.hasLater(); }
    bool canGoUp() const;

    /// Goes to @p directory, which becomes the latest place of the history. @p cursor, if there, gets the cursor.
    void openDirectory(const VeskFM::Entry &directory, const VeskFM::Entry &cursor = VeskFM::Entry());
    void goBack();
    void goForward();
    void goUp();
    void reload();
    void setFilter(const QString &text);
    void setActive(bool active); ///< marks it
    void focusView();

Q_SIGNALS:
    void directoryChanged();
    void fileActivated(const VeskFM::Entry &entry);   ///< something that has no inside to show
    void deviceActivated(const VeskFM::Entry &place); ///< one that is not mounted
    void message(const QString &text);
    void activated(); ///< it got the focus

private:
    void createBars();
    void followModel();
    void followParameters();
    void activateEntry(const VeskFM::Entry &entry);
    bool showDirectory(const VeskFM::Entry &container);
    void leaveLostDirectory(const VeskFM::Entry &lost);

    std::unique_ptr<VeskFM::Model> m_model;
    EntryViews *m_views;
    PathBar *m_pathBar;
    FilterBar *m_filter;
    QFrame *m_mark;
    DirectoryHistory m_history;
    VeskFM::Entry m_cursor; // gets the cursor when its directory has been listed
    bool m_writable = false;
    bool m_onNetwork = false;
};
