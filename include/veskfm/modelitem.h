// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskplatform/entry.h>

#include <QList>
#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

namespace VeskFM
{

class ChildList;
class Model;
class ModelPrivate;
class PropertyDataHolder;
class PropertyEnumerator;
struct ChildBlock;

/// One node of a model's tree: an entry, its place in the tree, and the cache of its property values.
///
/// An item owns its children and keeps them in display order: the ".." row, places, directories, archives, files, and
/// within a group by the model's sort property. An item made without a model has no values and no sort settings.
///
/// Thread: that of the model.
class VESKFM_EXPORT ModelItem
{
public:
    /// Does not add the item to the children of @p parent: insertChild() does.
    /// @param model   may be null; outlives the item
    /// @param parent  null for a root
    ModelItem(const Entry &entry, const Model *model, ModelItem *parent);
    ~ModelItem(); ///< deletes the children

    const Entry &entry() const { return m_entry; }
    const Model *model() const { return m_model; }
    ModelItem *parent() const { return m_parent; }
    PropertyDataHolder *dataHolder() const { return m_dataHolder; } ///< null without a model; the enumerator's
    const PropertyEnumerator *propertyEnumerator() const;           ///< null without a model
    PropertyEnumerator *propertyEnumerator();

    void init(); ///< lets the kind of model set up the new item

    bool hasNodeChilds() const { return test(HasNodeChilds); } ///< whether a tree shows an expander
    void setHasNodeChilds(bool has) { set(HasNodeChilds, has); }
    bool isChildsInited() const { return test(ChildsInited); } ///< the children are listed; true for any file
    void setChildsInited(bool inited) { set(ChildsInited, inited); }
    bool isChildsIniting() const { return test(ChildsIniting); } ///< a listing is under way
    void setChildsIniting(bool initing) { set(ChildsIniting, initing); }
    bool isDotDotDir() const { return test(DotDotDir); } ///< the ".." row, which shows the parent directory
    void setDotDotDir(bool dotDot) { set(DotDotDir, dotDot); }

    /// The value of column @p column, which is a property number, for a Qt role or a Model::Role.
    QVariant data(int role, int column) const;
    QString description() const; ///< the displayed name
    static QVariant headerData(const Model *model, int section, int role);
    static int columnCount(const Model *model);

    void refresh(); ///< forgets the computed values: the entry changed
    bool needsRefine() const { return m_flags & (NeedsRefine | NeedsLateInit); }
    void refine();        ///< computes the expensive values now, if they are due
    void delayedRefine(); ///< queues that; the enumerator announces when they are ready
    void refinePropertyAtIndex(int property);
    void updatePresentation(); ///< settings that change how values look did change

    int childCount() const;
    QList<ModelItem *> childs() const;
    ModelItem *child(int row) const;            ///< null outside the list
    ModelItem *child(const Entry &entry) const; ///< the direct child that shows @p entry, or null
    bool hasChildItem(const Entry &entry) const { return child(entry) != nullptr; }
    int row() const; ///< among the siblings; 0 for a root

    ModelItem *find(const Entry &entry) const;          ///< the first item of this subtree that shows @p entry, or null
    QList<ModelItem *> finds(const Entry &entry) const; ///< all of them, each before what lies below it
    QList<int> exploreIndexPath() const;                ///< rows from the top down to this item; empty for a root

    int lowerBoundChildItem(ModelItem *item) const;               ///< the first row that does not sort before @p item
    int upperBoundChildItem(ModelItem *item, int position) const; ///< from @p position on, the first row behind @p item
    int estimatedChildIndex(ModelItem *item) const; ///< where to insert @p item; -1 for null or when it stands there
    void insertChild(int row, ModelItem *child);    ///< takes ownership; ignored for a row outside 0..childCount()
    void removeChild(ModelItem *child);             ///< gives ownership back

    void resort(); ///< computes the sort property and sorts the children, at every level below

private:
    Q_DISABLE_COPY(ModelItem)
    friend class ChildList;
    friend class ItemIndex;
    friend class ModelPrivate;

    enum Flag : quint8 {
        HasNodeChilds = 1 << 0,
        ChildsInited = 1 << 1,
        ChildsIniting = 1 << 2,
        NeedsRefine = 1 << 3,
        NeedsLateInit = 1 << 4,
        DotDotDir = 1 << 5
    };
    bool test(Flag flag) const { return m_flags & flag; }
    void set(Flag flag, bool on) { m_flags = quint8(on ? m_flags | flag : m_flags & ~flag); }

    ModelPrivate *modelPrivate() const;
    void lateInit();
    bool isBelow(const ModelItem *ancestor) const;
    std::vector<ModelItem *> childItems() const;
    void setChildItems(const std::vector<ModelItem *> &children);
    void deleteChildren();
    void takeFresher(const Entry &entry);

    Entry m_entry;
    const Model *const m_model;
    ModelItem *const m_parent;
    quint8 m_flags = 0;
    mutable quint16 m_place = 0; // in its block, when that was last asked; ChildList's
    uint m_hash = 0;             // of the entry, while the item stands in its model's index
    PropertyDataHolder *m_dataHolder = nullptr;
    std::unique_ptr<ChildList> m_children; // null when there never was a child
    ChildBlock *m_block = nullptr;         // where the parent keeps this item; null when it does not
};

} // namespace VeskFM
