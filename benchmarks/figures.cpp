// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "figures.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <algorithm>

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

QString objectOf(const Figures &figures)
{
    QStringList names = figures.keys();
    names.sort();
    QStringList parts;
    for (const QString &name : qAsConst(names))
        parts += QStringLiteral("\"%1\":%2").arg(name, summary(figures.value(name)));
    return QLatin1Char('{') + parts.join(QLatin1Char(',')) + QLatin1Char('}');
}
