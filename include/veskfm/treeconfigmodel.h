// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QAbstractItemModel>
#include <QStringList>

#include <memory>

namespace VeskFM
{

/// The roots of PlacesModel as a checkable tree, for a settings dialog: what is checked is shown, what is not is named in
/// Settings::hiddenTreeItems(). Names in that setting that stand for no root here are kept.
///
/// A group follows the places in it: partially checked while only some are; checking or unchecking it does so to all of
/// them. Changes stay here until apply(). While there are none, the setting is followed when somebody else changes it.
///
/// Thread: the GUI thread.
class VESKFM_EXPORT TreeConfigModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit TreeConfigModel(QObject *parent = nullptr);
    ~TreeConfigModel() override;

    using QObject::parent;
    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Displayed name, icon and check state; Model::SortKeyRole gives the name in the setting.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    QStringList hiddenItems() const; ///< what apply() stores
    bool isModified() const;         ///< whether that differs from the setting

public Q_SLOTS:
    void apply();           ///< stores the changes in the settings
    void revert() override; ///< drops them

Q_SIGNALS:
    void changed(); ///< a check state, by the user, or by revert() or the setting

private:
    Q_DISABLE_COPY(TreeConfigModel)
    class Private;

    const std::unique_ptr<Private> d;
};

} // namespace VeskFM
