// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/model.h>

#include <QHash>
#include <QStringList>

/// The rows of a model as they are when it is made, by the paths of their entries. Once it follows, it knows what a view
/// knows that listens to the signals only.
class ModelRows
{
public:
    explicit ModelRows(const VeskFM::Model *model)
        : m_model(model)
    {
        read(QModelIndex());
    }
    void follow() ///< for as long as both live
    {
        using VeskFM::Model;
        QObject::connect(m_model, &Model::modelReset, m_model, [this] { read(QModelIndex()); });
        QObject::connect(m_model, &Model::rowsInserted, m_model, [this](const auto &parent, int first, int last) {
            for (int row = first; row <= last; ++row) {
                m_children[path(parent)].insert(row, path(m_model->index(row, 0, parent)));
                read(m_model->index(row, 0, parent));
            }
        });
        QObject::connect(m_model, &Model::rowsRemoved, m_model, [this](const auto &parent, int first, int last) {
            for (int row = first; row <= last; ++row)
                m_children[path(parent)].removeAt(first);
        });
    }
    void read(const QModelIndex &index)
    {
        m_children[path(index)].clear();
        for (int row = 0; row < m_model->rowCount(index); ++row) {
            m_children[path(index)].append(path(m_model->index(row, 0, index)));
            read(m_model->index(row, 0, index));
        }
    }
    QStringList all(const QString &parent = QString()) const ///< each before those below it
    {
        QStringList list;
        for (const QString &child : m_children.value(parent))
            list += QStringList(child) + all(child);
        return list;
    }

private:
    QString path(const QModelIndex &index) const
    {
        return index.isValid() ? m_model->entryByIndex(index).path() : QString();
    }
    const VeskFM::Model *const m_model;
    QHash<QString, QStringList> m_children; // by the path of the parent; of rows below the root by an empty one
};
