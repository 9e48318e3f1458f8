// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/model.h>

namespace VeskFM
{

class TreeModelPrivate;

/// A directory as a tree of containers: directories, places and mounted archives, never plain files.
///
/// A branch is listed when a view expands it (fetchMore()). Until then every container has an expander; the first
/// refinement of an item takes it from those that cannot contain containers. The trash never has one, and is not listed.
/// Name filters and validators of the filter are not asked; hidden containers are shown when the filter shows hidden
/// entries.
///
/// Thread: the GUI thread.
class VESKFM_EXPORT TreeModel : public Model
{
    Q_OBJECT

public:
    explicit TreeModel(QFlags<ModelFilter::EntryFilter> filters, QObject *parent = nullptr);
    ~TreeModel() override;

    using QObject::parent;
    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;

    /// Opens the tree down to @p entry and returns the index of every level, top first; empty when it is not below the
    /// root. Works before any of the directories on the way is listed: missing rows are made at once, also for hidden
    /// directories, and their listings start. Rows of a directory that was not listed before come without a signal.
    QModelIndexList pathIndexList(const Entry &entry) override;
    QModelIndex indexOfEntry(const Entry &entry) override; ///< the last of pathIndexList(), which opens the path

protected:
    /// For kinds of trees that replace steps of the private part. Takes ownership of @p d.
    TreeModel(TreeModelPrivate &d, Model::Mode mode, QFlags<ModelFilter::EntryFilter> filters, QObject *parent);

private:
    Q_DISABLE_COPY(TreeModel)
};

} // namespace VeskFM
