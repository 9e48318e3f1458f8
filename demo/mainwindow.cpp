// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mainwindow.h"

#include "fileactions.h"
#include "options.h"
#include "pathbar.h"
#include "printabletext.h"
#include "statusline.h"

#include <veskfm/desktop.h>
#include <veskfm/modelfilter.h>
#include <veskplatform/entrywatcher.h>
#include <veskplatform/standardpaths.h>
#include <veskplatform/vfs.h>

#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <QProcess>
#include <QShortcut>
#include <QToolBar>

#include <utility>

using namespace VeskFM;

namespace
{

constexpr int filterDelayMs = 200;
constexpr int messageTimeMs = 5000;

bool canBeShown(const Entry &entry)
{
    return !entry.isNull() && (entry.isDir() || entry.isPlace());
}

// The virtual root above the file system has nothing to show in this small program.
Entry parentToShow(const Entry &directory)
{
    const Entry parent = VFS::ptr()->parent(directory);
    return parent == VFS::ptr()->rootEntry() ? Entry() : parent;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_model(Model::TableMode, ModelFilter::AllEntries, nullptr)
    , m_view(&m_model)
{
    m_model.setShowDotDot(true);
    setCentralWidget(&m_view);
    createToolBar();
    createShortcuts();
    setStatusBar(new StatusLine(&m_model, &m_view, this));
    m_actions = new FileActions(&m_model, &m_view, this);
    connect(m_actions, &FileActions::message, this,
            [this](const QString &text, bool lasting) { statusBar()->showMessage(text, lasting ? 0 : messageTimeMs); });
    followDirectory();
    resize(1000, 650);
    m_view.setFocus();
}

Model *MainWindow::model()
{
    return &m_model;
}

bool MainWindow::configure(const Options &options)
{
    m_filter->setText(options.filter);
    m_filterTimer.stop();
    m_hidden->setChecked(options.hidden);
    return applyOptions(options, &m_model);
}

void MainWindow::openDirectory(const Entry &directory)
{
    const Entry previous = m_model.actualRootEntry();
    if (!showDirectory(directory))
        return;
    if (!previous.isNull() && previous != directory)
        m_earlier.append(previous);
    m_later.clear();
    showWhereWeAre();
}

void MainWindow::createToolBar()
{
    QToolBar *bar = addToolBar(tr("Navigation"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_back = addNavigation(bar, QStringLiteral("go-previous"), tr("Back"), {QKeySequence::Back}, &MainWindow::goBack);
    m_forward =
        addNavigation(bar, QStringLiteral("go-next"), tr("Forward"), {QKeySequence::Forward}, &MainWindow::goForward);
    m_up = addNavigation(bar, QStringLiteral("go-up"), tr("Up"), {Qt::ALT + Qt::Key_Up, Qt::Key_Backspace},
                         &MainWindow::goUp);

    m_pathBar = new PathBar(bar);
    bar->addWidget(m_pathBar);
    connect(m_pathBar, &PathBar::directoryEntered, this, &MainWindow::openDirectory);
    connect(m_pathBar, &PathBar::directoryEntered, &m_view, QOverload<>::of(&QWidget::setFocus));
    connect(m_pathBar, &PathBar::entryRefused, this,
            [this](const QString &message) { statusBar()->showMessage(message, messageTimeMs); });

    m_filter = new QLineEdit(bar);
    m_filter->setPlaceholderText(tr("Filter: name or *.png;*.jpg"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setFixedWidth(fontMetrics().averageCharWidth() * 32);
    bar->addWidget(m_filter);
    m_filterTimer.setSingleShot(true);
    m_filterTimer.setInterval(filterDelayMs);
    connect(m_filter, &QLineEdit::textChanged, &m_filterTimer, QOverload<>::of(&QTimer::start));
    connect(m_filter, &QLineEdit::returnPressed, this, &MainWindow::applyFilter);
    connect(&m_filterTimer, &QTimer::timeout, this, &MainWindow::applyFilter);

    m_hidden = bar->addAction(tr("Hidden"));
    m_hidden->setCheckable(true);
    m_hidden->setShortcut(Qt::CTRL + Qt::Key_H);
    m_hidden->setToolTip(tr("Show hidden files (Ctrl+H)"));
    connect(m_hidden, &QAction::toggled, this, [this](bool on) { m_model.setShowHiddenEntries(on); });
}

QAction *MainWindow::addNavigation(QToolBar *bar, const QString &iconName, const QString &text,
                                   const QList<QKeySequence> &keys, void (MainWindow::*slot)())
{
    QAction *action = bar->addAction(QIcon::fromTheme(iconName), text, this, slot);
    action->setShortcuts(keys);
    return action;
}

void MainWindow::createShortcuts()
{
    const auto focusAll = [](QLineEdit *edit) {
        return [edit] {
            edit->setFocus();
            edit->selectAll();
        };
    };
    connect(new QShortcut(Qt::CTRL + Qt::Key_L, this), &QShortcut::activated, m_pathBar, focusAll(m_pathBar));
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_filter, focusAll(m_filter));
    connect(new QShortcut(QKeySequence::New, this), &QShortcut::activated, this, &MainWindow::openAnotherWindow);
    connect(new QShortcut(Qt::CTRL + Qt::Key_T, this), &QShortcut::activated, this,
            [this] { openDirectory(VFS::ptr()->entry(StandardPaths::trashDirPath())); });
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this, [this] { m_model.rebuild(); });
    connect(new QShortcut(QKeySequence::Quit, this), &QShortcut::activated, this, &QWidget::close);
}

void MainWindow::openAnotherWindow()
{
    Desktop *const desktop = Desktop::ptr();
    if (desktop->isAvailable())
        desktop->callRegularWindow(m_model.actualRootEntry(), Desktop::NoOptions);
    else
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {m_model.actualRootEntry().localPath()});
}

void MainWindow::followDirectory()
{
    connect(&m_view, &DirectoryView::entryActivated, this, &MainWindow::activateEntry);
    connect(&m_model, &Model::dirListed, this, [this](const Entry &directory) {
        if (directory == m_model.actualRootEntry())
            m_view.showEntry(std::exchange(m_cameFrom, {}));
    });
    // Queued, since the watcher speaks from any thread.
    connect(VFS::ptr()->entryWatcher(), &EntryWatcher::entryDeleted, this, &MainWindow::leaveDeletedDirectory,
            Qt::QueuedConnection);
}

void MainWindow::goBack()
{
    if (m_earlier.isEmpty())
        return;
    const Entry previous = m_model.actualRootEntry();
    if (showDirectory(m_earlier.takeLast()))
        m_later.append(previous);
    showWhereWeAre();
}

void MainWindow::goForward()
{
    if (m_later.isEmpty())
        return;
    const Entry previous = m_model.actualRootEntry();
    if (showDirectory(m_later.takeLast()))
        m_earlier.append(previous);
    showWhereWeAre();
}

void MainWindow::goUp()
{
    const Entry parent = parentToShow(m_model.actualRootEntry());
    if (!parent.isNull())
        openDirectory(parent);
}

void MainWindow::activateEntry(const Entry &entry)
{
    if (canBeShown(entry))
        openDirectory(entry);
    else
        m_actions->open(EntryList{entry}, false);
}

bool MainWindow::showDirectory(const Entry &directory)
{
    if (!canBeShown(directory) || !VFS::ptr()->isEntryExists(directory)) {
        statusBar()->showMessage(tr("There is no folder %1").arg(printableText(directory.path())), messageTimeMs);
        return false;
    }
    const Entry previous = m_model.actualRootEntry();
    m_cameFrom = !previous.isNull() && VFS::ptr()->parent(previous) == directory ? previous : Entry();
    if (previous != directory && !previous.isNull() && !m_filter->text().isEmpty()) {
        m_filter->clear(); // a filter is for the directory it was typed in
        m_filterTimer.stop();
        m_model.filter().setNameFilters(nameFilterPatterns({}));
        m_model.filter().flushChanges(); // the rebuild below is enough
    }
    statusBar()->clearMessage();
    m_model.rebuild(directory);
    return true;
}

void MainWindow::showWhereWeAre()
{
    const Entry directory = m_model.actualRootEntry();
    m_pathBar->setDirectory(directory);
    m_back->setEnabled(!m_earlier.isEmpty());
    m_forward->setEnabled(!m_later.isEmpty());
    m_up->setEnabled(!parentToShow(directory).isNull());
    const QString name = directory.lastPathSection();
    setWindowTitle(printableText(name.isEmpty() ? directory.path() : name));
}

// The model keeps its root whatever happens to it; a window should not stay where nothing is any more.
void MainWindow::leaveDeletedDirectory(const Entry &deleted)
{
    if (deleted.isNull() || deleted != m_model.actualRootEntry() || VFS::ptr()->isEntryExists(deleted))
        return;
    Entry parent = parentToShow(deleted);
    while (!parent.isNull() && !VFS::ptr()->isEntryExists(parent))
        parent = parentToShow(parent);
    if (parent.isNull())
        return;
    openDirectory(parent);
    statusBar()->showMessage(tr("%1 has been deleted").arg(printableText(deleted.path())), messageTimeMs);
}

void MainWindow::applyFilter()
{
    m_filterTimer.stop();
    m_model.setNameFilters(nameFilterPatterns(m_filter->text()));
}
