// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ordering/naturalcompare.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace VeskFM;

namespace
{

/// Names that share beginnings, differ in zeros, in long numbers, beyond a byte and beyond the BMP.
QStringList confusingNames(int count)
{
    static const QStringList pieces =
        QStringLiteral("a|B|0|00|7|12|3456789012345678901|_|.|/|:|ÿ|é|Ж|\U0001f600|\uffee|report ").split('|')
        + QStringList({QChar(0), QString(270, QLatin1Char('4')), QString(280, QLatin1Char('5'))});
    QRandomGenerator random(42);
    QStringList names = {QString()};
    while (names.size() < count) {
        QString name;
        for (int i = random.bounded(1, 7); i > 0; --i)
            name += pieces.at(random.bounded(pieces.size()));
        names.append(name);
    }
    return names;
}

} // namespace

class NaturalCompareTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ordersPairs()
    {
        static const char *const rows[][3] = {
            {"numbers by value", "file9", "file10"},
            {"more than 64 bits", "x18446744073709551616", "x18446744073709551617"},
            {"difference within a long number", "n129", "n1210"},
            {"zeros decide only between equals", "A01", "A1"},
            {"what follows comes before zeros", "A1a", "A01b"},
            {"a number of zeros only", "x000", "x1"},
            {"end before anything", "a", "a0"},
            {"end before anything after equal numbers", "a007", "a7b"},
            {"digits among other characters by code", "a.1", "a1"},
            {"code units, not code points", "\U0001f600", "\uff21"},
            {"only ASCII digits count", "\u0663\u0660", "\u0664"},
        };
        for (const auto &row : rows) {
            const QString first = QString::fromUtf8(row[1]), second = QString::fromUtf8(row[2]);
            QVERIFY2(naturalCompare(first, second) < 0 && naturalCompare(second, first) > 0, row[0]);
        }
    }

    void isATotalOrderThatPrefixesNeverContradict()
    {
        QStringList names = confusingNames(400);
        std::sort(names.begin(), names.end(),
                  [](const QString &a, const QString &b) { return naturalCompare(a, b) < 0; });
        for (int i = 0; i < names.size(); ++i) {
            for (int j = 0; j < names.size(); ++j) {
                const QString &a = names.at(i), &b = names.at(j);
                const int order = naturalCompare(a, b);
                QVERIFY(a == b ? order == 0 : (order < 0) == (i < j));
                const qsizetype skip = commonPrefixLength(a, b, a.size());
                if (naturalPrefix(a, skip) < naturalPrefix(b, skip))
                    QVERIFY(order < 0);
                if (codeUnitPrefix(a, skip) < codeUnitPrefix(b, skip))
                    QVERIFY(a.compare(b) < 0);
            }
        }
    }
};

QTEST_GUILESS_MAIN(NaturalCompareTest)
#include "naturalcomparetest.moc"
