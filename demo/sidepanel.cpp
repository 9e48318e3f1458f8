// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sidepanel.h"

#include "containers.h"
#include "entrydrops.h"
#include "kiosk.h"
#include "paneltree.h"

#include <veskfm/placesmodel.h>
#include <veskfm/settings.h>
#include <veskplatform/vfs.h>

#include <QDropEvent>

using namespace VeskFM;

SidePanel::SidePanel(QWidget *parent)
    : QSplitter(Qt::Vertical, parent)
    , m_placesModel(new PlacesModel)
    , m_treeModel(new TreeModel(ModelFilter::AllEntries))
    , m_places(new PanelTree(m_placesModel.get(), this))
    , m_tree(new PanelTree(m_treeModel.get(), this))
{
    m_places->setObjectName(QStringLiteral("places"));
    m_tree->setObjectName(QStringLiteral("tree"));
    m_places->setAccessibleName(tr("Places"));
    m_tree->setAccessibleName(tr("Folders"));
    m_places->setTopIsHeading(true);
    m_places->setTopExpandable(Settings::ptr()->isPlacesCollapsible());
    setChildrenCollapsible(false);
    adopt(m_places);
    adopt(m_tree);
    connect(m_placesModel.get(), &QAbstractItemModel::rowsInserted, this, &SidePanel::showGroups,
            Qt::QueuedConnection); // once the view has them
    connect(m_placesModel.get(), &QAbstractItemModel::rowsRemoved, this, &SidePanel::showGroups, Qt::QueuedConnection);
    // Rows that come above push the marked one out of the view.
    connect(m_treeModel.get(), &Model::dirListed, this, [this](const Entry &listed) {
        if (m_tree->selectionModel()->hasSelection() && m_directory.path().startsWith(listed.path()))
            m_tree->scrollTo(m_tree->currentIndex());
    });
    m_treeModel->rebuild(Kiosk::isOn() ? VFS::ptr()->homeEntry() : VFS::ptr()->entry(QStringLiteral("/")));
}

SidePanel::~SidePanel()
{
    delete m_places;
    delete m_tree;
}

void SidePanel::adopt(PanelTree *tree)
{
    connect(tree, &PanelTree::opened, this, &SidePanel::opened);
    connect(tree, &PanelTree::menuRequested, this, &SidePanel::menuRequested);
    connect(tree, &PanelTree::removalRequested, this, &SidePanel::removalRequested);
    connect(tree, &PanelTree::renamingRequested, this, &SidePanel::renamingRequested);
    auto *const drops = new EntryDrops(tree, [tree](const QDropEvent &event) -> EntryDrops::Place {
        const Entry entry = tree->entryAt(event.pos());
        const QRect mark = tree->itemRect(tree->indexAt(event.pos()));
        return canTakeFiles(entry) ? EntryDrops::Place{entry, mark} : EntryDrops::Place();
    });
    connect(drops, &EntryDrops::dropped, this, &SidePanel::entriesDropped);
}

void SidePanel::showGroups()
{
    for (int row = 0; row < m_placesModel->rowCount(); ++row) {
        const QModelIndex group = m_placesModel->index(row, 0);
        if (!m_places->isExpanded(group))
            m_places->expand(group);
    }
    showInPlaces(m_directory);
}

void SidePanel::showDirectory(const Entry &directory)
{
    m_directory = directory;
    markDirectory();
}

void SidePanel::markDirectory()
{
    showInPlaces(m_directory);
    showInTree(m_directory);
}

void SidePanel::setShowHidden(bool show)
{
    m_placesModel->setShowHiddenEntries(show);
    m_treeModel->setShowHiddenEntries(show);
    showInTree(m_directory);
}

// Only a place itself is marked: what lies below one is shown by the tree.
void SidePanel::showInPlaces(const Entry &directory)
{
    const QString path = directory.localPath();
    const auto isHere = [&](const QModelIndex &index) {
        const Entry place = m_placesModel->entryByIndex(index);
        return place == directory || (!path.isEmpty() && place.localPath() == path);
    };
    m_places->clearSelection();
    for (int row = 0; row < m_placesModel->rowCount(); ++row) {
        const QModelIndex group = m_placesModel->index(row, 0);
        for (int child = -1; child < m_placesModel->rowCount(group); ++child) {
            const QModelIndex index = child < 0 ? group : m_placesModel->index(child, 0, group);
            if (isHere(index)) {
                m_places->goTo(index);
                return;
            }
        }
    }
}

void SidePanel::showInTree(const Entry &directory)
{
    const Entry local = directory.isPlace() ? VFS::ptr()->entry(directory.localPath()) : directory;
    const bool isTrash = directory.isTrashDirPlace(); // its place tells enough
    const QModelIndexList path = isTrash ? QModelIndexList() : m_treeModel->pathIndexList(local);
    if (path.isEmpty()) {
        m_tree->clearSelection();
        return;
    }
    for (const QModelIndex &step : path.mid(0, path.size() - 1))
        m_tree->expand(step);
    m_tree->goTo(path.last());
}
