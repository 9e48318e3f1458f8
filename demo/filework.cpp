// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filework.h"

#include "containers.h"
#include "entrydrag.h"
#include "inplaceeditor.h"
#include "kiosk.h"
#include "pane.h"
#include "printabletext.h"

#include <veskfm/clipboard.h>
#include <veskfm/corepaths.h>
#include <veskfm/open.h>
#include <veskplatform/archivemount.h>
#include <veskplatform/newentry.h>
#include <veskplatform/vfs.h>

#include <QAbstractItemView>
#include <QMessageBox>
#include <QMimeDatabase>

#include <algorithm>
#include <utility>

using namespace VeskFM;

namespace
{

QString itemCount(int count)
{
    return FileWork::tr("%Ln item(s)", nullptr, count);
}

} // namespace

FileWork::FileWork(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    connect(&m_operations, &OperationTracker::progress, this, [this](const QString &text) { message(text, true); });
    connect(&m_operations, &OperationTracker::finished, this, [this](const QString &text) { message(text, false); });
    connect(&m_operations, &OperationTracker::made, this, &FileWork::showMade);
    connect(&m_archives, &ArchiveFiles::message, this, &FileWork::message);
}

void FileWork::setPane(Pane *active)
{
    m_pane = active;
}

void FileWork::listenTo(Pane *pane)
{
    connect(pane->model(), &QAbstractItemModel::rowsInserted, this, &FileWork::showAwaited);
}

Entry FileWork::freeEntry(const QString &baseName, const QString &suffix) const
{
    const Entry directory = m_pane->directory();
    return newEntry(directory, uniqueFileName(directory.localPath(), baseName, suffix));
}

void FileWork::open(const EntryList &entries, bool chooseApplication)
{
    m_archives.withFiles(entries, [this, chooseApplication](const EntryList &files) {
        if (files.size() == 1 && canBeShown(files.first()) && !chooseApplication)
            m_pane->openDirectory(files.first()); // an archive that came out of another
        else if (!files.isEmpty())
            openFiles(files, chooseApplication);
    });
}

void FileWork::openFiles(const EntryList &entries, bool chooseApplication)
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

void FileWork::paste()
{
    const EntryList cutEntries = Clipboard::ptr()->entries(Clipboard::Cut);
    if (cutEntries.isEmpty()) {
        transfer(Clipboard::ptr()->entries(Clipboard::Copy), m_pane->directory(), false);
        return;
    }
    transfer(cutEntries, m_pane->directory(), true);
    Clipboard::clear(); // they are not where it says any more
}

void FileWork::copy(const EntryList &entries)
{
    m_archives.withFiles(entries, [](const EntryList &files) { Clipboard::ptr()->setEntries(files, Clipboard::Copy); });
}

void FileWork::cut(const EntryList &entries)
{
    Clipboard::ptr()->setEntries(entries, Clipboard::Cut);
}

void FileWork::drag(QAbstractItemView *view, const EntryList &entries)
{
    const bool unpacked = std::any_of(entries.cbegin(), entries.cend(), &ArchiveMount::isInArchive);
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    dragEntries(view, m_archives.filesSoon(entries), unpacked ? Qt::CopyAction : actions);
}

void FileWork::transfer(const EntryList &entries, const Entry &target, bool move)
{
    if (target.isTrashDirPlace()) {
        trash(entries);
        return;
    }
    const bool unpacked = std::any_of(entries.cbegin(), entries.cend(), &ArchiveMount::isInArchive);
    m_archives.withFiles(entries, [this, target, move = move && !unpacked](const EntryList &files) {
        transferFiles(files, target, move);
    });
}

void FileWork::transferFiles(const EntryList &entries, const Entry &target, bool move)
{
    if (entries.isEmpty() || !m_operations.isAvailable())
        return;
    if (move)
        m_operations.follow(FOps::ptr()->move(entries, target), tr("Moving %1").arg(itemCount(entries.size())));
    else
        m_operations.follow(FOps::ptr()->copy(entries, target), tr("Copying %1").arg(itemCount(entries.size())));
}

void FileWork::trash(const EntryList &entries)
{
    if (!entries.isEmpty() && m_operations.isAvailable())
        m_operations.follow(FOps::ptr()->trash(entries, false), tr("Trashing %1").arg(itemCount(entries.size())));
}

void FileWork::restore(const EntryList &entries)
{
    if (!entries.isEmpty() && m_operations.isAvailable())
        m_operations.follow(FOps::ptr()->restore(entries), tr("Restoring %1").arg(itemCount(entries.size())));
}

void FileWork::remove(const EntryList &entries)
{
    if (entries.isEmpty() || !m_operations.isAvailable())
        return;
    const QString question = tr("Delete %1 for good? This cannot be undone.").arg(itemCount(entries.size()));
    if (confirm(tr("Delete"), question))
        m_operations.follow(FOps::ptr()->remove(entries, false), tr("Deleting %1").arg(itemCount(entries.size())));
}

void FileWork::emptyTrash()
{
    if (m_operations.isAvailable()
        && confirm(tr("Empty Trash"), tr("Delete all that is in the trash for good? This cannot be undone.")))
        m_operations.follow(FOps::ptr()->cleanTrash(), tr("Emptying the trash"));
}

bool FileWork::confirm(const QString &title, const QString &question)
{
    return QMessageBox::question(m_window, title, question) == QMessageBox::Yes;
}

void FileWork::rename()
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

void FileWork::makeFolder()
{
    if (!m_operations.isAvailable())
        return;
    await(freeEntry(tr("New folder"), QString()), true);
    m_operations.follow(FOps::ptr()->makeDir(m_awaited), tr("New folder"));
}

void FileWork::makeFile(const QString &templatePath, const QString &name)
{
    if (!m_operations.isAvailable())
        return;
    const QString suffix = QMimeDatabase().suffixForFileName(name);
    await(freeEntry(suffix.isEmpty() ? name : name.left(name.size() - suffix.size() - 1), suffix), true);
    m_operations.follow(templatePath.isEmpty() ? FOps::ptr()->makeFile(m_awaited)
                                               : FOps::ptr()->makeFromTemplate(m_awaited, templatePath),
                        tr("New file"));
}

void FileWork::await(const Entry &entry, bool renames)
{
    m_awaitingPane = m_pane;
    m_awaited = entry;
    m_renamesAwaited = renames;
}

// The row may come before the result, or after it.
void FileWork::showMade(const EntryList &entries, FOps::OperationType type)
{
    if (m_awaited.isNull() && !entries.isEmpty() && type != FOps::Trash)
        await(entries.first(), false);
    showAwaited();
}

void FileWork::showAwaited()
{
    if (m_awaited.isNull() || !m_awaitingPane || !m_awaitingPane->model()->indexOfEntry(m_awaited).isValid())
        return;
    m_awaitingPane->views()->showEntry(std::exchange(m_awaited, {}));
    if (std::exchange(m_renamesAwaited, false) && m_awaitingPane == m_pane)
        QMetaObject::invokeMethod(this, &FileWork::rename, Qt::QueuedConnection); // once the view has its new row
}
