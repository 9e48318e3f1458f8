// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scoreboard.h"

#include "figures.h"
#include "generatedtree.h"

#include <QDir>
#include <QTextStream>

namespace
{

constexpr int runs = 5;

bool measureAll(const QString &directory, Figures *figures)
{
    return measure(QStringLiteral("floor"), directory, figures)
        && measure(QStringLiteral("listing"), directory, figures)
        && measure(QStringLiteral("changes"), directory, figures);
}

QString jsonLine(int size, const Figures &figures)
{
    static const char *const order[] = {"floor_ms",         "full_ms",          "stall_ms",         "resort_size_ms",
                                        "resort_name_ms",   "bytes_per_row",    "leave_ms",         "trim_ms",
                                        "created_ms",       "touched_ms",       "deleted_ms",       "created_stall_ms",
                                        "touched_stall_ms", "deleted_stall_ms", "event_created_us", "event_changed_us",
                                        "event_deleted_us"};
    QStringList parts{QStringLiteral("\"files\":%1,\"runs\":%2").arg(size).arg(runs)};
    const auto ratio = [&](const char *name, const char *figure) {
        const double floor = median(figures[QStringLiteral("floor_ms")]);
        parts += QStringLiteral("\"%1\":%2")
                     .arg(QLatin1String(name), rounded(median(figures[QLatin1String(figure)]) / floor));
    };
    ratio("full_to_floor", "full_ms");
    ratio("resort_name_to_floor", "resort_name_ms");
    for (const char *const name : order)
        parts += QStringLiteral("\"%1\":%2").arg(QLatin1String(name), summary(figures[QLatin1String(name)]));
    return QLatin1Char('{') + parts.join(QLatin1Char(',')) + QLatin1Char('}');
}

} // namespace

bool printScore(int size)
{
    const GeneratedTree tree(QDir::tempPath(), size);
    if (tree.path().isEmpty()) {
        QTextStream(stderr) << "Cannot fill a directory below " << QDir::tempPath() << '\n';
        return false;
    }
    Figures warmUp; // the kernel's caches; not counted
    Figures figures;
    bool good = measureAll(tree.path(), &warmUp);
    for (int run = 0; good && run < runs; ++run)
        good = measureAll(tree.path(), &figures);
    if (good)
        QTextStream(stdout) << jsonLine(size, figures) << '\n';
    return good;
}
