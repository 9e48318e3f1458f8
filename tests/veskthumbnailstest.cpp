// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskplatform/veskthumbnails.h>

#include <QImage>
#include <QtConcurrent>
#include <QtTest>

#include <sys/stat.h>

#include <functional>

/// Thumbnails in the test's own cache, which is read here as another program would read it.
class VeskThumbnailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(QDir(cache).removeRecursively()); }
    void fitsIntoTheSize();
    void storesWhatOthersRead();
    void usesOnlyWhatIsOfTheFileAsItIs();
    void remembersFailures();
    void hasNoneOf();
    void servesManyThreads();

private:
    QString saveImage(const QString &name, const QSize &size);
    QString cacheFile(const QString &folder, const QString &path) const;
    QStringList cachedFiles() const;

    const QString image = QStringLiteral("image/png");
    const QString cache = qEnvironmentVariable("XDG_CACHE_HOME") + QStringLiteral("/thumbnails");
    TestTree tree;
};

QString VeskThumbnailsTest::saveImage(const QString &name, const QSize &size)
{
    QImage content(size, QImage::Format_ARGB32);
    content.fill(Qt::blue);
    return content.save(tree.path(name), "png") ? tree.path(name) : QString();
}

QString VeskThumbnailsTest::cacheFile(const QString &folder, const QString &path) const
{
    const QByteArray uri = "file://" + path.toUtf8().toPercentEncoding("/!$&'()*+,:=@");
    return cache + QLatin1Char('/') + folder + QLatin1Char('/')
        + QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex() + QStringLiteral(".png");
}

QStringList VeskThumbnailsTest::cachedFiles() const
{
    QStringList files;
    QDirIterator walk(cache, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files.append(walk.next());
    return files;
}

void VeskThumbnailsTest::fitsIntoTheSize()
{
    const auto sizeOfOne = [this](const QSize &original, int size) {
        init();
        const QString path = saveImage("fits.png", original);
        const QImage made = VeskThumbnails::thumbnailImage(path, size, image);
        const bool isKept = VeskThumbnails::thumbnailImage(path, size, image) == made
            && cachedFiles() == QStringList(cacheFile(size ? "large" : "normal", path));
        return isKept && made.pixelColor(0, 0) == Qt::blue ? made.size() : QSize();
    };
    QCOMPARE(sizeOfOne(QSize(400, 200), 0), QSize(128, 64));
    QCOMPARE(sizeOfOne(QSize(400, 800), 1), QSize(128, 256));
    QCOMPARE(sizeOfOne(QSize(20, 30), 1), QSize(20, 30));  // not enlarged
    QCOMPARE(sizeOfOne(QSize(2000, 1), 0), QSize(128, 1)); // thin, yet not nothing
}

void VeskThumbnailsTest::storesWhatOthersRead()
{
    const QString path = saveImage("a b#%;ä.png", QSize(300, 300));
    QVERIFY(!VeskThumbnails::thumbnailImage(path, 0, image).isNull());
    const QString file = cacheFile("normal", path);
    const QImage stored(file);
    QCOMPARE(stored.size(), QSize(128, 128));
    QCOMPARE(stored.text("Thumb::URI"), "file://" + tree.path() + "/a%20b%23%25%3B%C3%A4.png");
    QCOMPARE(stored.text("Thumb::MTime"), QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch()));
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFile::permissions(file), owner);
    QCOMPARE(QFile::permissions(cache + "/normal"), owner | QFile::ExeOwner | QFile::ExeUser);
}

void VeskThumbnailsTest::usesOnlyWhatIsOfTheFileAsItIs()
{
    const QString path = saveImage("state.png", QSize(300, 300));
    const auto usesWhatSays = [&](const QString &key, const QString &value) {
        init();
        VeskThumbnails::thumbnailImage(path, 0, image);
        QImage foreign(cacheFile("normal", path));
        foreign.fill(Qt::red);
        foreign.setText(key, value);
        return foreign.save(cacheFile("normal", path))
            && VeskThumbnails::thumbnailImage(path, 0, image).pixelColor(0, 0) == Qt::red;
    };
    QVERIFY(!usesWhatSays("Thumb::MTime", "1") && !usesWhatSays("Thumb::Size", "1"));
    QVERIFY(!usesWhatSays("Thumb::URI", "file:///other.png") && usesWhatSays("Software", "other"));
    QCOMPARE(VeskThumbnails::thumbnailImage(cacheFile("normal", path), 1, image).size(), QSize(128, 128));
    QCOMPARE(cachedFiles().size(), 1); // none is stored of a thumbnail
    // A type that is not decoded here still shows what other programs have made of it.
    QVERIFY(!VeskThumbnails::thumbnailImage(path, 0, "video/mp4").isNull());
    QVERIFY(VeskThumbnails::thumbnailImage(path, 1, "video/mp4").isNull());
}

void VeskThumbnailsTest::remembersFailures()
{
    const QString path = tree.add("broken.png", "\x89PNG\r\n\x1a\nbroken").path();
    QVERIFY(VeskThumbnails::thumbnailImage(path, 0, image).isNull());
    QCOMPARE(cachedFiles().size(), 1);
    const QString failure = cachedFiles().first();
    QVERIFY(failure.startsWith(cache + "/fail/vesk-fm-"));
    QCOMPARE(QFileInfo(failure).fileName(), QFileInfo(cacheFile("normal", path)).fileName());
    const QDateTime noted = QFileInfo(failure).lastModified();
    QVERIFY(VeskThumbnails::thumbnailImage(path, 0, image).isNull());
    QCOMPARE(QFileInfo(failure).lastModified(), noted); // not tried again
    saveImage("broken.png", QSize(10, 10));
    QVERIFY(!VeskThumbnails::thumbnailImage(path, 0, image).isNull());
}

void VeskThumbnailsTest::hasNoneOf()
{
    tree.add("empty.png", "");
    tree.add("huge.pbm", "P4 100000 100000\n");
    mkfifo(tree.bytes("fifo.png").constData(), 0600);
    for (const QString &path : {tree.path("fifo.png"), QString("/dev/zero"), tree.path(), tree.path("none.png"),
                                QString(), tree.path("empty.png"), tree.path("huge.pbm")}) {
        QVERIFY2(VeskThumbnails::thumbnailImage(path, 0, image).isNull(), qPrintable(path));
        QVERIFY(VeskThumbnails::thumbnailImage(path, 1, image).isNull());
    }
    const QString typed = saveImage("typed.png", QSize(10, 10));
    QVERIFY(VeskThumbnails::thumbnailImage(typed, 0, "application/pdf").isNull());
    QVERIFY(VeskThumbnails::thumbnailImage(typed, 0, "").isNull());
}

void VeskThumbnailsTest::servesManyThreads()
{
    QStringList paths;
    for (int i = 0; i < 64; ++i) // four requests for each file
        paths.append(i < 16 ? saveImage(QString::number(i), QSize(200 + i, 100)) : paths.at(i % 16));
    const std::function<int(const QString &)> widthOf = [this](const QString &path) {
        return VeskThumbnails::thumbnailImage(path, 0, image).width();
    };
    const QList<int> widths = QtConcurrent::blockingMapped<QList<int>>(paths, widthOf);
    QCOMPARE(widths.count(128), 64);
    QCOMPARE(cachedFiles().size(), 16); // and nothing half-written
}

QTEST_GUILESS_MAIN(VeskThumbnailsTest)
#include "veskthumbnailstest.moc"
