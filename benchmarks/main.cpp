// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "changer.h"
#include "description.h"
#include "findmeasures.h"
#include "findscore.h"
#include "measures.h"
#include "scoreboard.h"
#include "treemeasures.h"
#include "treescore.h"

#include <QApplication>
#include <QHash>
#include <QJsonDocument>
#include <QTextStream>

namespace
{

constexpr int treeSize = 100000;
constexpr int findSize = 1000000;
constexpr int describeSize = 100000;

int runMeasure(const QString &measure, const QString &directory)
{
    static const QHash<QString, QJsonObject (*)(const QString &)> measures{
        {QStringLiteral("floor"), Measures::floor},
        {QStringLiteral("listing"), Measures::listing},
        {QStringLiteral("changes"), Measures::changes},
        {QStringLiteral("find"), FindMeasures::find},
        {QStringLiteral("walk"), FindMeasures::walk},
        {QStringLiteral("window"), FindMeasures::window},
        {QStringLiteral("childs"), FindMeasures::childs},
        {QStringLiteral("nodes"), TreeMeasures::nodes},
        {QStringLiteral("shownnodes"), TreeMeasures::shownNodes},
        {QStringLiteral("widenode"), TreeMeasures::wideNode},
        {QStringLiteral("path"), TreeMeasures::path},
        {QStringLiteral("description"), measureDescription},
    };
    const auto run = measures.value(measure);
    const QJsonObject figures = run ? run(directory) : QJsonObject();
    QTextStream(stdout) << QJsonDocument(figures).toJson(QJsonDocument::Compact);
    return figures.isEmpty() ? 1 : 0;
}

int usage()
{
    QTextStream(stderr) << "usage: vesk-bench [SIZE...]\n       vesk-bench tree|find|describe [SIZE]\n";
    return 2;
}

int sizeFrom(const QString &argument)
{
    bool isNumber = false;
    const int size = argument.toInt(&isNumber);
    return isNumber && size > 0 ? size : 0;
}

int printListings(const QStringList &sizes)
{
    for (const QString &size : sizes) {
        if (!sizeFrom(size))
            return usage();
    }
    for (const QString &size : sizes) {
        if (!printScore(size.toInt()))
            return 1;
    }
    return 0;
}

int printScores(const QStringList &arguments)
{
    static const QHash<QString, QPair<bool (*)(int), int>> benches{
        {QStringLiteral("tree"), {printTreeScore, treeSize}},
        {QStringLiteral("find"), {printFindScore, findSize}},
        {QStringLiteral("describe"), {printDescriptionScore, describeSize}}};
    const auto bench = benches.constFind(arguments.value(0));
    if (bench != benches.cend()) {
        const int size = arguments.size() > 1 ? sizeFrom(arguments.at(1)) : bench->second;
        if (size == 0 || arguments.size() > 2)
            return usage();
        return bench->first(size) ? 0 : 1;
    }
    const QStringList usual{QStringLiteral("1000"), QStringLiteral("10000"), QStringLiteral("100000"),
                            QStringLiteral("1000000")};
    return printListings(arguments.isEmpty() ? usual : arguments);
}

} // namespace

/// vesk-bench [SIZE...], vesk-bench tree|find|describe [SIZE]; it starts itself as "--measure NAME DIR" and "--change NAME DIR".
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments().mid(1);
    if (arguments.size() == 3 && arguments.first() == QLatin1String("--measure"))
        return runMeasure(arguments.at(1), arguments.at(2));
    if (arguments.size() == 3 && arguments.first() == QLatin1String("--change"))
        return Changer::run(arguments.at(1), arguments.at(2));
    return printScores(arguments);
}
