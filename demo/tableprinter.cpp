// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "tableprinter.h"

#include "printabletext.h"

#include <veskfm/model.h>
#include <veskfm/modelitem.h>

#include <QTextStream>

#include <algorithm>
#include <cwchar>

using namespace VeskFM;

namespace
{

// Wide characters take two cells of a terminal, combining ones none.
int cellWidth(const QString &text)
{
    int width = 0;
    for (uint character : text.toUcs4()) {
        const int cells = ::wcwidth(static_cast<wchar_t>(character));
        width += cells < 0 ? 1 : cells; // a locale that does not know the character
    }
    return width;
}

} // namespace

TablePrinter::TablePrinter(const Model &model)
{
    const int columns = model.columnCount();
    const int sizeColumn = model.propertyIndex(QStringLiteral("Size"));
    QStringList titles;
    for (int column = 0; column < columns; ++column) {
        titles += model.headerData(column, Qt::Horizontal).toString();
        m_rightAligned += column == sizeColumn;
    }
    m_lines += titles;
    for (int row = 0; row < model.rowCount(); ++row) {
        static_cast<ModelItem *>(model.index(row, 0).internalPointer())->refine();
        QStringList line;
        for (int column = 0; column < columns; ++column)
            line += printableText(model.index(row, column).data().toString());
        m_lines += line;
    }

    m_widths.fill(0, columns);
    for (const QStringList &line : qAsConst(m_lines)) {
        for (int column = 0; column < columns; ++column)
            m_widths[column] = std::max(m_widths.at(column), cellWidth(line.at(column)));
    }
}

void TablePrinter::print(QTextStream &stream) const
{
    for (const QStringList &line : m_lines) {
        QString text;
        for (int column = 0; column < line.size(); ++column) {
            const QString &cell = line.at(column);
            const QString padding(m_widths.at(column) - cellWidth(cell), QLatin1Char(' '));
            text += m_rightAligned.at(column) ? padding + cell : cell + padding;
            text += QLatin1String("  ");
        }
        while (text.endsWith(QLatin1Char(' ')))
            text.chop(1);
        stream << text << '\n';
    }
}
