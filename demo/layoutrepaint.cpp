// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "layoutrepaint.h"

#include <QHeaderView>
#include <QTreeView>

void repaintOnLayoutChange(QAbstractItemView *view)
{
    QAbstractItemModel *const model = view->model();
    QObject::disconnect(model, &QAbstractItemModel::layoutChanged, view, nullptr);
    QList<QObject *> others{view->selectionModel()};
    if (const auto *const tree = qobject_cast<QTreeView *>(view))
        others += tree->header(); // it would forget how wide its columns are
    for (QObject *other : others) {
        QObject::disconnect(model, &QAbstractItemModel::layoutAboutToBeChanged, other, nullptr);
        QObject::disconnect(model, &QAbstractItemModel::layoutChanged, other, nullptr);
    }
    QObject::connect(model, &QAbstractItemModel::layoutChanged, view, [view] { view->viewport()->update(); });
}
