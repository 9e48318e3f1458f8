// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>
#include <QVector>

class QTextStream;

namespace VeskFM
{
class Model;
}

/// Writes the rows of a model as a table with aligned columns, in the order of the rows.
class TablePrinter
{
public:
    /// Refines every row of @p model (which may read the files) and keeps the texts; the model is not needed later.
    explicit TablePrinter(const VeskFM::Model &model);
    void print(QTextStream &stream) const;

private:
    QVector<QStringList> m_lines; // the first holds the column titles
    QVector<int> m_widths;        // in terminal cells
    QVector<bool> m_rightAligned;
};
