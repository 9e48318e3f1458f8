// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "findscore.h"

#include "figures.h"
#include "generatedforest.h"

#include <QDir>
#include <QTextStream>

namespace
{

constexpr int runs = 5;

bool measureAll(const QString &directory, Figures *figures)
{
    return measure(QStringLiteral("find"), directory, figures) && measure(QStringLiteral("walk"), directory, figures)
        && measure(QStringLiteral("window"), directory, figures)
        && measure(QStringLiteral("childs"), directory, figures);
}

/// The part of the line that is about one tree; empty when a measure failed.
QString scoreOf(const ForestShape &shape, int size)
{
    const GeneratedForest forest(QDir::tempPath(), shape, size);
    if (forest.path().isEmpty()) {
        QTextStream(stderr) << "Cannot fill a directory below " << QDir::tempPath() << '\n';
        return {};
    }
    Figures warmUp; // the kernel's caches; not counted
    Figures figures;
    bool good = measureAll(forest.path(), &warmUp);
    for (int run = 0; good && run < runs; ++run) // in turn: what else the machine does meets all of them
        good = measureAll(forest.path(), &figures);
    if (!good)
        return {};
    const auto middle = [&](const char *name) { return median(figures[QLatin1String(name)]); };
    QStringList parts;
    parts += QStringLiteral("\"walk_to_find\":%1").arg(rounded(middle("walk_ms") / middle("find_ms")));
    parts += QStringLiteral("\"walk_to_find_cpu\":%1").arg(rounded(middle("walk_cpu_ms") / middle("find_cpu_ms")));
    for (const char *const name :
         {"find_ms", "find_cpu_ms", "walk_ms", "walk_cpu_ms", "childs_ms", "window_ms", "stall_ms", "peak_mb"})
        parts += QStringLiteral("\"%1\":%2").arg(QLatin1String(name), summary(figures[QLatin1String(name)]));
    for (const char *const name : {"walked", "matches"})
        parts += QStringLiteral("\"%1\":%2").arg(QLatin1String(name)).arg(qRound(middle(name)));
    return QLatin1Char('{') + parts.join(QLatin1Char(',')) + QLatin1Char('}');
}

} // namespace

bool printFindScore(int size)
{
    const QString wide = scoreOf(ForestShape::wide(), size);
    const QString deep = wide.isEmpty() ? QString() : scoreOf(ForestShape::deep(), size);
    if (deep.isEmpty())
        return false;
    QTextStream(stdout) << "{\"bench\":\"find\",\"entries\":" << size << ",\"runs\":" << runs
                        << ",\"due\":{\"walk_to_find\":1.5,\"stall_ms\":50},\"wide\":" << wide << ",\"deep\":" << deep
                        << "}\n";
    return true;
}
