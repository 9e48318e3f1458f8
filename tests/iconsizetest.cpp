// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/iconsize.h>

#include <QDataStream>
#include <QTest>

#include <limits>

using namespace VeskFM;

class IconSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snaps_data();
    void snaps();
    void stepsThroughTheTable();
    void keepsASizeOutsideTheTable();
    void streamsPixelsAndSnapsWhenRead();
};

void IconSizeTest::snaps_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("size");
    QTest::newRow("smallest number") << std::numeric_limits<int>::min() << 16;
    QTest::newRow("zero") << 0 << 16;
    QTest::newRow("tie takes the smaller, 16 and 22") << 19 << 16;
    QTest::newRow("tie takes the smaller, 32 and 48") << 40 << 32;
    QTest::newRow("tie takes the smaller, 64 and 128") << 96 << 64;
    QTest::newRow("nearer to the larger") << 97 << 128;
    QTest::newRow("largest number") << std::numeric_limits<int>::max() << 128;
}

void IconSizeTest::snaps()
{
    QFETCH(const int, pixels);
    QTEST(IconSize(pixels).toInt(), "size");
}

void IconSizeTest::stepsThroughTheTable()
{
    IconSize size;
    QCOMPARE(size.name(), QStringLiteral("Tiny"));
    QVERIFY(!size.canBeDecreased());
    QCOMPARE(size.decrease(), 0);
    QStringList names(size.name());
    while (size.canBeIncreased()) {
        QCOMPARE(size.increase(), IconSize::sizes[names.size()]);
        names.append(size.name());
    }
    QCOMPARE(names, QStringList({"Tiny", "Small", "Medium", "Large", "Very Large", "Huge"}));
    QCOMPARE(size.increase(), 0);
    QCOMPARE(size.decrease(), 64);
    QCOMPARE(IconSize::nameForIndex(-1) + IconSize::nameForIndex(IconSize::nSizes), QString());
}

void IconSizeTest::keepsASizeOutsideTheTable()
{
    IconSize size(IconSize::Size(20));
    QVERIFY(size.sizeIndex() == -1 && size.name().isEmpty());
    QVERIFY(size.increase() == 0 && size.decrease() == 0 && size.toInt() == 20);
}

void IconSizeTest::streamsPixelsAndSnapsWhenRead()
{
    QByteArray bytes;
    QDataStream writer(&bytes, QIODevice::WriteOnly);
    writer << IconSize(IconSize::Size(100));
    QCOMPARE(bytes, QByteArray("\0\0\0d", 4));
    IconSize size;
    QDataStream reader(bytes);
    reader >> size;
    QCOMPARE(size.toInt(), 128);
}

QTEST_APPLESS_MAIN(IconSizeTest)
#include "iconsizetest.moc"
