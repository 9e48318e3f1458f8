// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fileactions.h"

#include "directoryview.h"
#include "inplaceeditor.h"
#include "newentry.h"
#include "printabletext.h"

#include <veskfm/clipboard.h>
#include <veskfm/corepaths.h>
#include <veskfm/model.h>
#include <veskfm/open.h>
#include <veskfm/trash.h>
#include <veskplatform/vfs.h>

#include <QAction>
#include <QClipboard>
#include <QItemSelectionModel>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QMimeDatabase>

#include <utility>

using namespace VeskFM;

namespace
{

QString itemCount(int count)
{
    return count == 1 ? FileActions::tr("1 item") : FileActions::tr("%1 items").arg(count);
}

} // namespace

FileActions::FileActions(Model *model, DirectoryView *view, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_view(view)
{
    m_onSelection = {
        add(tr("Open With …"), QStringLiteral("system-run"), {Qt::CTRL + Qt::Key_Return}, &FileActions::openWith)};
    addSeparator();
    m_onSelection += add(tr("Copy"), QStringLiteral("edit-copy"), {QKeySequence::Copy}, &FileActions::copy);
    m_onSelection += add(tr("Cut"), QStringLiteral("edit-cut"), {QKeySequence::Cut}, &FileActions::cut);
    m_paste = add(tr("Paste"), QStringLiteral("edit-paste"), {QKeySequence::Paste}, &FileActions::paste);
    addSeparator();
    m_rename = add(tr("Rename"), QStringLiteral("edit-rename"), {Qt::Key_F2}, &FileActions::rename);
    m_onSelection +=
        add(tr("Move to Trash"), QStringLiteral("user-trash"), {QKeySequence::Delete}, &FileActions::trash);
    m_restore = add(tr("Restore"), QStringLiteral("edit-undo"), {}, &FileActions::restore);
    m_onSelection +=
        add(tr("Delete"), QStringLiteral("edit-delete"), {Qt::SHIFT + Qt::Key_Delete}, &FileActions::remove);
    addSeparator();
    add(tr("New Folder"), QStringLiteral("folder-new"), {Qt::CTRL + Qt::SHIFT + Qt::Key_N}, &FileActions::makeFolder);
    m_templates = new QMenu(tr("New File"), view);
    m_templates->setIcon(QIcon::fromTheme(QStringLiteral("document-new")));
    view->addAction(m_templates->menuAction());
    connect(m_templates, &QMenu::aboutToShow, this, &FileActions::fillTemplates);

    view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view, &QWidget::customContextMenuRequested, this, &FileActions::showMenu);
    connect(view, &DirectoryView::selectedRowsChanged, this, &FileActions::enableActions);
    connect(view, &DirectoryView::entriesDropped, this, &FileActions::drop);
    connect(Clipboard::clipboard(), &QClipboard::dataChanged, this, &FileActions::enableActions);
    connect(model, &QAbstractItemModel::rowsInserted, this, &FileActions::showAwaited);
    connect(&m_operations, &OperationTracker::progress, this, [this](const QString &text) { message(text, true); });
    connect(&m_operations, &OperationTracker::finished, this, [this](const QString &text) { message(text, false); });
    connect(&m_operations, &OperationTracker::made, this, &FileActions::showMade);
    enableActions();
}

QAction *FileActions::add(const QString &text, const QString &iconName, const QList<QKeySequence> &keys,
                          void (FileActions::*slot)())
{
    auto *const action = new QAction(QIcon::fromTheme(iconName), text, m_view);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut); // the path bar has copy and paste of its own
    connect(action, &QAction::triggered, this, slot);
    m_view->addAction(action);
    return action;
}

void FileActions::addSeparator()
{
    auto *const separator = new QAction(m_view);
    separator->setSeparator(true);
    m_view->addAction(separator);
}

void FileActions::enableActions()
{
    const QItemSelection selected = m_view->selectionModel()->selection(); // its rows may be many: they stay unlisted
    for (QAction *action : qAsConst(m_onSelection))
        action->setEnabled(!selected.isEmpty());
    m_rename->setEnabled(selected.size() == 1 && selected.first().height() == 1);
    m_restore->setEnabled(!selected.isEmpty()
                          && Trash::ptr()->hasEntries(EntryList{m_model->entryByIndex(selected.first().topLeft())}));
    const Clipboard *const clipboard = Clipboard::ptr();
    m_paste->setEnabled(!clipboard->actualMimeTypes(Clipboard::clipboardMimeData(Clipboard::clipboard())).isEmpty());
}

void FileActions::showMenu(const QPoint &position)
{
    QMenu::exec(m_view->actions(), m_view->viewport()->mapToGlobal(position), nullptr, m_view);
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
    return m_model->indexesToEntries(m_view->selectionModel()->selectedRows());
}

Entry FileActions::freeEntry(const QString &baseName, const QString &suffix) const
{
    const Entry directory = m_model->actualRootEntry();
    return newEntry(directory, uniqueFileName(directory.localPath(), baseName, suffix));
}

void FileActions::open(const EntryList &entries, bool chooseApplication)
{
    Open *const opener = Open::ptr();
    m_openerSeen = m_openerSeen || opener->isAvailable(); // one that has died since is started again
    if (!m_openerSeen) {
        Q_EMIT message(tr("The service that opens files is not installed here"), false);
        return;
    }
    opener->open(entries,
                 {{QStringLiteral("dialog"), chooseApplication},
                  {QStringLiteral("workingDir"), m_model->actualRootEntry().localPath()}});
    Q_EMIT message(tr("Opening %1").arg(printableText(entries.first().fileName())), false);
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
        transfer(Clipboard::ptr()->entries(Clipboard::Copy), m_model->actualRootEntry(), false);
        return;
    }
    transfer(cutEntries, m_model->actualRootEntry(), true);
    Clipboard::clear(); // they are not where it says any more
}

void FileActions::drop(const EntryList &entries, const Entry &target, Qt::DropAction action)
{
    transfer(entries, target, action == Qt::MoveAction);
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
    if (QMessageBox::question(m_view, tr("Delete"), question) == QMessageBox::Yes)
        m_operations.follow(FOps::ptr()->remove(entries, false), tr("Deleting %1").arg(itemCount(entries.size())));
}

void FileActions::rename()
{
    const QModelIndex index = m_view->currentIndex().siblingAtColumn(0);
    if (!index.isValid() || !m_model->flags(index).testFlag(Qt::ItemIsSelectable)) // the ".." row
        return;
    const Entry entry = m_model->entryByIndex(index);
    auto *const editor = new InPlaceEditor(m_view, index, entry.fileName());
    connect(editor, &InPlaceEditor::accepted, this, [this, entry](const QString &name) {
        const Entry target = newEntry(VFS::ptr()->parent(entry), name);
        if (name.contains(QLatin1Char('/')) || name == QLatin1String(".") || name == QLatin1String("..")) {
            Q_EMIT message(tr("A name cannot be “%1”").arg(printableText(name)), false);
        } else if (m_operations.isAvailable()) {
            m_awaited = target;
            m_operations.follow(FOps::ptr()->rename(entry, target), tr("Renaming"));
        }
    });
}

void FileActions::makeFolder()
{
    if (!m_operations.isAvailable())
        return;
    m_awaited = freeEntry(tr("New folder"), QString());
    m_renamesAwaited = true;
    m_operations.follow(FOps::ptr()->makeDir(m_awaited), tr("New folder"));
}

void FileActions::makeFile(const QString &templatePath, const QString &name)
{
    if (!m_operations.isAvailable())
        return;
    const QString suffix = QMimeDatabase().suffixForFileName(name);
    m_awaited = freeEntry(suffix.isEmpty() ? name : name.left(name.size() - suffix.size() - 1), suffix);
    m_renamesAwaited = true;
    m_operations.follow(templatePath.isEmpty() ? FOps::ptr()->makeFile(m_awaited)
                                               : FOps::ptr()->makeFromTemplate(m_awaited, templatePath),
                        tr("New file"));
}

// The row may come before the result, or after it.
void FileActions::showMade(const EntryList &entries, FOps::OperationType type)
{
    if (m_awaited.isNull() && !entries.isEmpty() && type != FOps::Trash)
        m_awaited = entries.first();
    showAwaited();
}

void FileActions::showAwaited()
{
    if (m_awaited.isNull() || !m_model->indexOfEntry(m_awaited).isValid())
        return;
    m_view->showEntry(std::exchange(m_awaited, {}));
    if (std::exchange(m_renamesAwaited, false))
        QMetaObject::invokeMethod(this, &FileActions::rename, Qt::QueuedConnection); // once the view has its new row
}
