// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mainwindow.h"

#include "containers.h"
#include "directoryview.h"
#include "favoritedrops.h"
#include "fileactions.h"
#include "filework.h"
#include "filterbar.h"
#include "kiosk.h"
#include "options.h"
#include "pane.h"
#include "paneltree.h"
#include "pathbar.h"
#include "placework.h"
#include "printabletext.h"
#include "sidepanel.h"
#include "statusline.h"
#include "windowactions.h"
#include "windowdialogs.h"
#include "windowlayout.h"

#include <veskfm/core.h>
#include <veskfm/desktop.h>
#include <veskfm/entryviewparameters.h>
#include <veskfm/settings.h>
#include <veskplatform/vfs.h>

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QSplitter>
#include <QToolBar>

using namespace VeskFM;

namespace
{
constexpr int messageTimeMs = 5000;
constexpr int panelWidth = 250; // pixels
} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_actions(new WindowActions(this))
    , m_files(new FileActions(this))
    , m_content(new QSplitter(this))
    , m_panel(new SidePanel(m_content))
    , m_placeWork(new PlaceWork(m_panel, m_files->work(), this))
    , m_paneArea(new QSplitter(m_content))
    , m_status(new StatusLine(this))
{
    setObjectName(QStringLiteral("mainWindow"));
    m_panel->setObjectName(QStringLiteral("sidePanel"));
    m_content->setStretchFactor(1, 1);
    m_content->setSizes({panelWidth, width() - panelWidth});
    m_content->setCollapsible(1, false);
    m_paneArea->setChildrenCollapsible(false);
    setCentralWidget(m_content);
    setStatusBar(m_status);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_actions->fillMenuBar(menuBar(), *m_files);
    menuBar()->setVisible(!Kiosk::isOn());
    QToolBar *const bar = addToolBar(tr("Navigation"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    m_actions->fillToolBar(bar);
    setActivePane(addPane());
    connectActions();
    connectViewActions();
    connectPanel();
    connectFavorites();
    new WindowDialogs(this);
    resize(1100, 700);
    m_active->focusView();
}

MainWindow::~MainWindow()
{
    qDeleteAll(m_panes); // while what listens to them is there
}

Model *MainWindow::model()
{
    return m_active->model();
}

Pane *MainWindow::otherPane() const
{
    for (Pane *pane : m_panes) {
        if (pane != m_active && !pane->isHidden())
            return pane;
    }
    return nullptr;
}

bool MainWindow::configure(const Options &options)
{
    m_actions->hidden->setChecked(options.hidden);
    m_active->setFilter(options.filter);
    return applyOptions(options, model());
}

void MainWindow::openDirectory(const Entry &directory)
{
    m_active->openDirectory(directory);
    Pane *const other = otherPane();
    if (other && other->directory().isNull())
        other->openDirectory(directory);
}

void MainWindow::openInOtherPane(const Entry &directory)
{
    setTwoPanes(true);
    otherPane()->openDirectory(directory);
}

void MainWindow::showEntry(const Entry &entry)
{
    m_active->openDirectory(VFS::ptr()->parent(entry), entry);
    raise();
    activateWindow();
    m_active->focusView();
}

void MainWindow::showMessage(const QString &text, bool lasting)
{
    statusBar()->showMessage(text, lasting ? 0 : messageTimeMs);
}

Pane *MainWindow::addPane()
{
    auto *const pane = new Pane(m_paneArea);
    pane->setObjectName(m_panes.isEmpty() ? QStringLiteral("leftPane") : QStringLiteral("rightPane"));
    m_panes.append(pane);
    m_files->listenTo(pane);
    m_status->listenTo(pane);
    followPane(pane);
    return pane;
}

void MainWindow::followPane(Pane *pane)
{
    const auto whenActive = [this, pane](auto method) {
        return [this, pane, method] {
            if (pane == m_active)
                (this->*method)();
        };
    };
    connect(pane, &Pane::activated, this, [this, pane] { setActivePane(pane); });
    connect(pane, &Pane::directoryChanged, this, whenActive(&MainWindow::showWhereWeAre));
    connect(pane, &Pane::deviceActivated, this, [this, pane](const Entry &device) {
        m_placeWork->withDevice(device, [pane](const Entry &place) { pane->openDirectory(place); });
    });
    connect(pane, &Pane::message, this, [this](const QString &text) { showMessage(text); });
    connect(pane->views(), &EntryViews::modeChanged, this, whenActive(&MainWindow::showViewMode));
    connect(pane->views(), &EntryViews::tabPressed, m_actions->otherPane, &QAction::trigger);
    connect(pane->views(), &EntryViews::menuRequested, this, [this, pane](const QPoint &position) {
        setActivePane(pane);
        QList<QAction *> last{m_actions->properties};
        if (Settings::ptr()->showViewSettingsInDirViewCtxMenu())
            last = QList<QAction *>{m_actions->sortMenu->menuAction(), m_actions->hidden} + last;
        m_files->showMenu(position, last);
    });
}

void MainWindow::setActivePane(Pane *pane)
{
    const bool changed = pane != m_active;
    m_active = pane;
    Pane *const other = otherPane();
    pane->setActive(other != nullptr); // a mark on the only one would tell nothing
    if (other)
        other->setActive(false);
    m_files->setPanes(pane, other);
    m_actions->otherPane->setEnabled(other);
    if (!changed)
        return;
    m_status->setPane(pane);
    showViewMode();
    showWhereWeAre();
}

void MainWindow::setTwoPanes(bool two)
{
    if (two == (otherPane() != nullptr))
        return;
    if (two && m_panes.size() == 1) {
        Pane *const pane = addPane();
        pane->views()->setMode(m_active->views()->mode());
        pane->model()->setShowHiddenEntries(m_actions->hidden->isChecked());
    }
    Pane *const added = m_panes.at(m_panes.first() == m_active ? 1 : 0);
    added->setVisible(two);
    if (two && !m_active->directory().isNull())
        added->openDirectory(m_active->directory());
    m_actions->twoPanes->setChecked(two);
    setActivePane(m_active);
    m_paneArea->setSizes({m_paneArea->width() / 2, m_paneArea->width() / 2});
}

void MainWindow::connectActions()
{
    const WindowActions &actions = *m_actions;
    const auto on = [this](QAction *action, auto slot) { connect(action, &QAction::triggered, this, slot); };
    on(actions.newWindow, &MainWindow::openAnotherWindow);
    on(actions.closeWindow, &QWidget::close);
    on(actions.quit, &QWidget::close);
    on(actions.selectAll, [this] { m_active->views()->selectAll(); });
    on(actions.invertSelection, [this] { m_active->views()->invertSelection(); });
    on(actions.back, [this] { m_active->goBack(); });
    on(actions.forward, [this] { m_active->goForward(); });
    on(actions.up, [this] { m_active->goUp(); });
    on(actions.home, [this] { openDirectory(VFS::ptr()->homeEntry()); });
    on(actions.trashCan, [this] { openDirectory(trashPlace()); });
    on(actions.path, [this] {
        m_active->pathBar()->setFocus(Qt::ShortcutFocusReason);
        m_active->pathBar()->selectAll();
    });
    on(actions.otherPane, [this] {
        if (Pane *const other = otherPane())
            other->focusView();
    });
    on(actions.about, [this] {
        QMessageBox::about(this, tr("About"),
                           tr("A file manager that shows what libveskfmcore %1 can do.").arg(Core::version()));
    });
    ArchiveFiles *const archives = m_files->work()->archives();
    on(actions.stop, [archives] { archives->cancel(); });
    connect(archives, &ArchiveFiles::busyChanged, actions.stop, &QAction::setEnabled);
    connect(m_files->work(), &FileWork::message, this, &MainWindow::showMessage);
}

void MainWindow::connectViewActions()
{
    const WindowActions &actions = *m_actions;
    const auto on = [this](QAction *action, auto slot) { connect(action, &QAction::triggered, this, slot); };
    on(actions.table, [this] { m_active->views()->setMode(EntryViews::Table); });
    on(actions.icons, [this] { m_active->views()->setMode(EntryViews::Icons); });
    on(actions.zoomIn, [this] { m_active->views()->zoom(1); });
    on(actions.zoomOut, [this] { m_active->views()->zoom(-1); });
    on(actions.zoomReset, [this] { m_active->views()->resetZoom(); });
    on(actions.filter, [this] { m_active->filterBar()->open(); });
    on(actions.reload, [this] { m_active->reload(); });
    on(actions.twoPanes, &MainWindow::setTwoPanes);
    connect(actions.hidden, &QAction::toggled, this, [this](bool show) {
        for (Pane *pane : qAsConst(m_panes))
            pane->model()->setShowHiddenEntries(show);
        m_panel->setShowHidden(show);
    });
    const auto showThumbnails = [this] {
        m_actions->thumbnails->setChecked(EntryViewParameters::ptr()->showThumbnails());
    };
    showThumbnails();
    connect(EntryViewParameters::ptr(), &EntryViewParameters::showThumbnailsChanged, this, showThumbnails);
    on(actions.thumbnails, [](bool show) { Settings::ptr()->setShowThumbnails(show); });
    connect(actions.sortMenu, &QMenu::aboutToShow, this, &MainWindow::fillSortMenu);
    const Settings *const settings = Settings::ptr();
    connect(settings, &Settings::showFullPathInWindowTitleChanged, this, &MainWindow::showWhereWeAre);
}

void MainWindow::connectPanel()
{
    m_actions->sidePanel->setChecked(true);
    connect(m_actions->sidePanel, &QAction::toggled, m_panel, &QWidget::setVisible);
    connect(m_actions->panelFocus, &QAction::triggered, this, [this] {
        m_actions->sidePanel->setChecked(true);
        (m_panel->places()->hasFocus() ? m_panel->tree() : m_panel->places())->setFocus(Qt::ShortcutFocusReason);
    });
    connect(m_panel, &SidePanel::opened, this, &MainWindow::openFromPanel);
    connect(m_panel, &SidePanel::entriesDropped, m_files,
            [this](const EntryList &entries, const Entry &target, Qt::DropAction action) {
                m_files->work()->transfer(entries, target, action == Qt::MoveAction);
            });
}

void MainWindow::connectFavorites()
{
    connect(m_placeWork, &PlaceWork::opened, this, &MainWindow::openFromPanel);
    connect(m_placeWork, &PlaceWork::message, this, &MainWindow::showMessage);
    auto *const drops = new FavoriteDrops(m_panel->places(), this);
    connect(drops, &FavoriteDrops::failed, this, [this](const QString &text) { showMessage(text); });
    connect(m_actions->favorite, &QAction::triggered, this, [this] {
        const Entry current = m_active->views()->selectedEntries().value(0);
        m_placeWork->addFavorite(current.isDir() ? current : m_active->directory());
    });
}

void MainWindow::openFromPanel(const Entry &entry, bool inOtherPane)
{
    m_placeWork->withDevice(entry, [this, inOtherPane](const Entry &place) {
        if (inOtherPane)
            openInOtherPane(place);
        else
            openDirectory(place);
    });
    m_active->focusView();
    m_panel->markDirectory(); // what was clicked may be somewhere else, or nowhere
}

void MainWindow::fillSortMenu()
{
    QMenu *const menu = m_actions->sortMenu;
    menu->clear();
    Model *const shown = model();
    auto *const properties = new QActionGroup(menu);
    const QList<QPair<QString, int>> sortable = shown->sortableProperties();
    for (const QPair<QString, int> &property : sortable) {
        QAction *const action = menu->addAction(property.first, shown, [shown, property] {
            shown->rebuildWithPropertySortIndex(property.second, Model::KeepOrder);
        });
        action->setCheckable(true);
        action->setChecked(property.second == shown->propertySortIndex());
        properties->addAction(action);
    }
    menu->addSeparator();
    QAction *const descending = menu->addAction(tr("Descending"));
    descending->setCheckable(true);
    descending->setChecked(shown->sortOrder() == Model::Descending);
    connect(descending, &QAction::triggered, shown,
            [shown](bool on) { shown->rebuildWithPropertySortIndex(-1, on ? Model::Descending : Model::Ascending); });
}

void MainWindow::openAnotherWindow()
{
    const Entry directory = m_active->directory();
    Desktop *const desktop = Desktop::ptr();
    if (desktop->isAvailable())
        desktop->callRegularWindow(directory, Desktop::NoOptions);
    else
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {directory.path()});
}

void MainWindow::showViewMode()
{
    const bool icons = m_active->views()->mode() == EntryViews::Icons;
    (icons ? m_actions->icons : m_actions->table)->setChecked(true);
}

void MainWindow::showWhereWeAre()
{
    const Entry directory = m_active->directory();
    m_actions->back->setEnabled(m_active->canGoBack());
    m_actions->forward->setEnabled(m_active->canGoForward());
    m_actions->up->setEnabled(m_active->canGoUp());
    if (directory.isNull())
        return;
    const bool fullPath = Settings::ptr()->showFullPathInWindowTitle();
    setWindowTitle(fullPath ? printableText(directory.path()) : shownName(directory));
    m_panel->showDirectory(directory);
}

void MainWindow::restoreLayout()
{
    WindowLayout().restore(this, m_content, m_panel);
}

void MainWindow::saveLayout() const
{
    WindowLayout().save(*this, *m_content, *m_panel);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    saveLayout();
    QMainWindow::closeEvent(event);
}
