// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "models/naturalcompare.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace VeskFM;

namespace
{

int sign(int value)
{
    return value < 0 ? -1 : value > 0;
}

/// Names that share beginnings, differ in zeros, in long numbers, beyond a byte and beyond the BMP.
QStringList confusingNames(int count)
{
    static const QStringList pieces = {"a",
                                       "B",
                                       "0",
                                       "00",
                                       "7",
                                       "12",
                                       "3456789012345678901",
                                       "_",
                                       ".",
                                       "/",
                                       ":",
                                       QString(QChar(0)),
                                       QStringLiteral("ÿ"),
                                       QStringLiteral("é"),
                                       QStringLiteral("Ж"),
                                       QStringLiteral("\U0001f600"),
                                       QStringLiteral("\uffee"),
                                       "report "};
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
    void ordersPairs_data();
    void ordersPairs();
    void isATotalOrder();
    void prefixesNeverContradict();
};

void NaturalCompareTest::ordersPairs_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");

    QTest::newRow("numbers by value") << "file9"
                                      << "file10";
    QTest::newRow("the number decides before what follows it") << "a2z"
                                                               << "a10b";
    QTest::newRow("more than 64 bits") << "x18446744073709551616"
                                       << "x18446744073709551617";
    QTest::newRow("difference within a long number") << "n129"
                                                     << "n1210";
    QTest::newRow("zeros decide only between equals") << "A01"
                                                      << "A1";
    QTest::newRow("what follows comes before zeros") << "A1a"
                                                     << "A01b";
    QTest::newRow("a number of zeros only") << "x000"
                                            << "x1";
    QTest::newRow("end before anything") << "a"
                                         << "a0";
    QTest::newRow("end before anything after equal numbers") << "a007"
                                                             << "a7b";
    QTest::newRow("digits among other characters by code") << "a.1"
                                                           << "a1";
    QTest::newRow("upper case first") << "Zebra"
                                      << "apple";
    QTest::newRow("code units, not code points") << QStringLiteral("\U0001f600") << QStringLiteral("\uff21");
    QTest::newRow("only ASCII digits count")
        << QStringLiteral("٣") << QStringLiteral("١٠").replace(0, 1, QStringLiteral("٤"));
}

void NaturalCompareTest::ordersPairs()
{
    QFETCH(QString, first);
    QFETCH(QString, second);

    QVERIFY(naturalCompare(first, second) < 0);
    QVERIFY(naturalCompare(second, first) > 0);
    QCOMPARE(naturalCompare(first, first), 0);
}

void NaturalCompareTest::isATotalOrder()
{
    QStringList names = confusingNames(150);
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) { return naturalCompare(a, b) < 0; });
    for (int i = 0; i < names.size(); ++i) {
        for (int j = 0; j < names.size(); ++j) {
            const int expected = names.at(i) == names.at(j) ? 0 : sign(i - j);
            QCOMPARE(sign(naturalCompare(names.at(i), names.at(j))), expected);
        }
    }
}

void NaturalCompareTest::prefixesNeverContradict()
{
    const QStringList names = confusingNames(400);
    for (const QString &a : names) {
        for (const QString &b : names) {
            const qsizetype skip = commonPrefixLength(a, b, a.size());
            QVERIFY(skip == 0 || !a.at(int(skip) - 1).isDigit());
            const KeyPrefix naturalA = naturalPrefix(a, skip);
            const KeyPrefix naturalB = naturalPrefix(b, skip);
            if (naturalA < naturalB)
                QVERIFY(naturalCompare(a, b) < 0);
            const KeyPrefix unitsA = codeUnitPrefix(a, skip);
            const KeyPrefix unitsB = codeUnitPrefix(b, skip);
            if (unitsA < unitsB)
                QVERIFY(a.compare(b) < 0);
        }
    }
}

QTEST_GUILESS_MAIN(NaturalCompareTest)
#include "naturalcomparetest.moc"
