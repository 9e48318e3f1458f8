// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowactions.h"

#include "fileactions.h"
#include "kiosk.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace
{

QAction *separator(QObject *parent)
{
    auto *const action = new QAction(parent);
    action->setSeparator(true);
    return action;
}

} // namespace

WindowActions::WindowActions(QMainWindow *window)
    : QObject(window)
    , m_window(window)
{
    newWindow = add("newWindow", tr("New Window"), QStringLiteral("window-new"), {QKeySequence::New});
    closeWindow = add("closeWindow", tr("Close Window"), QStringLiteral("window-close"), {QKeySequence::Close});
    quit = add("quit", tr("Quit"), QStringLiteral("application-exit"), {QKeySequence::Quit});
    properties = add("properties", tr("Properties…"), QStringLiteral("document-properties"),
                     {Qt::ALT + Qt::Key_Return, Qt::ALT + Qt::Key_Enter});

    selectAll = add("selectAll", tr("Select All"), QStringLiteral("edit-select-all"), {QKeySequence::SelectAll});
    invertSelection = add("invertSelection", tr("Invert Selection"), QStringLiteral("edit-select-invert"),
                          {Qt::CTRL + Qt::SHIFT + Qt::Key_A});
    settings = add("settings", tr("Settings…"), QStringLiteral("configure"), {Qt::CTRL + Qt::Key_Comma});

    table = addCheckable("table", tr("Table"), QStringLiteral("view-list-details"), {Qt::CTRL + Qt::Key_1});
    icons = addCheckable("icons", tr("Icons"), QStringLiteral("view-list-icons"), {Qt::CTRL + Qt::Key_2});
    auto *const modes = new QActionGroup(this);
    modes->addAction(table);
    modes->addAction(icons);
    zoomIn =
        add("zoomIn", tr("Larger Icons"), QStringLiteral("zoom-in"), {QKeySequence::ZoomIn, Qt::CTRL + Qt::Key_Equal});
    zoomOut = add("zoomOut", tr("Smaller Icons"), QStringLiteral("zoom-out"), {QKeySequence::ZoomOut});
    zoomReset = add("zoomReset", tr("Usual Size"), QStringLiteral("zoom-original"), {Qt::CTRL + Qt::Key_0});
    hidden = addCheckable("hidden", tr("Hidden Files"), QStringLiteral("view-hidden"), {Qt::CTRL + Qt::Key_H});
    thumbnails = addCheckable("thumbnails", tr("Thumbnails"), QStringLiteral("view-preview"));
    sidePanel = addCheckable("sidePanel", tr("Side Panel"), QStringLiteral("view-sidetree"), {Qt::Key_F9});
    twoPanes = addCheckable("twoPanes", tr("Two Panes"), QStringLiteral("view-split-left-right"), {Qt::Key_F3});
    filter = add("filter", tr("Filter"), QStringLiteral("view-filter"), {Qt::CTRL + Qt::Key_I});
    stop = add("stop", tr("Stop"), QStringLiteral("process-stop"), {Qt::Key_Escape});
    stop->setEnabled(false); // or Escape would never get to who else wants it
    reload = add("reload", tr("Reload"), QStringLiteral("view-refresh"), {Qt::CTRL + Qt::Key_R});

    back = add("back", tr("Back"), QStringLiteral("go-previous"), {QKeySequence::Back});
    forward = add("forward", tr("Forward"), QStringLiteral("go-next"), {QKeySequence::Forward});
    up = add("up", tr("Up"), QStringLiteral("go-up"), {Qt::ALT + Qt::Key_Up, Qt::Key_Backspace});
    home = add("home", tr("Home"), QStringLiteral("go-home"), {Qt::ALT + Qt::Key_Home});
    trashCan = add("trashCan", tr("Trash"), QStringLiteral("user-trash"), {Qt::CTRL + Qt::Key_T});
    favorite = add("favorite", tr("Add to Favorites"), QStringLiteral("bookmark-new"), {Qt::CTRL + Qt::Key_D});
    path = add("path", tr("Path"), QString(), {Qt::CTRL + Qt::Key_L});
    panelFocus = add("panelFocus", tr("To the Side Panel"), QString(), {Qt::CTRL + Qt::SHIFT + Qt::Key_L});
    otherPane = add("otherPane", tr("To the Other Pane"), QString(), {});

    find = add("find", tr("Find…"), QStringLiteral("edit-find"), {QKeySequence::Find});
    about = add("about", tr("About"), QStringLiteral("help-about"));
    for (QAction *action : {properties, find, settings})
        action->setEnabled(false);
    for (QAction *action : {newWindow, settings, path})
        action->setVisible(!Kiosk::isOn()); // nor do the keys of a hidden one work
}

QAction *WindowActions::add(const char *name, const QString &text, const QString &iconName,
                            const QList<QKeySequence> &keys)
{
    auto *const action = new QAction(QIcon::fromTheme(iconName), text, m_window);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys);
    m_window->addAction(action); // its keys work without a menu bar too
    return action;
}

QAction *WindowActions::addCheckable(const char *name, const QString &text, const QString &iconName,
                                     const QList<QKeySequence> &keys)
{
    QAction *const action = add(name, text, iconName, keys);
    action->setCheckable(true);
    return action;
}

QMenu *WindowActions::addMenu(QMenuBar *bar, const char *name, const QString &title, const QList<QAction *> &actions)
{
    QMenu *const menu = bar->addMenu(title);
    menu->setObjectName(QString::fromLatin1(name));
    for (QAction *action : actions)
        menu->addAction(action ? action : separator(menu));
    return menu;
}

void WindowActions::fillMenuBar(QMenuBar *bar, const FileActions &files)
{
    m_window->addActions(files.fileMenu() + files.editMenu());
    addMenu(bar, "fileMenu", tr("&File"),
            QList<QAction *>{newWindow, nullptr} + files.fileMenu()
                + QList<QAction *>{nullptr, properties, nullptr, closeWindow, quit});
    addMenu(bar, "editMenu", tr("&Edit"), files.editMenu() + QList<QAction *>{nullptr, selectAll, invertSelection});
    QMenu *const view = addMenu(bar, "viewMenu", tr("&View"),
                                {table, icons, nullptr, zoomIn, zoomOut, zoomReset, nullptr, hidden, thumbnails, filter,
                                 nullptr, sidePanel, twoPanes, nullptr, reload, stop});
    sortMenu = new QMenu(tr("Sort By"), view);
    sortMenu->setObjectName(QStringLiteral("sortMenu"));
    view->insertMenu(hidden, sortMenu);
    addMenu(bar, "goMenu", tr("&Go"),
            {back, forward, up, nullptr, home, trashCan, nullptr, favorite, nullptr, path, panelFocus, otherPane});
    addMenu(bar, "toolsMenu", tr("&Tools"), {find, nullptr, settings});
    addMenu(bar, "helpMenu", tr("&Help"), {about});
}

void WindowActions::fillToolBar(QToolBar *bar) const
{
    bar->addActions({back, forward, up, home});
    bar->addSeparator();
    bar->addActions({table, icons});
    bar->addSeparator();
    bar->addActions({sidePanel, twoPanes});
    bar->addSeparator();
    bar->addActions({filter, find});
}
