// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStyledItemDelegate>

/// Draws one cell of a directory: every picture in a box of the view's icon size, every name on one line, or below its
/// picture on as many as a cell of fixed size has room for.
class EntryDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit EntryDelegate(QObject *parent = nullptr);

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    /// The same height for all rows; asks nothing of the model, for which a question after an icon means work.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    void setRightAlignedColumn(int column); ///< -1 for none
    void setCellSize(const QSize &size);    ///< of a view with the names below the icons

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    int m_rightAlignedColumn = -1;
    QSize m_cellSize; // invalid: rows
};
