// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDialog>
#include <QTimer>

class QAction;
class QTabWidget;
class SettingsPage;

/// Edits the user's settings. A change counts at once, in this window and in all others that run; and what is changed
/// elsewhere shows up here.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Null in kiosk mode, which leaves no choice. Otherwise shows the dialog, the one that there is already if there is.
    /// It deletes itself when it is closed.
    /// @param toolBarActions what can be hidden from the tool bar, by object name
    static SettingsDialog *open(const QList<QAction *> &toolBarActions, QWidget *parent);

    explicit SettingsDialog(const QList<QAction *> &toolBarActions, QWidget *parent = nullptr);

private:
    SettingsPage *addPage(const QString &title);
    void addViewPage();
    void addThumbnailsPage();
    void addWindowPage(const QList<QAction *> &toolBarActions);
    void addBehaviourPage();
    void addSidePanelPage();
    void addApplicationsPage();
    void followSettings();

    QTabWidget *m_tabs; // children
    QList<SettingsPage *> m_pages;
    QTimer m_timer; // for keys whose changes no signal tells
};
