// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "changer.h"
#include "measures.h"
#include "scoreboard.h"

#include <QApplication>
#include <QJsonDocument>
#include <QTextStream>

namespace
{

int runMeasure(const QString &measure, const QString &directory)
{
    const QJsonObject figures = measure == QLatin1String("floor") ? Measures::floor(directory)
        : measure == QLatin1String("listing")                     ? Measures::listing(directory)
                                                                  : Measures::changes(directory);
    QTextStream(stdout) << QJsonDocument(figures).toJson(QJsonDocument::Compact);
    return figures.isEmpty() ? 1 : 0;
}

} // namespace

/// vesk-bench [SIZE...]; it starts itself as "--measure NAME DIR" and "--change NAME DIR".
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments().mid(1);
    if (arguments.size() == 3 && arguments.first() == QLatin1String("--measure"))
        return runMeasure(arguments.at(1), arguments.at(2));
    if (arguments.size() == 3 && arguments.first() == QLatin1String("--change"))
        return Changer::run(arguments.at(1), arguments.at(2));

    for (const QString &argument : arguments) {
        bool isNumber = false;
        if (argument.toInt(&isNumber) < 1 || !isNumber) {
            QTextStream(stderr) << "usage: vesk-bench [SIZE...]\n";
            return 2;
        }
    }
    const QStringList usual{QStringLiteral("1000"), QStringLiteral("10000"), QStringLiteral("100000"),
                            QStringLiteral("1000000")};
    for (const QString &size : arguments.isEmpty() ? usual : arguments) {
        if (!printScore(size.toInt()))
            return 1;
    }
    return 0;
}
