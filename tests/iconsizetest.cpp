// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/iconsize.h>

#include <QtTest>

#include <limits>

using namespace VeskFM;

class IconSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snaps();
    void stepsThroughTheTable();
    void streamsPixelsAndSnapsWhenRead();
};

void IconSizeTest::snaps()
{
    const QMap<int, int> sizes{{std::numeric_limits<int>::min(), 16}, {19, 16}, {40, 32}, {96, 64}, {97, 128},
                               {std::numeric_limits<int>::max(), 128}};
    for (auto size = sizes.cbegin(); size != sizes.cend(); ++size)
        QCOMPARE(IconSize(size.key()).toInt(), *size);
}

void IconSizeTest::stepsThroughTheTable()
{
    IconSize size;
    QVERIFY(!size.canBeDecreased() && size.decrease() == 0);
    QStringList names(size.name());
    while (size.canBeIncreased()) {
        QCOMPARE(size.increase(), IconSize::sizes[names.size()]);
        names.append(size.name());
    }
    QCOMPARE(names, QStringList({"Tiny", "Small", "Medium", "Large", "Very Large", "Huge"}));
    QVERIFY(size.increase() == 0 && size.decrease() == 64);
    IconSize odd(IconSize::Size(20)); // not in the table
    QVERIFY(odd.sizeIndex() == -1 && odd.name().isEmpty());
    QVERIFY(odd.increase() == 0 && odd.decrease() == 0 && odd.toInt() == 20);
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
