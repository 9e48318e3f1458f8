// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fileactions.h"

#include "containers.h"
#include "inplaceeditor.h"
#include "kiosk.h"
#include "newentry.h"
#include "pane.h"
#include "printabletext.h"

#include <veskfm/clipboard.h>
#include <veskfm/corepaths.h>
#include <veskfm/model.h>
#include <veskfm/open.h>
#include <veskfm/trash.h>
#include <veskplatform/vfs.h>

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QItemSelectionModel>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QMimeDatabase>

#include <algorithm>
#include <utility>

using namespace VeskFM;

namespace
{

QString itemCount(int count)
{
    return count == 1 ? FileActions::tr("1 item") : FileActions::tr("%1 items").arg(count);
}

} // namespace

FileActions::FileActions(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    createFileMenu();
    createEditMenu();
    connect(Clipboard::clipboard(), &QClipboard::dataChanged, this, &FileActions::enableActions);
    connect(&m_operations, &OperationTracker::progress, this, [this](const QString &text) { message(text, true); });
    connect(&m_operations, &OperationTracker::finished, this, [this](const QString &text) { message(text, false); });
    connect(&m_operations, &OperationTracker::made, this, &FileActions::showMade);
}

void FileActions::createFileMenu()
{
    QList<QAction *> *const menu = &m_fileMenu;
    m_onSelection = {add(menu, "open", tr("Open"), QStringLiteral("document-open"), {}, &FileActions::openSelection),
                     add(menu, "openWith", tr("Open With…"), QStringLiteral("system-run"), {Qt::CTRL + Qt::Key_Return},
                         &FileActions::openWith)};
    m_onSelection.last()->setVisible(!Kiosk::isOn());
    addSeparator(menu);
    m_onWritable = {add(menu, "newFolder", tr("New Folder"), QStringLiteral("folder-new"),
                        {Qt::CTRL + Qt::SHIFT + Qt::Key_N}, &FileActions::makeFolder)};
    m_templates = new QMenu(tr("New File"), m_window);
    m_templates->setObjectName(QStringLiteral("newFileMenu"));
    m_templates->setIcon(QIcon::fromTheme(QStringLiteral("document-new")));
    menu->append(m_templates->menuAction());
    m_onWritable += m_templates->menuAction();
    connect(m_templates, &QMenu::aboutToShow, this, &FileActions::fillTemplates);
    addSeparator(menu);
    m_rename = add(menu, "rename", tr("Rename"), QStringLiteral("edit-rename"), {Qt::Key_F2}, &FileActions::rename);
    m_onChange += add(menu, "trash", tr("Move to Trash"), QStringLiteral("user-trash"), {QKeySequence::Delete},
                      &FileActions::trash);
    m_restore = add(menu, "restore", tr("Restore"), QStringLiteral("edit-undo"), {}, &FileActions::restore);
    m_onChange += add(menu, "delete", tr("Delete"), QStringLiteral("edit-delete"), {Qt::SHIFT + Qt::Key_Delete},
                      &FileActions::remove);
}

void FileActions::createEditMenu()
{
    QList<QAction *> *const menu = &m_editMenu;
    m_onChange += add(menu, "cut", tr("Cut"), QStringLiteral("edit-cut"), {QKeySequence::Cut}, &FileActions::cut);
    m_onSelection +=
        add(menu, "copy", tr("Copy"), QStringLiteral("edit-copy"), {QKeySequence::Copy}, &FileActions::copy);
    m_paste = add(menu, "paste", tr("Paste"), QStringLiteral("edit-paste"), {QKeySequence::Paste}, &FileActions::paste);
    addSeparator(menu);
    m_copyToOther = add(menu, "copyToOther", tr("Copy to Other Pane"), QStringLiteral("edit-copy"), {Qt::Key_F5},
                        &FileActions::copyToOther);
    m_moveToOther = add(menu, "moveToOther", tr("Move to Other Pane"), QStringLiteral("go-jump"), {Qt::Key_F6},
                        &FileActions::moveToOther);
}

QAction *FileActions::add(QList<QAction *> *menu, const char *name, const QString &text, const QString &iconName,
                          const QList<QKeySequence> &keys, void (FileActions::*slot)())
{
    auto *const action = new QAction(QIcon::fromTheme(iconName), text, m_window);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys); // a line that is being edited takes those for text first
    connect(action, &QAction::triggered, this, slot);
    menu->append(action);
    return action;
}

void FileActions::addSeparator(QList<QAction *> *menu)
{
    auto *const separator = new QAction(m_window);
    separator->setSeparator(true);
    menu->append(separator);
}

void FileActions::setPanes(Pane *active, Pane *other)
{
    m_pane = active;
    m_other = other;
    enableActions();
}

void FileActions::listenTo(Pane *pane)
{
    const auto enable = [this, pane] {
        if (pane == m_pane || pane == m_other)
            enableActions();
    };
    connect(pane->views(), &EntryViews::selectionChanged, this, enable);
    connect(pane, &Pane::directoryChanged, this, enable);
    connect(pane, &Pane::fileActivated, this, [this](const Entry &file) { open(EntryList{file}, false); });
    connect(pane->views(), &EntryViews::entriesDropped, this,
            [this](const EntryList &entries, const Entry &target, Qt::DropAction action) {
                transfer(entries, target, action == Qt::MoveAction);
            });
    connect(pane->model(), &QAbstractItemModel::rowsInserted, this, &FileActions::showAwaited);
}

void FileActions::enableActions()
{
    if (!m_pane)
        return;
    const QItemSelection selected = m_pane->views()->selectionModel()->selection(); // of many rows: they stay unlisted
    const bool any = !selected.isEmpty();
    const bool writable = m_pane->isWritable();
    for (QAction *action : qAsConst(m_onSelection))
        action->setEnabled(any);
    for (QAction *action : qAsConst(m_onChange))
        action->setEnabled(any && writable);
    for (QAction *action : qAsConst(m_onWritable))
        action->setEnabled(writable);
    m_rename->setEnabled(writable && selected.size() == 1 && selected.first().height() == 1);
    const Entry first = any ? m_pane->model()->entryByIndex(selected.first().topLeft()) : Entry();
    m_restore->setEnabled(any && Trash::ptr()->hasEntries(EntryList{first}));
    m_restore->setVisible(m_restore->isEnabled());
    m_copyToOther->setEnabled(any && m_other && m_other->isWritable());
    m_moveToOther->setEnabled(m_copyToOther->isEnabled() && writable);
    const Clipboard *const clipboard = Clipboard::ptr();
    m_paste->setEnabled(writable
                        && !clipboard->actualMimeTypes(Clipboard::clipboardMimeData(Clipboard::clipboard())).isEmpty());
}

void FileActions::showMenu(const QPoint &globalPosition, const QList<QAction *> &last)
{
    QMenu menu(m_window);
    menu.setObjectName(QStringLiteral("contextMenu"));
    menu.addActions(m_fileMenu.mid(0, 2));
    menu.addSeparator();
    menu.addActions(m_editMenu);
    menu.addActions(m_fileMenu.mid(2));
    menu.addSeparator();
    menu.addActions(last);
    menu.exec(globalPosition);
}

void FileActions::fillTemplates()
{
    m_templates->clear();
    m_templates->addAction(QIcon::fromTheme(QStringLiteral("text-x-generic")), tr("Empty File"), this,
                           [this] { makeFile(QString(), tr("New file")); });
    const QList<NewFileTemplate> templates = newFileTemplates();
    for (const NewFileTemplate &offered : templates) {
        QString name = offered.name;
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        m_templates->addAction(QIcon::fromTheme(offered.icon), name, this, [this, offered] {
            makeFile(offered.templatePath, offered.templatePath.section(QLatin1Char('/'), -1));
        });
    }
}

EntryList FileActions::selection() const
{
    return m_pane->views()->selectedEntries();
}

Entry FileActions::freeEntry(const QString &baseName, const QString &suffix) const
{
    const Entry directory = m_pane->directory();
    return newEntry(directory, uniqueFileName(directory.localPath(), baseName, suffix));
}

void FileActions::open(const EntryList &entries, bool chooseApplication)
{
    if (std::any_of(entries.cbegin(), entries.cend(), [](const Entry &entry) { return !Kiosk::mayOpen(entry); })) {
        Q_EMIT message(tr("Only applications of the kiosk are started here"), false);
        return;
    }
    Open *const opener = Open::ptr();
    m_openerSeen = m_openerSeen || opener->isAvailable(); // one that has died since is started again
    if (!m_openerSeen) {
        Q_EMIT message(tr("The service that opens files is not installed here"), false);
        return;
    }
    opener->open(entries,
                 {{QStringLiteral("dialog"), chooseApplication},
                  {QStringLiteral("workingDir"), m_pane->directory().localPath()}});
    Q_EMIT message(tr("Opening %1").arg(printableText(entries.first().fileName())), false);
}

void FileActions::openSelection()
{
    const EntryList entries = selection();
    if (entries.size() == 1 && canBeShown(entries.first()))
        m_pane->openDirectory(entries.first());
    else if (!entries.isEmpty())
        open(entries, false);
}

void FileActions::openWith()
{
    open(selection(), true);
}

void FileActions::copy()
{
    Clipboard::ptr()->setEntries(selection(), Clipboard::Copy);
}

void FileActions::cut()
{
    Clipboard::ptr()->setEntries(selection(), Clipboard::Cut);
}

void FileActions::paste()
{
    const EntryList cutEntries = Clipboard::ptr()->entries(Clipboard::Cut);
    if (cutEntries.isEmpty()) {
        transfer(Clipboard::ptr()->entries(Clipboard::Copy), m_pane->directory(), false);
        return;
    }
    transfer(cutEntries, m_pane->directory(), true);
    Clipboard::clear(); // they are not where it says any more
}

void FileActions::copyToOther()
{
    transfer(selection(), m_other->directory(), false);
}

void FileActions::moveToOther()
{
    transfer(selection(), m_other->directory(), true);
}

void FileActions::transfer(const EntryList &entries, const Entry &target, bool move)
{
    if (entries.isEmpty() || !m_operations.isAvailable())
        return;
    if (move)
        m_operations.follow(FOps::ptr()->move(entries, target), tr("Moving %1").arg(itemCount(entries.size())));
    else
        m_operations.follow(FOps::ptr()->copy(entries, target), tr("Copying %1").arg(itemCount(entries.size())));
}

void FileActions::trash()
{
    const EntryList entries = selection();
    if (!entries.isEmpty() && m_operations.isAvailable())
        m_operations.follow(FOps::ptr()->trash(entries, false), tr("Trashing %1").arg(itemCount(entries.size())));
}

void FileActions::restore()
{
    const EntryList entries = selection();
    if (m_operations.isAvailable())
        m_operations.follow(FOps::ptr()->restore(entries), tr("Restoring %1").arg(itemCount(entries.size())));
}

void FileActions::remove()
{
    const EntryList entries = selection();
    if (entries.isEmpty() || !m_operations.isAvailable())
        return;
    const QString question = tr("Delete %1 for good? This cannot be undone.").arg(itemCount(entries.size()));
    if (QMessageBox::question(m_window, tr("Delete"), question) == QMessageBox::Yes)
        m_operations.follow(FOps::ptr()->remove(entries, false), tr("Deleting %1").arg(itemCount(entries.size())));
}

void FileActions::rename()
{
    EntryViews *const views = m_pane->views();
    const QModelIndex index = views->selectionModel()->currentIndex().siblingAtColumn(0);
    if (!index.isValid() || !m_pane->model()->flags(index).testFlag(Qt::ItemIsSelectable)) // the ".." row
        return;
    const Entry entry = m_pane->model()->entryByIndex(index);
    views->view()->scrollTo(index);
    auto *const editor = new InPlaceEditor(views->view(), views->nameRect(index), entry.fileName());
    connect(editor, &InPlaceEditor::accepted, this, [this, entry](const QString &name) {
        const Entry target = newEntry(VFS::ptr()->parent(entry), name);
        if (name.contains(QLatin1Char('/')) || name == QLatin1String(".") || name == QLatin1String("..")) {
            Q_EMIT message(tr("A name cannot be “%1”").arg(printableText(name)), false);
        } else if (m_operations.isAvailable()) {
            await(target, false);
            m_operations.follow(FOps::ptr()->rename(entry, target), tr("Renaming"));
        }
    });
}

void FileActions::makeFolder()
{
    if (!m_operations.isAvailable())
        return;
    await(freeEntry(tr("New folder"), QString()), true);
    m_operations.follow(FOps::ptr()->makeDir(m_awaited), tr("New folder"));
}

void FileActions::makeFile(const QString &templatePath, const QString &name)
{
    if (!m_operations.isAvailable())
        return;
    const QString suffix = QMimeDatabase().suffixForFileName(name);
    await(freeEntry(suffix.isEmpty() ? name : name.left(name.size() - suffix.size() - 1), suffix), true);
    m_operations.follow(templatePath.isEmpty() ? FOps::ptr()->makeFile(m_awaited)
                                               : FOps::ptr()->makeFromTemplate(m_awaited, templatePath),
                        tr("New file"));
}

void FileActions::await(const Entry &entry, bool renames)
{
    m_awaitingPane = m_pane;
    m_awaited = entry;
    m_renamesAwaited = renames;
}

// The row may come before the result, or after it.
void FileActions::showMade(const EntryList &entries, FOps::OperationType type)
{
    if (m_awaited.isNull() && !entries.isEmpty() && type != FOps::Trash)
        await(entries.first(), false);
    showAwaited();
}

void FileActions::showAwaited()
{
    if (m_awaited.isNull() || !m_awaitingPane || !m_awaitingPane->model()->indexOfEntry(m_awaited).isValid())
        return;
    m_awaitingPane->views()->showEntry(std::exchange(m_awaited, {}));
    if (std::exchange(m_renamesAwaited, false) && m_awaitingPane == m_pane)
        QMetaObject::invokeMethod(this, &FileActions::rename, Qt::QueuedConnection); // once the view has its new row
}
