// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QHash>
#include <QString>
#include <QVector>

/// What several runs measured, by name of the figure.
using Figures = QHash<QString, QVector<double>>;

/// Runs one measure in a fresh process; its figures join those of the runs before.
bool measure(const QString &name, const QString &directory, Figures *figures);

double median(QVector<double> values);
QString rounded(double value); ///< three digits or more
/// Median, least and greatest, as a JSON object.
QString summary(const QVector<double> &values);
QString objectOf(const Figures &figures); ///< summaries by name, as a JSON object
