// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowdialogs.h"

#include "containers.h"
#include "fileactions.h"
#include "filework.h"
#include "findwindow.h"
#include "kiosk.h"
#include "mainwindow.h"
#include "pane.h"
#include "printabletext.h"
#include "propertiesdialog.h"
#include "settingsdialog.h"
#include "toolbarsetting.h"
#include "windowactions.h"

#include <veskplatform/vfs.h>

#include <QAction>
#include <QToolBar>

using namespace VeskFM;

WindowDialogs::WindowDialogs(MainWindow *window)
    : QObject(window)
    , m_window(window)
    , m_toolBar(new ToolBarSetting(window->findChild<QToolBar *>(QStringLiteral("toolBar"))))
{
    const WindowActions &actions = *window->actionSet();
    connect(actions.properties, &QAction::triggered, this, &WindowDialogs::showProperties);
    connect(actions.find, &QAction::triggered, this, &WindowDialogs::find);
    connect(actions.settings, &QAction::triggered, this, &WindowDialogs::showSettings);
    actions.properties->setEnabled(true);
    actions.find->setEnabled(true);
    actions.settings->setEnabled(!Kiosk::isOn());
}

void WindowDialogs::showProperties()
{
    const Pane *const pane = m_window->activePane();
    const EntryList selected = pane->views()->selectedEntries();
    if (!pane->directory().isNull())
        PropertiesDialog::open(selected.isEmpty() ? EntryList(pane->directory()) : selected, m_window);
}

void WindowDialogs::find()
{
    auto *const dialog = new FindWindow(m_window->activePane()->directory(), m_window);
    connect(dialog, &FindWindow::openRequested, this, &WindowDialogs::open);
    connect(dialog, &FindWindow::locateRequested, m_window, &MainWindow::showEntry);
    dialog->show();
}

void WindowDialogs::showSettings()
{
    SettingsDialog::open(m_toolBar->actions(), m_window);
}

void WindowDialogs::open(const Entry &entry)
{
    if (!VFS::ptr()->isEntryExists(entry)) {
        m_window->showMessage(tr("%1 is not there any more").arg(printableText(entry.path())));
    } else if (canBeShown(entry)) {
        m_window->openDirectory(entry);
        m_window->raise();
        m_window->activateWindow();
    } else {
        m_window->fileActions()->work()->open(EntryList(entry), false);
    }
}
