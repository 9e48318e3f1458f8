// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/modelitem.h>

#include "childlist.h"
#include "itemcomparison.h"
#include "itemsorter.h"
#include "model_p.h"

#include <veskfm/propertydataholder.h>
#include <veskfm/propertyenumerator.h>

#include <algorithm>

namespace VeskFM
{

static_assert(sizeof(void *) != 8 || sizeof(ModelItem) <= 64, "there is one for every row");

ModelItem::ModelItem(const Entry &entry, const Model *model, ModelItem *parent)
    : m_entry(entry)
    , m_model(model)
    , m_parent(parent)
{
    const bool isFile = m_entry.isFile();
    set(ChildsInited, isFile);
    set(NeedsLateInit, !isFile);
    if (PropertyEnumerator *const enumerator = propertyEnumerator()) {
        m_dataHolder = enumerator->allocPropertyDataHolder(m_entry);
        set(NeedsRefine, !m_dataHolder->isRefined());
    }
    // Sorted by anything but the name, the sort property has to be computed when the item is put into its place; the
    // set-up by the kind of model then waits for the first refinement.
    if (!m_model || m_model->propertySortIndex() == 0)
        init();
    else
        refresh();
}

ModelItem::~ModelItem()
{
    ModelPrivate *const d = modelPrivate();
    if (d && m_block)
        d->itemIndex.remove(this);
    deleteChildren();
    if (m_dataHolder)
        d->propertyEnumerator->releasePropertyDataHolder(m_dataHolder);
}

ModelPrivate *ModelItem::modelPrivate() const
{
    return m_model ? m_model->d.get() : nullptr;
}

const PropertyEnumerator *ModelItem::propertyEnumerator() const
{
    return m_model ? m_model->d->propertyEnumerator : nullptr;
}

PropertyEnumerator *ModelItem::propertyEnumerator()
{
    return m_model ? m_model->d->propertyEnumerator : nullptr;
}

void ModelItem::init()
{
    if (ModelPrivate *const d = modelPrivate())
        d->initItem(this);
}

QVariant ModelItem::data(int role, int column) const
{
    if (!m_model || !m_dataHolder)
        return {};
    if (role == Qt::DisplayRole && column == 0 && isDotDotDir())
        return QStringLiteral("..");
    if (role == Model::ListingRole)
        return isChildsIniting();
    return m_dataHolder->propertyValueData(m_entry, column, role, propertyEnumerator());
}

QString ModelItem::description() const
{
    return data(Qt::DisplayRole, 0).toString();
}

QVariant ModelItem::headerData(const Model *model, int section, int role)
{
    return model ? model->d->propertyEnumerator->propertyNameData(section, role) : QVariant();
}

int ModelItem::columnCount(const Model *model)
{
    if (!model)
        return 0;
    return model->mode() == Model::TableMode ? model->d->propertyEnumerator->count() : 1;
}

void ModelItem::refresh()
{
    if (m_dataHolder)
        m_dataHolder->invalidate(m_model->propertySortIndex(), propertyEnumerator());
    set(NeedsRefine, true);
}

void ModelItem::refine()
{
    if (test(NeedsRefine) && m_dataHolder) {
        m_dataHolder->refineAllProperties(m_entry, propertyEnumerator());
        set(NeedsRefine, false);
    }
    lateInit();
}

void ModelItem::delayedRefine()
{
    if (test(NeedsRefine) && m_dataHolder) {
        m_dataHolder->delayedRefineAllProperties(m_entry, propertyEnumerator());
        set(NeedsRefine, false);
    }
    lateInit();
}

void ModelItem::lateInit()
{
    if (!test(NeedsLateInit) || !m_model)
        return;
    modelPrivate()->lateInitItem(this);
    set(NeedsLateInit, false);
}

void ModelItem::refinePropertyAtIndex(int property)
{
    if (m_dataHolder)
        m_dataHolder->refinePropertyAtIndex(property, propertyEnumerator());
}

void ModelItem::updatePresentation()
{
    if (m_dataHolder)
        m_dataHolder->updatePresentation(m_entry);
}

int ModelItem::childCount() const
{
    return m_children ? m_children->size() : 0;
}

QList<ModelItem *> ModelItem::childs() const
{
    QList<ModelItem *> list;
    list.reserve(childCount());
    if (m_children)
        m_children->forEach([&list](ModelItem *child) { list.append(child); });
    return list;
}

ModelItem *ModelItem::child(int row) const
{
    return row >= 0 && row < childCount() ? m_children->at(row) : nullptr;
}

ModelItem *ModelItem::child(const Entry &entry) const
{
    // Among rows that are sorted by name, the ".." row does not count: it does not stand where its name would.
    const bool countDotDot = m_model && m_model->propertySortIndex() != 0;
    ModelItem *first = nullptr;
    const auto consider = [&](ModelItem *item) {
        if ((countDotDot || !item->isDotDotDir()) && (!first || item->row() < first->row()))
            first = item;
    };
    if (const ModelPrivate *const d = modelPrivate()) {
        for (ModelItem *item : d->itemIndex.items(entry, ItemIndex::hashOf(entry))) {
            if (item->m_parent == this)
                consider(item);
        }
    } else if (m_children) {
        m_children->forEach([&](ModelItem *item) {
            if (item->m_entry == entry)
                consider(item);
        });
    }
    return first;
}

int ModelItem::row() const
{
    if (!m_parent)
        return 0;
    return m_parent->m_children ? m_parent->m_children->indexOf(this) : -1;
}

bool ModelItem::isBelow(const ModelItem *ancestor) const
{
    const ModelItem *item = this;
    while (item && item != ancestor)
        item = item->m_block ? item->m_parent : nullptr;
    return item && this != ancestor;
}

ModelItem *ModelItem::find(const Entry &entry) const
{
    return finds(entry).value(0);
}

QList<ModelItem *> ModelItem::finds(const Entry &entry) const
{
    QList<ModelItem *> found;
    if (m_entry == entry)
        found.append(const_cast<ModelItem *>(this));
    const ModelPrivate *const d = modelPrivate();
    if (!d) {
        if (m_children)
            m_children->forEach([&](ModelItem *item) { found += item->finds(entry); });
        return found;
    }
    for (ModelItem *item : d->itemIndex.items(entry, ItemIndex::hashOf(entry))) {
        if (item->isBelow(this))
            found.append(item);
    }
    if (found.size() > 1) {
        std::sort(found.begin(), found.end(), [](const ModelItem *a, const ModelItem *b) {
            return a->exploreIndexPath() < b->exploreIndexPath(); // depth first
        });
    }
    return found;
}

QList<int> ModelItem::exploreIndexPath() const
{
    QList<int> path;
    for (const ModelItem *item = this; item->m_parent; item = item->m_parent)
        path.prepend(item->row());
    return path;
}

int ModelItem::lowerBoundChildItem(ModelItem *item) const
{
    if (!item)
        return 0;
    const ItemComparison comparison(this);
    const ItemKey key = comparison.key(item);
    return m_children ? m_children->partitionPoint(
               0, [&](const ModelItem *child) { return comparison.lessThan(comparison.key(child), key); })
                      : 0;
}

int ModelItem::upperBoundChildItem(ModelItem *item, int position) const
{
    const int from = qBound(0, position, childCount());
    if (!item || !m_children)
        return from;
    const ItemComparison comparison(this);
    const ItemKey key = comparison.key(item);
    return m_children->partitionPoint(
        from, [&](const ModelItem *child) { return !comparison.lessThan(key, comparison.key(child)); });
}

int ModelItem::estimatedChildIndex(ModelItem *item) const
{
    if (!item)
        return -1;
    const int position = lowerBoundChildItem(item);
    return child(position) == item ? -1 : position;
}

void ModelItem::insertChild(int row, ModelItem *child)
{
    if (!child || child->m_block || row < 0 || row > childCount())
        return;
    if (!m_children)
        m_children = std::make_unique<ChildList>();
    m_children->insert(row, child);
    if (ModelPrivate *const d = modelPrivate())
        d->itemIndex.insert(child, ItemIndex::hashOf(child->m_entry));
    if (!hasNodeChilds() && !child->m_entry.isFile())
        setHasNodeChilds(true);
}

void ModelItem::removeChild(ModelItem *child)
{
    const int row = child && m_children ? m_children->indexOf(child) : -1;
    if (row < 0)
        return;
    m_children->removeAt(row);
    if (ModelPrivate *const d = modelPrivate())
        d->itemIndex.remove(child);
}

std::vector<ModelItem *> ModelItem::childItems() const
{
    return m_children ? m_children->items() : std::vector<ModelItem *>();
}

void ModelItem::setChildItems(const std::vector<ModelItem *> &children)
{
    if (!m_children)
        m_children = std::make_unique<ChildList>();
    m_children->assign(children);
}

void ModelItem::deleteChildren()
{
    ItemIndex *const index = m_model ? &modelPrivate()->itemIndex : nullptr;
    if (index && size_t(childCount()) * 2 > index->size())
        index->removeBelow(this);
    const std::unique_ptr<ChildList> children = std::move(m_children);
    if (children)
        children->forEach([](ModelItem *child) { delete child; });
}

/// Takes over what @p entry, which equals the present one, knows better. Directories keep theirs: the watcher goes by
/// the entries that are in use.
void ModelItem::takeFresher(const Entry &entry)
{
    if (m_entry.isFile() && entry.isFile() && m_entry.type() == entry.type())
        m_entry = entry;
}

void ModelItem::resort()
{
    if (!m_model || !m_children)
        return;
    const int property = m_model->propertySortIndex();
    const std::vector<ModelItem *> children = childItems();
    for (ModelItem *child : children) {
        child->refinePropertyAtIndex(property);
        child->resort();
    }
    setChildItems(sortedItems(children, ItemComparison(this)));
}

} // namespace VeskFM
