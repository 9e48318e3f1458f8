// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scoreboard.h"

#include "generatedtree.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTextStream>
#include <QVector>

#include <algorithm>

namespace
{

using Figures = QHash<QString, QVector<double>>;

constexpr int runs = 5;

/// One measure in a fresh process; its figures join those of the runs before.
bool measure(const QString &name, const QString &directory, Figures *figures)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--measure"), name, directory});
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return false;
    const QJsonObject result = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    for (auto figure = result.begin(); figure != result.end(); ++figure)
        (*figures)[figure.key()].append(figure.value().toDouble());
    return true;
}

bool measureAll(const QString &directory, Figures *figures)
{
    return measure(QStringLiteral("floor"), directory, figures)
        && measure(QStringLiteral("listing"), directory, figures)
        && measure(QStringLiteral("changes"), directory, figures);
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.value(values.size() / 2);
}

QString rounded(double value)
{
    return QString::number(value, 'f', value < 10 ? 2 : value < 100 ? 1 : 0);
}

QString summary(const QVector<double> &values)
{
    return QStringLiteral("{\"median\":%1,\"min\":%2,\"max\":%3}")
        .arg(rounded(median(values)), rounded(*std::min_element(values.begin(), values.end())),
             rounded(*std::max_element(values.begin(), values.end())));
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
