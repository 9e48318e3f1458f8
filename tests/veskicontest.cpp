// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskplatform/veskicon.h>
#include <veskplatform/veskicontheme.h>

#include <QPainter>
#include <QPixmap>
#include <QtTest>

#include <sys/stat.h>

/// Icons of a theme made here: each is one colour, so that a pixel tells what was painted there.
class VeskIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findsIcons();
    void paintsEmblems();
    void givesPixmapsWithEmblems();
    void isAnIconLikeAnyOther();

private:
    void addTheme(const QByteArray &theme, const QMap<QString, QColor> &icons);
    static QColor colourOf(const QIcon &icon);
    static void compareCorners(const QImage &image, Qt::Corner emblem);

    const QColor blue = Qt::blue, red = Qt::red, green = Qt::green, gray = Qt::gray;
    TestTree tree;
};

void VeskIconTest::addTheme(const QByteArray &theme, const QMap<QString, QColor> &icons)
{
    QByteArray directories;
    QByteArray groups;
    for (const int size : {8, 16, 22, 32, 48, 64, 96, 128, 256}) {
        const QByteArray folder = QByteArray::number(size);
        tree.add(theme + '/' + folder + '/');
        directories += folder + ',';
        groups += "[" + folder + "]\nType=Fixed\nSize=" + folder + '\n';
        for (auto icon = icons.cbegin(); icon != icons.cend(); ++icon) {
            QImage image(size, size, QImage::Format_ARGB32);
            image.fill(*icon);
            QVERIFY(image.save(tree.path(theme + '/' + folder + '/' + icon.key() + ".png")));
        }
    }
    tree.add(theme + "/index.theme", "[Icon Theme]\nName=" + theme + "\nDirectories=" + directories + '\n' + groups);
}

QColor VeskIconTest::colourOf(const QIcon &icon)
{
    const QImage image = icon.pixmap(16).toImage();
    return image.isNull() ? QColor() : image.pixelColor(8, 8);
}

void VeskIconTest::initTestCase()
{
    addTheme("first", {{"base", blue}, {"emblem", red}, {"text-x-generic", gray}});
    addTheme("second", {{"base", green}});
    QIcon::setThemeSearchPaths({tree.path()});
    QIcon::setThemeName("first");
}

void VeskIconTest::findsIcons()
{
    QCOMPARE(VeskIconTheme::instance()->getMimeIconName("text/x-chdr"), QStringLiteral("text-x-chdr"));
    QCOMPARE(VeskIconTheme::instance()->getMimeIconName("no/such-type"), QString());
    QPixmap square(32, 32);
    square.fill(green);
    QVERIFY(square.save(tree.path("file.png")));
    mkfifo(tree.bytes("fifo.png").constData(), 0600);
    tree.add("huge.pbm", "P4 100000 100000\n"); // says it is 10^10 pixels
    for (const QString &name : {QString(), QString("nothing"), QString("nothing"), tree.path("none.png"),
                                tree.path("fifo.png"), tree.path("huge.pbm")}) {
        QCOMPARE(colourOf(VeskIcon::fromTheme(name, {}, QIcon(square))), green); // the fallback
        QVERIFY(VeskIcon::fromTheme(name).isNull());
    }
    QCOMPARE(colourOf(VeskIcon::fromTheme("base.png")), blue);
    QCOMPARE(colourOf(VeskIcon::fromTheme("text-x-chdr")), gray); // the generic one of the MIME type
    QCOMPARE(colourOf(VeskIcon::fromTheme(tree.path("file.png"))), green);
    QCOMPARE(colourOf(VeskIcon::fromTheme("base")), blue);
    QIcon::setThemeName("second");
    QCOMPARE(colourOf(VeskIcon::fromTheme("base")), green);
    QVERIFY(VeskIcon::fromTheme("emblem").isNull());
    QIcon::setThemeName("first");
    QCOMPARE(colourOf(VeskIcon::fromTheme("emblem")), red);
}

void VeskIconTest::compareCorners(const QImage &image, Qt::Corner emblem)
{
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    const QMap<Qt::Corner, QPoint> corners{{Qt::TopLeftCorner, {0, 0}},
                                           {Qt::TopRightCorner, {right, 0}},
                                           {Qt::BottomLeftCorner, {0, bottom}},
                                           {Qt::BottomRightCorner, {right, bottom}}};
    for (auto corner = corners.cbegin(); corner != corners.cend(); ++corner)
        QCOMPARE(image.pixelColor(*corner), QColor(corner.key() == emblem ? Qt::red : Qt::blue));
    const QPointF from = corners.value(emblem); // the emblem reaches over a quarter of the icon, not over its middle
    const QPointF across = QPointF(right, bottom) - 2 * from;
    QCOMPARE(image.pixelColor((from + across * 0.25).toPoint()), QColor(Qt::red));
    QCOMPARE(image.pixelColor((from + across * 0.6).toPoint()), QColor(Qt::blue));
}

void VeskIconTest::paintsEmblems()
{
    for (const int size : {16, 22, 48, 128}) {
        for (const qreal ratio : {1.0, 1.5, 2.0}) {
            QImage canvas((QSizeF(size, size) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
            canvas.setDevicePixelRatio(ratio);
            canvas.fill(Qt::transparent);
            QPainter painter(&canvas);
            VeskIcon::fromTheme("base", {{Qt::BottomLeftCorner, "emblem"}}).paint(&painter, QRect(0, 0, size, size));
            painter.end();
            QRect painted; // a size that the theme lacks is painted smaller, in the middle
            for (int i = 0; i < canvas.width() * canvas.height(); ++i) {
                const QPoint at(i % canvas.width(), i / canvas.width());
                painted |= qAlpha(canvas.pixel(at)) == 255 ? QRect(at, at) : QRect();
            }
            QVERIFY(painted.width() == painted.height() && painted.width() * 4 > canvas.width() * 2);
            compareCorners(canvas.copy(painted), Qt::BottomLeftCorner);
        }
    }
}

void VeskIconTest::givesPixmapsWithEmblems()
{
    const auto sizeOn = [this](const QSize &size) {
        QPixmap base(size);
        base.fill(blue);
        const QIcon icon =
            VeskIcon::withEmblems(base, {{Qt::TopRightCorner, "emblem"}, {Qt::BottomLeftCorner, "none"}});
        compareCorners(icon.pixmap(64, 64).toImage(), Qt::TopRightCorner);
        return icon.actualSize(QSize(64, 64)) == icon.pixmap(64, 64).size() ? icon.pixmap(64, 64).size() : QSize();
    };
    QCOMPARE(sizeOn(QSize(64, 64)), QSize(64, 64));
    QCOMPARE(sizeOn(QSize(32, 32)), QSize(32, 32));  // not enlarged
    QCOMPARE(sizeOn(QSize(128, 64)), QSize(64, 32)); // keeps its shape
    const QIcon plain = VeskIcon::fromTheme("base");
    QCOMPARE(VeskIcon::withEmblems(plain, {{Qt::TopLeftCorner, "nothing"}}).cacheKey(), plain.cacheKey());
    QVERIFY(VeskIcon::withEmblems(QIcon(), {{Qt::TopLeftCorner, "emblem"}}).isNull());
}

void VeskIconTest::isAnIconLikeAnyOther()
{
    const QIcon icon = VeskIcon::fromTheme("base", {{Qt::TopLeftCorner, "emblem"}});
    QVERIFY(icon.name() == "base" && icon.pixmap(QSize()).isNull());
    QIcon changed = icon; // the copy gets an engine of its own
    changed.addPixmap(QPixmap(512, 512));
    compareCorners(icon.pixmap(64).toImage(), Qt::TopLeftCorner);
}

QTEST_MAIN(VeskIconTest)
#include "veskicontest.moc"
