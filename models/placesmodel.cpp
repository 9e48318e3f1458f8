// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/placesmodel.h>

#include "placeroots.h"
#include "placesmodel_p.h"

#include <veskfm/settings.h>
#include <veskplatform/entrywatcher.h>

#include <QSet>

#include <algorithm>

namespace VeskFM
{

namespace
{

bool isSameOrBelow(const QString &path, const QString &directory)
{
    if (directory.isEmpty() || !path.startsWith(directory))
        return false;
    return path.size() == directory.size() || directory.endsWith(QLatin1Char('/'))
        || path.at(directory.size()) == QLatin1Char('/');
}

} // namespace

PlacesModelPrivate::PlacesModelPrivate(PlacesModel *model)
    : TreeModelPrivate(model)
{
}

void PlacesModelPrivate::start()
{
    const Settings *const settings = Settings::ptr();
    m_hiddenRoots = settings->hiddenTreeItems();
    QObject::connect(settings, &Settings::hiddenTreeItemsChanged, q, [this] { followSetting(); });
    QObject::connect(
        VFS::ptr()->entryWatcher(), &EntryWatcher::entryCreated, q,
        [this](const Entry &entry) {
            if (extras.contains(entry) && showsPlaces())
                updateRows(root->entry(), EntryList(entry));
        },
        Qt::QueuedConnection);
    QObject::connect(
        VFS::ptr()->entryWatcher(), &EntryWatcher::dirListed, q, // behind the base's, which has added rows by then
        [this](const Entry &entry, VFS::EntryChildFilters askedFor, const EntryList &children) {
            if (askedFor == childFilters() && m_listedAgain.removeOne(entry))
                removeVanished(entry, children);
        },
        Qt::QueuedConnection);
    const Entry top = VFS::ptr()->rootEntry();
    if (!top.isNull())
        setRoot(top);
}

bool PlacesModelPrivate::showsPlaces() const
{
    return root && root->entry() == VFS::ptr()->rootEntry();
}

bool PlacesModelPrivate::isHiddenRoot(const Entry &entry) const
{
    return !m_hiddenRoots.isEmpty() && m_hiddenRoots.contains(placeRootName(entry));
}

bool PlacesModelPrivate::acceptEntry(const Entry &entry) const
{
    // The root of the disk is a child of the same top as the groups. Here the place that leads to it stands for it.
    if (entry.isFSRoot() && !entry.isPlace())
        return false;
    return TreeModelPrivate::acceptEntry(entry) && !isHiddenRoot(entry);
}

/// On the top level an extra entry is shown in any case; further below it is an entry like any other.
bool PlacesModelPrivate::acceptBelow(const Entry &parent, const Entry &entry) const
{
    return (extras.contains(entry) && parent == root->entry()) || acceptEntry(entry);
}

EntryList PlacesModelPrivate::topLevel() const
{
    EntryList entries = placeGroups();
    for (const Entry &extra : extras) {
        if (VFS::ptr()->isEntryExists(extra))
            entries.append(extra);
    }
    return entries;
}

void PlacesModelPrivate::fetchChildren(ModelItem *item)
{
    if (item != root.get() || !showsPlaces()) {
        TreeModelPrivate::fetchChildren(item);
        return;
    }
    if (item->isChildsInited() || item->isChildsIniting())
        return;
    m_listedAgain.clear();
    item->setChildsIniting(true);
    QMetaObject::invokeMethod(
        q, [this] { fillTopLevel(); }, Qt::QueuedConnection); // rows never arrive inside a reset
}

/// Whatever is made in the directory behind a place is told by a reset of the place, even if it gets no row. So the rows
/// stay while it is listed again: in a home directory files come all the time, and the branches in it must not collapse.
void PlacesModelPrivate::resetItem(ModelItem *item)
{
    const Entry entry = item ? item->entry() : Entry();
    if (entry.isPlace())
        lateInitItem(item); // what was mounted or unmounted gets or loses its expander
    const bool hasRows = item && (item->isChildsInited() || m_listedAgain.contains(entry));
    if (!hasRows || !entry.isDirPlace() || entry.isTrashDirPlace() || !VFS::ptr()->isEntryExists(entry)) {
        TreeModelPrivate::resetItem(item);
        return;
    }
    m_listedAgain.append(entry);
    item->refresh();
    item->setChildsInited(false);
    fetchChildren(item);
}

void PlacesModelPrivate::removeVanished(const Entry &place, const EntryList &children)
{
    ModelItem *const before = listedItem(place);
    const QList<ModelItem *> rows = before ? before->childs() : QList<ModelItem *>();
    const QSet<Entry> present(children.cbegin(), children.cend());
    EntryList vanished;
    for (const ModelItem *row : rows) {
        if (!present.contains(row->entry()))
            vanished.append(row->entry());
    }
    for (const Entry &entry : qAsConst(vanished))
        removeRow(place, entry);
    ModelItem *const item = listedItem(place);
    if (item && m_listedAgain.contains(place)) // this answer is older than the last reset
        item->setChildsInited(false);
}

void PlacesModelPrivate::fillTopLevel()
{
    if (!showsPlaces())
        return;
    const Entry top = root->entry();
    const EntryList entries = topLevel();
    if (!root->isChildsInited()) // else another model's listing of the same entry was faster
        onDirListed(top, childFilters(), entries);
    updateRows(top, entries);
}

void PlacesModelPrivate::followSetting()
{
    m_hiddenRoots = Settings::ptr()->hiddenTreeItems();
    if (!showsPlaces())
        return;
    updateRows(root->entry(), topLevel());
    const EntryList groups = placeGroups();
    for (const Entry &group : groups) {
        if (listedItem(group))
            updateRows(group, placesOfGroup(group));
    }
}

/// The item that shows @p entry, if its rows are there. Looked up anew after each signal, since slots may do anything.
ModelItem *PlacesModelPrivate::listedItem(const Entry &entry) const
{
    ModelItem *const item = root ? root->find(entry) : nullptr;
    return item && item->isChildsInited() ? item : nullptr;
}

/// Removes the rows below @p parent that are not accepted any more, and adds those of @p wanted that are missing.
void PlacesModelPrivate::updateRows(const Entry &parent, const EntryList &wanted)
{
    ModelItem *const before = listedItem(parent);
    const QList<ModelItem *> children = before ? before->childs() : QList<ModelItem *>();
    EntryList refused;
    for (const ModelItem *child : children) {
        if (!acceptBelow(parent, child->entry()))
            refused.append(child->entry());
    }
    for (const Entry &entry : qAsConst(refused))
        removeRow(parent, entry);
    for (const Entry &entry : wanted) {
        ModelItem *const item = listedItem(parent);
        if (item && !item->hasChildItem(entry) && acceptBelow(parent, entry))
            insertItem(item, entry);
    }
}

void PlacesModelPrivate::removeRow(const Entry &parent, const Entry &entry)
{
    ModelItem *const item = listedItem(parent);
    if (ModelItem *const child = item ? item->child(entry) : nullptr)
        removeItem(child);
}

void PlacesModelPrivate::addExtra(const Entry &entry)
{
    const bool isContainer = entry.isDir() || entry.isPlace() || entry.isArchiveMountPoint();
    if (!isContainer || extras.contains(entry))
        return;
    extras.append(entry);
    if (showsPlaces() && VFS::ptr()->isEntryExists(entry))
        updateRows(root->entry(), EntryList(entry));
}

void PlacesModelPrivate::removeExtra(const Entry &entry)
{
    const Entry removed = entry; // it may be the one in the list
    if (!extras.removeOne(removed) || !showsPlaces())
        return;
    ModelItem *const item = root->child(removed);
    if (item && !(placeGroups().contains(removed) && acceptEntry(removed)))
        removeItem(item);
}

/// The way over the registry of places, for places and for what is only reached through them; for a directory of the
/// disk that from the nearest place.
EntryList PlacesModelPrivate::pathTo(const Entry &entry) const
{
    EntryList path = VFS::ptr()->pathEntryList(entry, root->entry());
    if (!path.isEmpty())
        path.removeFirst();
    const bool isShown = !path.isEmpty() && (extras.contains(path.first()) || placeGroups().contains(path.first()))
        && std::none_of(path.cbegin() + extras.contains(path.first()), path.cend(),
                        [this](const Entry &step) { return isHiddenRoot(step); });
    if (isShown)
        return path;
    if (entry.isPlace())
        return extras.contains(entry) ? EntryList(entry) : EntryList();
    return nearestPlace(entry);
}

/// The shown place that is the deepest directory above @p entry, and the way to it and from it.
EntryList PlacesModelPrivate::nearestPlace(const Entry &entry) const
{
    EntryList best;
    const QString path = entry.localPath();
    const auto consider = [&](const EntryList &way) {
        const QString directory = way.last().localPath();
        if (isSameOrBelow(path, directory) && (best.isEmpty() || directory.size() > best.last().localPath().size()))
            best = way;
    };
    const EntryList groups = placeGroups();
    for (const Entry &group : groups) {
        const EntryList places = isHiddenRoot(group) ? EntryList() : placesOfGroup(group);
        for (const Entry &place : places) {
            if (!isHiddenRoot(place))
                consider({group, place});
        }
    }
    for (const Entry &extra : extras)
        consider({extra});
    if (!best.isEmpty() && !best.last().isTrashDirPlace()) // what is in the trash has no rows
        best += pathBelow(best.last(), entry);
    return best;
}

PlacesModel::PlacesModel(QObject *parent)
    : TreeModel(*new PlacesModelPrivate(this), PlacesMode, ModelFilter::AllEntries, parent)
{
    places()->start();
}

PlacesModel::~PlacesModel() = default;

PlacesModelPrivate *PlacesModel::places() const
{
    return static_cast<PlacesModelPrivate *>(d.get());
}

QString PlacesModel::rootName(const Entry &entry)
{
    return placeRootName(entry);
}

void PlacesModel::addExtraEntry(const Entry &entry)
{
    places()->addExtra(entry);
}

void PlacesModel::removeExtraEntry(const Entry &entry)
{
    places()->removeExtra(entry);
}

EntryList PlacesModel::extraEntries() const
{
    return places()->extras;
}

QModelIndexList PlacesModel::pathIndexList(const Entry &entry)
{
    if (!places()->showsPlaces())
        return TreeModel::pathIndexList(entry);
    return entry.isNull() ? QModelIndexList() : places()->openPath(places()->pathTo(entry));
}

} // namespace VeskFM
