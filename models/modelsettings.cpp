// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What a model shows and how: its directory, filter, order and presentation.

#include "model_p.h"
#include "waitcursor.h"

#include <veskfm/entryviewparameters.h>
#include <veskfm/propertyenumerator.h>

namespace VeskFM
{

namespace
{

void updatePresentationBelow(ModelItem *item)
{
    const QList<ModelItem *> children = item->childs();
    for (ModelItem *child : children)
        updatePresentationBelow(child);
    item->updatePresentation();
}

} // namespace

void Model::rebuild(const Entry &entry)
{
    Entry chosen;
    if (entry.isNull())
        chosen = actualRootEntry();
    else if (VFS::ptr()->isEntryExists(entry))
        chosen = entry;
    if (!chosen.isNull())
        d->setRoot(chosen);
}

void Model::rebuild()
{
    rebuild(Entry());
}

void Model::rebuildWithMode(Mode mode)
{
    if (mode != InvalidMode)
        d->mode = mode;
}

void Model::rebuildWithEntryFilters(QFlags<ModelFilter::EntryFilter> filters)
{
    d->filter.setEntryFilters(filters);
    if (d->filter.flushChanges() && d->root)
        d->setRoot(d->root->entry());
}

void Model::setShowHiddenEntries(bool show)
{
    d->filter.setShowHiddenEntries(show);
    if (d->filter.flushChanges() && d->root)
        d->setRoot(d->root->entry());
}

void Model::setNameFilters(const QStringList &patterns)
{
    d->filter.setNameFilters(patterns);
    flushFilter();
}

void Model::setNameFiltersForFilesOnly(bool filesOnly)
{
    d->filter.setNameFiltersForFilesOnly(filesOnly);
    flushFilter();
}

void Model::flushFilter()
{
    if (d->filter.flushChanges())
        rebuild();
}

void Model::setShowDotDot(bool show)
{
    if (show == d->showDotDot)
        return;
    d->showDotDot = show;
    if (d->root)
        d->setRoot(d->root->entry());
}

void Model::setArchivesAreFiles(bool asFiles)
{
    d->archivesAreFiles = asFiles; // a listing under way then answers for other filters, and is ignored
}

void Model::refresh()
{
    d->resetItem(d->root.get());
}

void Model::rebuildWithPropertySortIndex(int index, SortOrder order)
{
    if (!d->propertyEnumerator
        || !d->propertyEnumerator->isSortableProperty(index)) // -1, "keep it", counts as sortable
        return;
    const bool changed =
        (order != KeepOrder && order != d->sortOrder) || (index != -1 && index != d->propertySortIndex);
    if (order != KeepOrder)
        d->sortOrder = order;
    if (index != -1)
        d->propertySortIndex = index;
    if (!changed)
        return;
    if (d->root) {
        const WaitCursor cursor;
        beginResetModel();
        d->root->resort();
        endResetModel();
    }
    Q_EMIT sortingChanged(d->propertySortIndex, d->sortOrder);
}

void Model::updatePresentation()
{
    Q_EMIT layoutAboutToBeChanged();
    if (d->root)
        updatePresentationBelow(d->root.get());
    Q_EMIT layoutChanged();
}

void Model::setShowLinkEmblem(bool show)
{
    if (show == d->propertyEnumerator->showLinkEmblem())
        return;
    d->propertyEnumerator->setShowLinkEmblem(show);
    updatePresentation();
}

void Model::setShowPropertyEmblems(bool show)
{
    if (show == d->propertyEnumerator->showPropertyEmblems())
        return;
    d->propertyEnumerator->setShowPropertyEmblems(show);
    updatePresentation();
}

bool Model::showLinkEmblem() const
{
    return d->propertyEnumerator->showLinkEmblem();
}

bool Model::showPropertyEmblems() const
{
    return d->propertyEnumerator->showPropertyEmblems();
}

Model::Mode Model::mode() const
{
    return d->mode;
}

QFlags<ModelFilter::EntryFilter> Model::entryFilters() const
{
    return d->filter.entryFilters();
}

bool Model::showHiddenEntries() const
{
    return d->filter.showHiddenEntries();
}

bool Model::showDotDot() const
{
    return d->showDotDot;
}

QStringList Model::nameFilters() const
{
    return d->filter.nameFilters();
}

Model::SortOrder Model::sortOrder() const
{
    return d->sortOrder;
}

int Model::propertySortIndex() const
{
    return d->propertySortIndex;
}

bool Model::isNumericSortingEnabled() const
{
    return EntryViewParameters::ptr()->isNumericSortingEnabled();
}

bool Model::isLocaleSortingEnabled() const
{
    return EntryViewParameters::ptr()->isLocaleSortingEnabled();
}

ModelFilter &Model::filter()
{
    return d->filter;
}

const ModelFilter &Model::filter() const
{
    return d->filter;
}

QStringList Model::propertyNames() const
{
    QStringList names;
    for (int i = 0; i < d->propertyEnumerator->count(); ++i)
        names.append(d->propertyEnumerator->propertyNameData(i, Qt::DisplayRole).toString());
    return names;
}

QStringList Model::internalPropertyNames() const
{
    return d->internalPropertyNames;
}

QString Model::internalPropertyName(int index) const
{
    return d->internalPropertyNames.value(index);
}

int Model::propertyIndex(const QString &name) const
{
    return d->internalPropertyNames.indexOf(name);
}

QList<QPair<QString, int>> Model::sortableProperties() const
{
    QList<QPair<QString, int>> sortable;
    for (int i = 0; i < d->propertyEnumerator->count(); ++i) {
        if (d->propertyEnumerator->isSortableProperty(i))
            sortable.append({d->propertyEnumerator->propertyNameData(i, Qt::DisplayRole).toString(), i});
    }
    return sortable;
}

} // namespace VeskFM
