// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskicon.h>
#include <veskplatform/veskicontheme.h>

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

/// Icons of a theme made here: each is one colour, so that a pixel tells what was painted there.
class VeskIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findsIcons_data();
    void findsIcons();
    void seesANewTheme();
    void paintsEmblems_data();
    void paintsEmblems();
    void givesPixmapsWithEmblems_data();
    void givesPixmapsWithEmblems();
    void isAnIconLikeAnyOther();
    void leavesIconsWithoutEmblemsAlone();

private:
    void addTheme(const QString &theme, const QMap<QString, QColor> &icons);
    static QColor colourOf(const QIcon &icon);
    static void compareCorners(const QImage &image, Qt::Corner emblem);

    const QColor blue = Qt::blue, red = Qt::red, green = Qt::green, gray = Qt::gray;
    QTemporaryDir dir;
};

void VeskIconTest::addTheme(const QString &theme, const QMap<QString, QColor> &icons)
{
    QByteArray directories;
    QByteArray groups;
    for (const int size : {8, 16, 22, 32, 48, 64, 96, 128, 256}) {
        const QString folder = QString::number(size);
        QVERIFY(QDir(dir.path()).mkpath(theme + QLatin1Char('/') + folder));
        directories += folder.toLatin1() + ',';
        groups += "[" + folder.toLatin1() + "]\nType=Fixed\nSize=" + folder.toLatin1() + '\n';
        for (auto icon = icons.cbegin(); icon != icons.cend(); ++icon) {
            QImage image(size, size, QImage::Format_ARGB32);
            image.fill(*icon);
            QVERIFY(
                image.save(dir.filePath(theme + QLatin1Char('/') + folder + QLatin1Char('/') + icon.key() + ".png")));
        }
    }
    QFile index(dir.filePath(theme + "/index.theme"));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=" + theme.toLatin1() + "\nDirectories=" + directories + '\n' + groups);
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
    QIcon::setThemeSearchPaths({dir.path()});
    QIcon::setThemeName("first");
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(green);
    QVERIFY(image.save(dir.filePath("file.png")));
    mkfifo(QFile::encodeName(dir.filePath("fifo.png")).constData(), 0600);
    QFile hollow(dir.filePath("huge.pbm")); // says it is 10^10 pixels
    QVERIFY(hollow.open(QIODevice::WriteOnly) && hollow.write("P4 100000 100000\n") > 0);
}

void VeskIconTest::findsIcons_data()
{
    QCOMPARE(VeskIconTheme::instance()->getMimeIconName("text/x-chdr"), QStringLiteral("text-x-chdr"));
    QCOMPARE(VeskIconTheme::instance()->getMimeIconName("no/such-type"), QString());
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("colour"); // gray stands for the MIME type's generic icon, black for the fallback
    QTest::newRow("in the theme") << "base" << blue;
    QTest::newRow("with an extension") << "base.png" << blue;
    QTest::newRow("missing") << "nothing" << QColor(Qt::black);
    QTest::newRow("missing, asked again") << "nothing" << QColor(Qt::black);
    QTest::newRow("empty") << "" << QColor(Qt::black);
    QTest::newRow("MIME type without an icon of its own") << "text-x-chdr" << gray;
    QTest::newRow("file") << dir.filePath("file.png") << green;
    QTest::newRow("missing file") << dir.filePath("none.png") << QColor(Qt::black);
    QTest::newRow("FIFO") << dir.filePath("fifo.png") << QColor(Qt::black);
    QTest::newRow("huge image") << dir.filePath("huge.pbm") << QColor(Qt::black);
}

void VeskIconTest::findsIcons()
{
    QFETCH(QString, name);
    QFETCH(QColor, colour);
    QPixmap black(16, 16);
    black.fill(Qt::black);
    QCOMPARE(colourOf(VeskIcon::fromTheme(name, {}, QIcon(black))), colour);
    QCOMPARE(VeskIcon::fromTheme(name).isNull(), colour == QColor(Qt::black));
}

void VeskIconTest::seesANewTheme()
{
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

void VeskIconTest::paintsEmblems_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<Qt::Corner>("corner");
    for (const int size : {16, 22, 32, 48, 64, 128}) {
        for (const qreal ratio : {1.0, 1.5, 2.0}) {
            for (const Qt::Corner corner : {Qt::TopLeftCorner, Qt::BottomRightCorner, Qt::BottomLeftCorner})
                QTest::addRow("%d pixels at %.1f, corner %d", size, ratio, corner) << size << ratio << corner;
        }
    }
}

void VeskIconTest::paintsEmblems()
{
    QFETCH(int, size);
    QFETCH(qreal, ratio);
    QFETCH(Qt::Corner, corner);
    QImage canvas((QSizeF(size, size) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    VeskIcon::fromTheme("base", {{corner, "emblem"}}).paint(&painter, QRect(0, 0, size, size));
    painter.end();
    QRect painted; // a size that the theme lacks is painted smaller, in the middle
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x)
            painted |= qAlpha(canvas.pixel(x, y)) == 255 ? QRect(x, y, 1, 1) : QRect();
    }
    QVERIFY(painted.width() == painted.height() && painted.width() * 4 > canvas.width() * 2);
    compareCorners(canvas.copy(painted), corner);
}

void VeskIconTest::givesPixmapsWithEmblems_data()
{
    QTest::addColumn<QSize>("baseSize");
    QTest::addColumn<QSize>("asked");
    QTest::addColumn<QSize>("given");
    QTest::newRow("same size") << QSize(64, 64) << QSize(64, 64) << QSize(64, 64);
    QTest::newRow("not enlarged") << QSize(32, 32) << QSize(64, 64) << QSize(32, 32);
    QTest::newRow("keeps its shape") << QSize(128, 64) << QSize(64, 64) << QSize(64, 32);
}

void VeskIconTest::givesPixmapsWithEmblems()
{
    QFETCH(QSize, baseSize);
    QFETCH(QSize, asked);
    QFETCH(QSize, given);
    QPixmap base(baseSize);
    base.fill(blue);
    const QIcon icon = VeskIcon::withEmblems(base, {{Qt::TopRightCorner, "emblem"}, {Qt::BottomLeftCorner, "nothing"}});
    const QPixmap pixmap = icon.pixmap(asked);
    QCOMPARE(pixmap.size(), given);
    QCOMPARE(icon.actualSize(asked), given);
    QCOMPARE(icon.availableSizes(), QIcon(base).availableSizes());
    compareCorners(pixmap.toImage(), Qt::TopRightCorner);
}

void VeskIconTest::isAnIconLikeAnyOther()
{
    const QIcon icon = VeskIcon::fromTheme("base", {{Qt::TopLeftCorner, "emblem"}});
    QCOMPARE(icon.name(), QStringLiteral("base"));
    QVERIFY(!icon.isNull() && icon.pixmap(QSize()).isNull());
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << icon << QStringLiteral("what follows");
    QDataStream in(bytes);
    QIcon restored;
    QString follower;
    in >> restored >> follower;
    QCOMPARE(follower, QStringLiteral("what follows"));
    compareCorners(restored.pixmap(64).toImage(), Qt::TopLeftCorner);

    QIcon changed = icon; // the copy gets an engine of its own
    QPixmap other(512, 512);
    other.fill(green);
    changed.addPixmap(other);
    compareCorners(icon.pixmap(64).toImage(), Qt::TopLeftCorner);
}

void VeskIconTest::leavesIconsWithoutEmblemsAlone()
{
    const QIcon icon = VeskIcon::fromTheme("base");
    QCOMPARE(VeskIcon::withEmblems(icon, {}).cacheKey(), icon.cacheKey());
    QCOMPARE(VeskIcon::withEmblems(icon, {{Qt::TopLeftCorner, "nothing"}}).cacheKey(), icon.cacheKey());
    QVERIFY(VeskIcon::withEmblems(QIcon(), {{Qt::TopLeftCorner, "emblem"}}).isNull());
}

QTEST_MAIN(VeskIconTest)
#include "veskicontest.moc"
