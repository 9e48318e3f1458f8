// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "placework.h"

#include "containers.h"
#include "filework.h"
#include "inplaceeditor.h"
#include "paneltree.h"
#include "sidepanel.h"

#include <veskfm/fops.h>
#include <veskfm/model.h>
#include <veskplatform/favorites.h>
#include <veskplatform/vfs.h>

#include <QMenu>

#include <utility>

using namespace VeskFM;

PlaceWork::PlaceWork(SidePanel *panel, FileWork *files, QWidget *window)
    : QObject(window)
    , m_panel(panel)
    , m_files(files)
    , m_window(window)
{
    connect(panel, &SidePanel::menuRequested, this, &PlaceWork::showMenu);
    connect(panel, &SidePanel::removalRequested, this, &PlaceWork::removeFavorite);
    connect(panel, &SidePanel::renamingRequested, this, &PlaceWork::renameFavorite);
    connect(&m_mounts, &StorageMount::finished, this, &PlaceWork::onMountFinished);
}

void PlaceWork::showMenu(const Entry &entry, const QPoint &globalPosition)
{
    QMenu menu(m_window);
    menu.setObjectName(QStringLiteral("placeMenu"));
    const auto add = [&menu, this](const QString &icon, const QString &text, const std::function<void()> &slot) {
        menu.addAction(QIcon::fromTheme(icon), text, this, slot);
    };
    add(QStringLiteral("document-open"), tr("Open"), [=] { Q_EMIT opened(entry, false); });
    add(QStringLiteral("view-split-left-right"), tr("Open in Other Pane"), [=] { Q_EMIT opened(entry, true); });
    menu.addSeparator();
    if (entry.isFavoritePlace()) {
        add(QStringLiteral("edit-rename"), tr("Rename"), [=] { renameFavorite(entry); });
        add(QStringLiteral("bookmark-remove"), tr("Remove from Favorites"), [=] { removeFavorite(entry); });
    } else if (Favorites::canAdd(entry)) {
        add(QStringLiteral("bookmark-new"), tr("Add to Favorites"), [=] { addFavorite(entry); });
    }
    if (StorageMount::canMount(entry))
        add(QStringLiteral("media-mount"), tr("Mount"), [=] { m_mounts.mount(entry); });
    if (StorageMount::canUnmount(entry))
        add(QStringLiteral("media-eject"), tr("Unmount"), [=] { m_mounts.unmount(entry); });
    if (StorageMount::canEject(entry))
        add(QStringLiteral("media-eject"), tr("Eject"), [=] { m_mounts.eject(entry); });
    if (entry.isTrashDirPlace() && !FOps::isEmptyTrash())
        add(QStringLiteral("trash-empty"), tr("Empty Trash"), [this] { m_files->emptyTrash(); });
    menu.exec(globalPosition);
    m_panel->markDirectory();
}

void PlaceWork::withDevice(const Entry &place, const std::function<void(const Entry &)> &use)
{
    if (!StorageMount::canMount(place)) {
        use(place);
        return;
    }
    m_awaited = place;
    m_use = use;
    Q_EMIT message(tr("Mounting %1 …").arg(shownName(place)), true);
    m_mounts.mount(place);
}

void PlaceWork::onMountFinished(const Entry &place, const QString &errorText)
{
    report(errorText.isEmpty(), errorText);
    if (place != m_awaited)
        return;
    m_awaited = Entry();
    const std::function<void(const Entry &)> use = std::exchange(m_use, nullptr);
    if (errorText.isEmpty() && use)
        use(VFS::ptr()->entry(place.path())); // it has a directory now
}

void PlaceWork::addFavorite(const Entry &directory)
{
    QString error;
    report(Favorites::add(directory, -1, &error), error);
}

void PlaceWork::removeFavorite(const Entry &favorite)
{
    QString error;
    if (favorite.isFavoritePlace())
        report(Favorites::remove(favorite, &error), error);
}

void PlaceWork::renameFavorite(const Entry &favorite)
{
    PanelTree *const places = m_panel->places();
    const QModelIndex index = places->rowOf(favorite);
    if (!favorite.isFavoritePlace() || !index.isValid())
        return;
    QRect row = places->itemRect(index);
    row.setLeft(row.left() + places->iconSize().width());
    auto *const editor = new InPlaceEditor(places, row, VFS::ptr()->favoritePlace(favorite).name());
    connect(editor, &InPlaceEditor::accepted, this, [this, favorite](const QString &label) {
        QString error;
        report(Favorites::rename(favorite, label, &error), error);
    });
}

void PlaceWork::report(bool done, const QString &errorText)
{
    Q_EMIT message(done ? QString() : errorText, false);
}
