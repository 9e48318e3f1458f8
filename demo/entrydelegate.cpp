// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrydelegate.h"

#include "printabletext.h"

#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace
{
constexpr int rowPadding = 4; // pixels above and below the taller of text and icon
/// A picture of thin lines that the style tints for the selection could not be seen on it any more.
QIcon untinted(const QIcon &icon, const QStyleOptionViewItem &option)
{
    QWindow *const window = option.widget ? option.widget->window()->windowHandle() : nullptr;
    const QPixmap picture = icon.pixmap(window, option.decorationSize);
    QIcon result;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
        result.addPixmap(picture, mode);
    return result;
}

} // namespace

EntryDelegate::EntryDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

QString EntryDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    return printableText(QStyledItemDelegate::displayText(value, locale));
}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    if (m_cellSize.isValid())
        return m_cellSize;
    const int content = std::max(option.decorationSize.height(), option.fontMetrics.height());
    return {option.decorationSize.width(), content + 2 * rowPadding};
}

void EntryDelegate::setRightAlignedColumn(int column)
{
    m_rightAlignedColumn = column;
}

void EntryDelegate::setCellSize(const QSize &size)
{
    m_cellSize = size;
}

void EntryDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    const QSize box = option->decorationSize;
    QStyledItemDelegate::initStyleOption(option, index);
    option->decorationSize = box; // the base shrinks it to the picture, and names would start anywhere
    option->decorationAlignment = Qt::AlignCenter;
    if (option->state.testFlag(QStyle::State_Selected) && !option->icon.isNull())
        option->icon = untinted(option->icon, *option);
    if (index.column() == m_rightAlignedColumn) {
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
        option->text += QStringLiteral("\u2002"); // keeps away from the next column
    }
}
