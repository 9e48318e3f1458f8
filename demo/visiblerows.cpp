// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "visiblerows.h"

#include <algorithm>

/// One row of the tree below something that was expanded once.
struct VisibleRows::Node
{
    Node *parent = nullptr;
    int row = 0;              // below the parent
    mutable int lastSeen = 0; // where it was in the list
    bool isExpanded = false;
    bool isFilled = false; // has nodes for all rows below it
    Nodes children;

    void insert(int first, int count);
    void remove(int first, int count);
    void number(int first);
    void collectVisible(std::vector<Node *> *rows) const { collectVisible(0, children.size(), rows); }
    void collectVisible(size_t firstChild, size_t endChild, std::vector<Node *> *rows) const;
};

void VisibleRows::Node::insert(int first, int count)
{
    Nodes added(static_cast<size_t>(count));
    for (std::unique_ptr<Node> &node : added) {
        node = std::make_unique<Node>();
        node->parent = this;
    }
    children.insert(children.begin() + first, std::make_move_iterator(added.begin()),
                    std::make_move_iterator(added.end()));
    number(first);
}

void VisibleRows::Node::remove(int first, int count)
{
    children.erase(children.begin() + first, children.begin() + first + count);
    number(first);
}

void VisibleRows::Node::number(int first)
{
    for (size_t i = static_cast<size_t>(first); i < children.size(); ++i)
        children[i]->row = static_cast<int>(i);
}

/// Some of the children, each with all below it that is expanded.
void VisibleRows::Node::collectVisible(size_t firstChild, size_t endChild, std::vector<Node *> *rows) const
{
    for (size_t i = firstChild; i < endChild; ++i) {
        rows->push_back(children[i].get());
        if (children[i]->isExpanded)
            children[i]->collectVisible(rows);
    }
}

VisibleRows::VisibleRows(QAbstractItemModel *tree, QObject *parent)
    : QAbstractProxyModel(parent)
    , m_root(std::make_unique<Node>())
{
    m_root->isExpanded = true;
    setSourceModel(tree);
    connect(tree, &QAbstractItemModel::modelReset, this, &VisibleRows::reset);
    connect(tree, &QAbstractItemModel::rowsInserted, this, &VisibleRows::onInserted);
    connect(tree, &QAbstractItemModel::rowsAboutToBeRemoved, this, &VisibleRows::onAboutToBeRemoved);
    connect(tree, &QAbstractItemModel::rowsRemoved, this, &VisibleRows::onRemoved);
    connect(tree, &QAbstractItemModel::dataChanged, this, &VisibleRows::onDataChanged);
    reset();
}

VisibleRows::~VisibleRows() = default;

void VisibleRows::reset()
{
    beginResetModel();
    m_rows.clear();
    m_root->children.clear();
    m_root->isFilled = false;
    fill(m_root.get());
    m_root->collectVisible(&m_rows);
    endResetModel();
}

bool VisibleRows::isExpanded(const QModelIndex &treeIndex) const
{
    const Node *const node = nodeOf(treeIndex);
    return node && node->isExpanded;
}

void VisibleRows::expand(const QModelIndex &treeIndex)
{
    Node *const node = nodeOf(treeIndex);
    if (node && !node->isExpanded)
        expand(node);
}

void VisibleRows::expand(Node *node)
{
    fill(node);
    node->isExpanded = true;
    if (!isVisible(node))
        return;
    showRowsBelow(node, rowOf(node) + 1, 0, static_cast<int>(node->children.size()));
    repaint(node);
}

void VisibleRows::expandAll(const QModelIndex &treeIndex)
{
    Node *const node = nodeOf(treeIndex);
    if (!node)
        return;
    if (node != m_root.get())
        collapse(treeIndex);
    for (const std::unique_ptr<Node> &child : node->children)
        fillAll(child.get());
    if (node != m_root.get()) {
        expand(node);
        return;
    }
    beginResetModel(); // for the view this is one change of many rows
    m_rows.clear();
    m_root->collectVisible(&m_rows);
    endResetModel();
}

void VisibleRows::fillAll(Node *node)
{
    if (!sourceModel()->hasChildren(treeIndexOf(node)))
        return;
    fill(node);
    node->isExpanded = true;
    for (const std::unique_ptr<Node> &child : node->children)
        fillAll(child.get());
}

void VisibleRows::collapse(const QModelIndex &treeIndex)
{
    Node *const node = nodeOf(treeIndex);
    if (!node || node == m_root.get() || !node->isExpanded)
        return;
    const bool visible = isVisible(node);
    const int first = visible ? rowOf(node) + 1 : 0;
    const int end = visible ? endOf(node) : 0;
    if (first < end)
        beginRemoveRows({}, first, end - 1);
    node->isExpanded = false;
    if (first < end) {
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + end);
        endRemoveRows();
    }
    repaint(node);
}

int VisibleRows::level(const QModelIndex &row) const
{
    int level = -1;
    for (const Node *node = static_cast<Node *>(row.internalPointer()); node && node->parent; node = node->parent)
        ++level;
    return level;
}

bool VisibleRows::isExpandable(const QModelIndex &row) const
{
    return row.isValid() && sourceModel()->hasChildren(mapToSource(row));
}

QModelIndex VisibleRows::mapToSource(const QModelIndex &row) const
{
    return row.isValid() ? treeIndexOf(static_cast<Node *>(row.internalPointer())) : QModelIndex();
}

QModelIndex VisibleRows::mapFromSource(const QModelIndex &treeIndex) const
{
    const Node *const node = nodeOf(treeIndex);
    return node ? indexOf(node) : QModelIndex();
}

QModelIndex VisibleRows::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column, m_rows[static_cast<size_t>(row)]) : QModelIndex();
}

QModelIndex VisibleRows::parent(const QModelIndex &) const
{
    return {};
}

int VisibleRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int VisibleRows::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

bool VisibleRows::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

void VisibleRows::onInserted(const QModelIndex &parent, int first, int last)
{
    Node *const node = nodeOf(parent);
    if (!node)
        return;
    if (node->isFilled) {
        const int former = static_cast<int>(node->children.size());
        const bool isShown = node->isExpanded && isVisible(node);
        first = std::min(first, former);
        int at = 0;
        if (isShown)
            at = first < former ? rowOf(node->children[static_cast<size_t>(first)].get()) : endOf(node);
        const int count = last - first + 1;
        node->insert(first, count);
        if (isShown)
            showRowsBelow(node, at, first, first + count);
    }
    repaint(node);
}

void VisibleRows::onAboutToBeRemoved(const QModelIndex &parent, int first, int last)
{
    const Node *const node = nodeOf(parent);
    m_removedFirst = m_removedEnd = 0;
    if (!node || !node->isFilled || !node->isExpanded || !isVisible(node)
        || last >= static_cast<int>(node->children.size()))
        return;
    m_removedFirst = rowOf(node->children[static_cast<size_t>(first)].get());
    m_removedEnd = endOf(node->children[static_cast<size_t>(last)].get());
    beginRemoveRows({}, m_removedFirst, m_removedEnd - 1);
}

void VisibleRows::onRemoved(const QModelIndex &parent, int first, int last)
{
    Node *const node = nodeOf(parent);
    if (!node || !node->isFilled || last >= static_cast<int>(node->children.size()))
        return;
    const bool isShown = m_removedFirst < m_removedEnd;
    m_rows.erase(m_rows.begin() + m_removedFirst, m_rows.begin() + m_removedEnd);
    m_removedFirst = m_removedEnd = 0;
    node->remove(first, last - first + 1);
    if (isShown)
        endRemoveRows();
    repaint(node);
}

void VisibleRows::onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles)
{
    const QModelIndex first = mapFromSource(topLeft.sibling(topLeft.row(), 0));
    const QModelIndex last = mapFromSource(bottomRight.sibling(bottomRight.row(), 0));
    if (first.isValid() && last.isValid())
        Q_EMIT dataChanged(first, last, roles);
}

/// Null for what is below nothing that was ever expanded.
VisibleRows::Node *VisibleRows::nodeOf(const QModelIndex &treeIndex) const
{
    if (!treeIndex.isValid())
        return m_root.get();
    const Node *const parent = nodeOf(treeIndex.parent());
    const size_t row = static_cast<size_t>(treeIndex.row());
    return parent && row < parent->children.size() ? parent->children[row].get() : nullptr;
}

QModelIndex VisibleRows::treeIndexOf(const Node *node) const
{
    return node->parent ? sourceModel()->index(node->row, 0, treeIndexOf(node->parent)) : QModelIndex();
}

bool VisibleRows::isVisible(const Node *node) const
{
    const Node *above = node->parent;
    while (above && above->isExpanded)
        above = above->parent;
    return !above;
}

/// The place in the list of @p node, which is visible and not the root. Looked for from where it was the last time: few
/// rows have come or gone since.
int VisibleRows::rowOf(const Node *node) const
{
    const int count = static_cast<int>(m_rows.size());
    const auto isAt = [&](int row) { return row >= 0 && row < count && m_rows[static_cast<size_t>(row)] == node; };
    const int start = std::min(node->lastSeen, count);
    const int farthest = std::max(start, count - start);
    for (int distance = 0; distance <= farthest; ++distance) {
        if (isAt(start + distance))
            return node->lastSeen = start + distance;
        if (isAt(start - distance))
            return node->lastSeen = start - distance;
    }
    return -1;
}

/// Behind the rows below @p node, which is visible.
int VisibleRows::endOf(const Node *node) const
{
    for (; node->parent; node = node->parent) {
        const size_t next = static_cast<size_t>(node->row) + 1;
        if (next < node->parent->children.size())
            return rowOf(node->parent->children[next].get());
    }
    return static_cast<int>(m_rows.size());
}

void VisibleRows::fill(Node *node)
{
    const QModelIndex index = treeIndexOf(node);
    if (sourceModel()->canFetchMore(index))
        sourceModel()->fetchMore(index);
    if (!node->isFilled)
        node->insert(0, sourceModel()->rowCount(index));
    node->isFilled = true;
}

/// Puts the visible ones of the children from @p firstChild to before @p endChild, with all below them, into the list.
void VisibleRows::showRowsBelow(Node *node, int at, int firstChild, int endChild)
{
    std::vector<Node *> rows;
    node->collectVisible(static_cast<size_t>(firstChild), static_cast<size_t>(endChild), &rows);
    if (rows.empty())
        return;
    for (size_t i = 0; i < rows.size(); ++i)
        rows[i]->lastSeen = at + static_cast<int>(i);
    beginInsertRows({}, at, at + static_cast<int>(rows.size()) - 1);
    m_rows.insert(m_rows.begin() + at, rows.begin(), rows.end());
    endInsertRows();
}

/// Invalid for the root, and for what is not visible.
QModelIndex VisibleRows::indexOf(const Node *node) const
{
    return node->parent && isVisible(node) ? createIndex(rowOf(node), 0, const_cast<Node *>(node)) : QModelIndex();
}

void VisibleRows::repaint(const Node *node)
{
    const QModelIndex index = indexOf(node);
    if (index.isValid())
        Q_EMIT dataChanged(index, index, {Qt::DecorationRole});
}
