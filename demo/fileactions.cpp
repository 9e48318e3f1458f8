// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fileactions.h"

#include "containers.h"
#include "filework.h"
#include "kiosk.h"
#include "pane.h"

#include <veskfm/clipboard.h>
#include <veskfm/corepaths.h>
#include <veskfm/model.h>
#include <veskfm/settings.h>
#include <veskfm/trash.h>
#include <veskplatform/newentry.h>
#include <veskplatform/vfs.h>

#include <QAction>
#include <QClipboard>
#include <QItemSelectionModel>
#include <QMenu>

using namespace VeskFM;

FileActions::FileActions(QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_work(new FileWork(window))
{
    createFileMenu();
    createEditMenu();
    connect(Clipboard::clipboard(), &QClipboard::dataChanged, this, &FileActions::enableActions);
}

void FileActions::createFileMenu()
{
    QList<QAction *> *const menu = &m_fileMenu;
    m_onSelection = {add(menu, "open", tr("Open"), QStringLiteral("document-open"), {}, [this] { openSelection(); }),
                     add(menu, "openWith", tr("Open With…"), QStringLiteral("system-run"), {Qt::CTRL + Qt::Key_Return},
                         [this] { m_work->open(selection(), true); })};
    m_onSelection.last()->setVisible(!Kiosk::isOn());
    addSeparator(menu);
    m_onWritable = {add(menu, "newFolder", tr("New Folder"), QStringLiteral("folder-new"),
                        {Qt::CTRL + Qt::SHIFT + Qt::Key_N}, [this] { m_work->makeFolder(); })};
    m_templates = new QMenu(tr("New File"), m_window);
    m_templates->setObjectName(QStringLiteral("newFileMenu"));
    m_templates->setIcon(QIcon::fromTheme(QStringLiteral("document-new")));
    menu->append(m_templates->menuAction());
    m_onWritable += m_templates->menuAction();
    connect(m_templates, &QMenu::aboutToShow, this, &FileActions::fillTemplates);
    addSeparator(menu);
    m_rename =
        add(menu, "rename", tr("Rename"), QStringLiteral("edit-rename"), {Qt::Key_F2}, [this] { m_work->rename(); });
    m_trash = add(menu, "trash", tr("Move to Trash"), QStringLiteral("user-trash"), {QKeySequence::Delete},
                  [this] { m_work->trash(selection()); });
    m_restore =
        add(menu, "restore", tr("Restore"), QStringLiteral("edit-undo"), {}, [this] { m_work->restore(selection()); });
    m_emptyTrash =
        add(menu, "emptyTrash", tr("Empty Trash"), QStringLiteral("trash-empty"), {}, [this] { m_work->emptyTrash(); });
    m_delete = add(menu, "delete", tr("Delete"), QStringLiteral("edit-delete"), {Qt::SHIFT + Qt::Key_Delete},
                   [this] { m_work->remove(selection()); });
}

void FileActions::createEditMenu()
{
    QList<QAction *> *const menu = &m_editMenu;
    m_onChange += add(menu, "cut", tr("Cut"), QStringLiteral("edit-cut"), {QKeySequence::Cut},
                      [this] { m_work->cut(selection()); });
    m_onSelection += add(menu, "copy", tr("Copy"), QStringLiteral("edit-copy"), {QKeySequence::Copy},
                         [this] { m_work->copy(selection()); });
    m_paste = add(menu, "paste", tr("Paste"), QStringLiteral("edit-paste"), {QKeySequence::Paste},
                  [this] { m_work->paste(); });
    addSeparator(menu);
    m_copyToOther = add(menu, "copyToOther", tr("Copy to Other Pane"), QStringLiteral("edit-copy"), {Qt::Key_F5},
                        [this] { m_work->transfer(selection(), m_other->directory(), false); });
    m_moveToOther = add(menu, "moveToOther", tr("Move to Other Pane"), QStringLiteral("go-jump"), {Qt::Key_F6},
                        [this] { m_work->transfer(selection(), m_other->directory(), true); });
}

QAction *FileActions::add(QList<QAction *> *menu, const char *name, const QString &text, const QString &iconName,
                          const QList<QKeySequence> &keys, const std::function<void()> &slot)
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
    m_work->setPane(active);
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
    connect(pane, &Pane::fileActivated, this, [this](const Entry &file) { m_work->open(EntryList{file}, false); });
    connect(pane->views(), &EntryViews::entriesDropped, this,
            [this](const EntryList &entries, const Entry &target, Qt::DropAction action) {
                m_work->transfer(entries, target, action == Qt::MoveAction);
            });
    connect(pane->views(), &EntryViews::dragRequested, this,
            [this, pane] { m_work->drag(pane->views()->view(), pane->views()->selectedEntries()); });
    m_work->listenTo(pane);
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
    const Entry first = any ? m_pane->model()->entryByIndex(selected.first().topLeft()) : Entry();
    const bool trashed = any && Trash::ptr()->hasEntries(EntryList{first});
    m_rename->setEnabled(writable && selected.size() == 1 && selected.first().height() == 1);
    m_trash->setEnabled(any && m_pane->hasTrash());
    m_delete->setEnabled(any && (writable || trashed));
    m_restore->setVisible(trashed);
    m_emptyTrash->setVisible(m_pane->directory().isTrashDirPlace());
    for (QAction *action : {m_copyToOther, m_moveToOther})
        action->setVisible(m_other);
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
    QList<QAction *> rest = m_fileMenu.mid(2);
    if (!Settings::ptr()->showDeleteItemInDirViewCtxMenu())
        rest.removeOne(m_delete);
    menu.addSeparator();
    menu.addActions(rest);
    menu.addSeparator();
    menu.addActions(last);
    menu.exec(globalPosition);
}

void FileActions::fillTemplates()
{
    m_templates->clear();
    m_templates->addAction(QIcon::fromTheme(QStringLiteral("text-x-generic")), tr("Empty File"), this,
                           [this] { m_work->makeFile(QString(), tr("New file")); });
    const QList<NewFileTemplate> templates = newFileTemplates();
    for (const NewFileTemplate &offered : templates) {
        QString name = offered.name;
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        m_templates->addAction(QIcon::fromTheme(offered.icon), name, this, [this, offered] {
            m_work->makeFile(offered.templatePath, offered.templatePath.section(QLatin1Char('/'), -1));
        });
    }
}

EntryList FileActions::selection() const
{
    return m_pane->views()->selectedEntries();
}

void FileActions::openSelection()
{
    const EntryList entries = selection();
    if (entries.size() == 1 && canBeShown(entries.first()))
        m_pane->openDirectory(entries.first());
    else if (!entries.isEmpty())
        m_work->open(entries, false);
}
