// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/model.h>
#include <veskfm/modelitem.h>
#include <veskplatform/vfs.h>

#include "itemindex.h"

namespace VeskFM
{

/// State of a Model and the steps that a kind of model may replace. Lives in the model's thread.
class ModelPrivate
{
public:
    explicit ModelPrivate(Model *model);
    virtual ~ModelPrivate();

    /// Asks the watcher for the children of @p item and returns at once; onDirListed() adds the rows.
    virtual void fetchChildren(ModelItem *item);
    /// Drops the children of @p item and lists it again, if its entry still exists. Null is ignored.
    virtual void resetItem(ModelItem *item);
    virtual QModelIndex indexOfItem(ModelItem *item) const; ///< invalid for null and for the root
    virtual bool acceptEntry(const Entry &entry) const;
    virtual VFS::EntryChildFilters childFilters() const;
    virtual EntryList childEntries(const Entry &entry) const; ///< blocks while the VFS lists
    virtual void initItem(ModelItem *item);                   ///< of each new item
    virtual void lateInitItem(ModelItem *item);               ///< once, with the first refinement of an item

    void initialise(Model::Mode initialMode, ModelFilter::EntryFilters filters);
    void setRoot(const Entry &entry);
    void deleteRoot();
    QList<ModelItem *> finds(const Entry &entry) const; ///< all items that show it

    /// Adds an item for @p entry below @p parent where it sorts, and tells the views.
    ModelItem *insertItem(ModelItem *parent, const Entry &entry);
    /// The same without telling: the listing that is still to come does.
    ModelItem *insertItemSilently(ModelItem *parent, const Entry &entry);
    void relistItem(ModelItem *item);     ///< drops its children and lists it again
    void removeItem(ModelItem *item);     ///< tells the views; deletes the item, which has a parent, with all below
    bool removeChildren(ModelItem *item); ///< likewise all below it; false when a slot has removed more than that

    void onDirListed(const Entry &entry, VFS::EntryChildFilters filters, const EntryList &children);
    void onEntryCreated(const Entry &entry);
    void onEntryDeleted(const Entry &entry);
    void onEntryChanged(const Entry &entry);
    void onEntryReset(const Entry &entry);

    Model *const q;
    int propertySortIndex = 0;
    std::unique_ptr<ModelItem> root;                  // null until the first rebuild
    PropertyEnumerator *propertyEnumerator = nullptr; // owned by Props, shared by all models
    ModelFilter filter;
    Model::Mode mode = Model::InvalidMode;
    Model::SortOrder sortOrder = Model::Ascending;
    bool showDotDot = false;
    bool archivesAreFiles = false;
    int sizePropertyIndex = -1;        // -1 when there is no "Size"
    QStringList internalPropertyNames; // never change while there is an enumerator
    ItemIndex itemIndex;

protected:
    int m_removals = 0; // goes up whenever items are deleted, so that a loop notices when a slot did that

private:
    void announceListingState(ModelItem *item);
    std::vector<ModelItem *> acceptedChildren(ModelItem *item, const EntryList &children);
    void addListedChildren(ModelItem *item, const EntryList &children);
    bool announceRows(ModelItem *item, const std::vector<ModelItem *> &former);
    void refreshItems(const Entry &fresh);
    template <typename Handler> void forEachShowing(const Entry &entry, Handler &&handler);
};

} // namespace VeskFM
