// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAbstractProxyModel>

#include <memory>
#include <vector>

/// The rows of a tree as a list: each below its parent, as long as all above it are expanded.
///
/// The toolkit's tree view lays out all of its rows again when one comes or goes, and its model visits each that is
/// expanded. Here that costs what it costs to move a part of an array.
///
/// For trees that insert, remove and reset: rows that move, or change places with a layout, are not followed.
/// Thread: GUI.
class VisibleRows : public QAbstractProxyModel
{
    Q_OBJECT

public:
    explicit VisibleRows(QAbstractItemModel *tree, QObject *parent = nullptr); ///< @p tree is borrowed
    ~VisibleRows() override;

    // These take indexes of the tree. What is expanded below something collapsed stays so, unseen.
    bool isExpanded(const QModelIndex &treeIndex) const;
    void expand(const QModelIndex &treeIndex);         ///< lists what is not listed yet; its rows come later
    void expandAll(const QModelIndex &treeIndex = {}); ///< with all below it that the tree has
    void collapse(const QModelIndex &treeIndex);

    int level(const QModelIndex &row) const; ///< 0 at the top
    bool isExpandable(const QModelIndex &row) const;

    QModelIndex mapToSource(const QModelIndex &row) const override;
    QModelIndex mapFromSource(const QModelIndex &treeIndex) const override; ///< invalid for one that is not visible
    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;

private:
    struct Node;
    using Nodes = std::vector<std::unique_ptr<Node>>;

    void reset();
    void onInserted(const QModelIndex &parent, int first, int last);
    void onAboutToBeRemoved(const QModelIndex &parent, int first, int last);
    void onRemoved(const QModelIndex &parent, int first, int last);
    void onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles);

    Node *nodeOf(const QModelIndex &treeIndex) const;
    QModelIndex treeIndexOf(const Node *node) const;
    bool isVisible(const Node *node) const;
    int rowOf(const Node *node) const;
    int endOf(const Node *node) const;
    void expand(Node *node);
    void fill(Node *node);
    void fillAll(Node *node);
    void showRowsBelow(Node *node, int at, int firstChild, int endChild);
    QModelIndex indexOf(const Node *node) const;
    void repaint(const Node *node);

    const std::unique_ptr<Node> m_root;
    std::vector<Node *> m_rows;
    int m_removedFirst = 0;
    int m_removedEnd = 0; // rows that are about to be removed; none when it is the same
};
