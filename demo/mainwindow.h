// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QMainWindow>

class FileActions;
class Pane;
class PlaceWork;
class SidePanel;
class StatusLine;
class WindowActions;
class QSplitter;
struct Options;

namespace VeskFM
{
class Model;
}

/// A window of the file manager: one directory or two side by side, with a panel of places, menus and a status line.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows nothing until openDirectory().
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    VeskFM::Model *model(); ///< of the active pane
    Pane *activePane() const { return m_active; }
    Pane *otherPane() const; ///< null while there is one only
    SidePanel *sidePanel() const { return m_panel; }
    WindowActions *actionSet() const { return m_actions; }
    FileActions *fileActions() const { return m_files; }

    /// Sorting, filter and hidden files as the command line wants them. Returns false for an unknown sort column.
    bool configure(const Options &options);
    /// Goes to @p directory in the active pane.
    void openDirectory(const VeskFM::Entry &directory);
    void openInOtherPane(const VeskFM::Entry &directory); ///< makes a second one where there is none
    void showEntry(const VeskFM::Entry &entry);           ///< goes to its directory and selects it
    void setTwoPanes(bool two);
    void showMessage(const QString &text, bool lasting = false);

    void restoreLayout(); ///< takes over how the last window looked
    void saveLayout() const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    Pane *addPane();
    void setActivePane(Pane *pane);
    void connectActions();
    void connectViewActions();
    void connectPanel();
    void connectFavorites();
    void openFromPanel(const VeskFM::Entry &entry, bool inOtherPane);
    void followPane(Pane *pane);
    void showWhereWeAre();
    void showViewMode();
    void fillSortMenu();
    void openAnotherWindow();

    WindowActions *m_actions;
    FileActions *m_files;
    QSplitter *m_content; // the panel, then the panes
    SidePanel *m_panel;
    PlaceWork *m_placeWork;
    QSplitter *m_paneArea;
    StatusLine *m_status;
    QList<Pane *> m_panes; // one, or two of which the second may be hidden
    Pane *m_active = nullptr;
};
