// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/treeconfigmodel.h>

#include "placeroots.h"

#include <veskfm/model.h>
#include <veskfm/props.h>
#include <veskfm/settings.h>
#include <veskplatform/entrylist.h>

#include <QIcon>
#include <QSet>

#include <algorithm>
#include <vector>

namespace VeskFM
{

namespace
{

/// A group or a place. A group without places that have a name can be hidden as a whole only.
struct Node
{
    Entry entry;
    QString name; // in the setting
    Node *parent = nullptr;
    int row = 0;
    std::vector<std::unique_ptr<Node>> children;
    QIcon icon; // null until somebody asks
};

Node *nodeOf(const QModelIndex &index)
{
    return static_cast<Node *>(index.internalPointer());
}

void addChild(Node *parent, const Entry &entry)
{
    const QString name = placeRootName(entry);
    if (name.isEmpty())
        return;
    auto child = std::make_unique<Node>();
    child->entry = entry;
    child->name = name;
    child->parent = parent;
    child->row = int(parent->children.size());
    parent->children.push_back(std::move(child));
}

} // namespace

class TreeConfigModel::Private
{
public:
    explicit Private(TreeConfigModel *model)
        : q(model)
    {
        const EntryList groups = placeGroups();
        for (const Entry &group : groups) {
            const size_t known = top.children.size();
            addChild(&top, group);
            const EntryList places = top.children.size() > known ? placesOfGroup(group) : EntryList();
            for (const Entry &place : places)
                addChild(top.children.back().get(), place);
        }
        stored = storedState();
        hidden = stored;
    }

    /// The names of the hidden nodes that have no nodes below, as the setting has them: a hidden group hides them all.
    QSet<QString> storedState() const
    {
        const QStringList names = Settings::ptr()->hiddenTreeItems();
        QSet<QString> state;
        for (const auto &group : top.children) {
            const bool isGroupHidden = names.contains(group->name);
            forEachLeaf(group.get(), [&](const Node *leaf) {
                if (isGroupHidden || names.contains(leaf->name))
                    state.insert(leaf->name);
            });
        }
        return state;
    }

    template <typename Visitor> static void forEachLeaf(const Node *node, Visitor &&visitor)
    {
        if (node->children.empty())
            visitor(node);
        for (const auto &child : node->children)
            visitor(child.get());
    }

    Qt::CheckState checkState(const Node *node) const
    {
        int shown = 0;
        int all = 0;
        forEachLeaf(node, [&](const Node *leaf) {
            ++all;
            shown += hidden.contains(leaf->name) ? 0 : 1;
        });
        if (shown == 0)
            return Qt::Unchecked;
        return shown == all ? Qt::Checked : Qt::PartiallyChecked;
    }

    void show(const Node *node, bool on)
    {
        QSet<QString> state = hidden;
        forEachLeaf(node, [&](const Node *leaf) {
            if (on)
                state.remove(leaf->name);
            else
                state.insert(leaf->name);
        });
        setState(state);
    }

    void setState(const QSet<QString> &state)
    {
        if (state == hidden)
            return;
        hidden = state;
        announce(top, QModelIndex());
        Q_EMIT q->changed();
    }

    void announce(const Node &parent, const QModelIndex &index)
    {
        if (parent.children.empty())
            return;
        const int last = int(parent.children.size()) - 1;
        Q_EMIT q->dataChanged(q->index(0, 0, index), q->index(last, 0, index), {Qt::CheckStateRole});
        for (const auto &child : parent.children)
            announce(*child, q->index(child->row, 0, index));
    }

    /// Somebody changed the setting. Changes of the user that are not applied yet outlive that.
    void followSetting()
    {
        const bool hadChanges = hidden != stored;
        stored = storedState();
        if (!hadChanges)
            setState(stored);
    }

    /// The names of all nodes that are hidden now: a group's beside those of its places, for readers that know but some.
    QStringList hiddenNames() const
    {
        QStringList names;
        for (const auto &group : top.children) {
            if (checkState(group.get()) == Qt::Unchecked)
                names.append(group->name);
            for (const auto &place : group->children) {
                if (hidden.contains(place->name))
                    names.append(place->name);
            }
        }
        return names;
    }

    bool isKnown(const QString &name) const
    {
        return std::any_of(top.children.begin(), top.children.end(), [&](const auto &group) {
            return group->name == name
                || std::any_of(group->children.begin(), group->children.end(),
                               [&](const auto &place) { return place->name == name; });
        });
    }

    TreeConfigModel *const q;
    Node top;             // not shown itself
    QSet<QString> hidden; // names of the unchecked nodes that have no nodes below
    QSet<QString> stored; // the same, as the setting has it
};

TreeConfigModel::TreeConfigModel(QObject *parent)
    : QAbstractItemModel(parent)
    , d(new Private(this))
{
    connect(Settings::ptr(), &Settings::hiddenTreeItemsChanged, this, [this] { d->followSetting(); });
}

TreeConfigModel::~TreeConfigModel() = default;

QModelIndex TreeConfigModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const Node *const node = parent.isValid() ? nodeOf(parent) : &d->top;
    return createIndex(row, column, node->children[size_t(row)].get());
}

QModelIndex TreeConfigModel::parent(const QModelIndex &index) const
{
    Node *const above = index.isValid() ? nodeOf(index)->parent : nullptr;
    return above && above != &d->top ? createIndex(above->row, 0, above) : QModelIndex();
}

int TreeConfigModel::rowCount(const QModelIndex &parent) const
{
    const Node *const node = parent.isValid() ? nodeOf(parent) : &d->top;
    return int(node->children.size());
}

int TreeConfigModel::columnCount(const QModelIndex &) const
{
    return 1;
}

Qt::ItemFlags TreeConfigModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable;
    flags.setFlag(Qt::ItemIsAutoTristate, !nodeOf(index)->children.empty());
    flags.setFlag(Qt::ItemNeverHasChildren, nodeOf(index)->children.empty());
    return flags;
}

QVariant TreeConfigModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    Node *const node = nodeOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return Props::ptr()->displayedName(node->entry);
    case Qt::DecorationRole:
        if (node->icon.isNull())
            node->icon = Props::ptr()->icon(node->entry);
        return node->icon;
    case Qt::CheckStateRole:
        return d->checkState(node);
    case Model::SortKeyRole:
        return node->name;
    default:
        return {};
    }
}

bool TreeConfigModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int state = value.toInt();
    if (!index.isValid() || role != Qt::CheckStateRole || (state != Qt::Checked && state != Qt::Unchecked))
        return false;
    d->show(nodeOf(index), state == Qt::Checked);
    return true;
}

QStringList TreeConfigModel::hiddenItems() const
{
    QStringList items = Settings::ptr()->hiddenTreeItems();
    if (!isModified())
        return items;
    const QStringList now = d->hiddenNames();
    const auto isShown = [&](const QString &name) { return d->isKnown(name) && !now.contains(name); };
    items.erase(std::remove_if(items.begin(), items.end(), isShown), items.end());
    for (const QString &name : now) {
        if (!items.contains(name))
            items.append(name);
    }
    return items;
}

bool TreeConfigModel::isModified() const
{
    return d->hidden != d->stored;
}

void TreeConfigModel::apply()
{
    Settings::ptr()->setHiddenTreeItems(hiddenItems());
}

void TreeConfigModel::revert()
{
    d->setState(d->stored);
}

} // namespace VeskFM
