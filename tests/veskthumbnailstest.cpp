// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskthumbnails.h>

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QtConcurrent>

#include <sys/stat.h>

#include <functional>

/// Thumbnails in the test's own cache, which is read here as another program would read it.
class VeskThumbnailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void fitsIntoTheSize_data();
    void fitsIntoTheSize();
    void storesWhatOthersRead();
    void usesOnlyWhatIsOfTheFileAsItIs_data();
    void usesOnlyWhatIsOfTheFileAsItIs();
    void remembersFailures();
    void hasNoneOf_data();
    void hasNoneOf();
    void makesNoneOfThumbnails();
    void servesManyThreads();

private:
    QString saveImage(const QString &name, const QSize &size, const QColor &colour = Qt::blue);
    QString write(const QString &name, const QByteArray &content);
    QString cacheFile(const QString &folder, const QString &path) const;
    QStringList cachedFiles() const;

    const QString image = QStringLiteral("image/png");
    const QString cache = qEnvironmentVariable("XDG_CACHE_HOME") + QStringLiteral("/thumbnails");
    QTemporaryDir dir;
};

QString VeskThumbnailsTest::saveImage(const QString &name, const QSize &size, const QColor &colour)
{
    QImage content(size, QImage::Format_ARGB32);
    content.fill(colour);
    return content.save(dir.filePath(name), "png") ? dir.filePath(name) : QString();
}

QString VeskThumbnailsTest::write(const QString &name, const QByteArray &content)
{
    QFile file(dir.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
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

void VeskThumbnailsTest::initTestCase()
{
    QVERIFY(VeskThumbnails::isMimeTypeFromGroup("image/png", "image"));
    QVERIFY(!VeskThumbnails::isMimeTypeFromGroup("image-like/png", "image"));
    QVERIFY(!VeskThumbnails::isMimeTypeFromGroup("", ""));
}

void VeskThumbnailsTest::init()
{
    QVERIFY(QDir(cache).removeRecursively());
}

void VeskThumbnailsTest::fitsIntoTheSize_data()
{
    QTest::addColumn<QSize>("original");
    QTest::addColumn<int>("size");
    QTest::addColumn<QSize>("thumbnail");
    QTest::newRow("normal") << QSize(400, 200) << 0 << QSize(128, 64);
    QTest::newRow("large") << QSize(400, 800) << 1 << QSize(128, 256);
    QTest::newRow("not enlarged") << QSize(20, 30) << 1 << QSize(20, 30);
    QTest::newRow("thin, yet not nothing") << QSize(2000, 1) << 0 << QSize(128, 1);
}

void VeskThumbnailsTest::fitsIntoTheSize()
{
    QFETCH(QSize, original);
    QFETCH(int, size);
    QFETCH(QSize, thumbnail);
    const QString path = saveImage("fits.png", original);
    const QImage made = VeskThumbnails::thumbnailImage(path, size, image);
    QCOMPARE(made.size(), thumbnail);
    QCOMPARE(made.pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(VeskThumbnails::thumbnailImage(path, size, image), made);
    QCOMPARE(cachedFiles(), QStringList(cacheFile(size ? "large" : "normal", path)));
}

void VeskThumbnailsTest::storesWhatOthersRead()
{
    const QString path = saveImage("a b#%;ä.png", QSize(300, 300));
    QVERIFY(!VeskThumbnails::thumbnailImage(path, 0, image).isNull());
    const QString file = cacheFile("normal", path);
    const QImage stored(file);
    QCOMPARE(stored.size(), QSize(128, 128));
    QCOMPARE(stored.text("Thumb::URI"), "file://" + dir.path() + "/a%20b%23%25%3B%C3%A4.png");
    QCOMPARE(stored.text("Thumb::MTime"), QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch()));
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFile::permissions(file), owner);
    QCOMPARE(QFile::permissions(cache + "/normal"), owner | QFile::ExeOwner | QFile::ExeUser);
}

void VeskThumbnailsTest::usesOnlyWhatIsOfTheFileAsItIs_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("used");
    QTest::newRow("of this state") << "Software"
                                   << "other" << true;
    QTest::newRow("of another time") << "Thumb::MTime"
                                     << "1" << false;
    QTest::newRow("of another length") << "Thumb::Size"
                                       << "1" << false;
    QTest::newRow("of another file") << "Thumb::URI"
                                     << "file:///other.png" << false;
}

void VeskThumbnailsTest::usesOnlyWhatIsOfTheFileAsItIs()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(bool, used);
    const QString path = saveImage("state.png", QSize(300, 300));
    QImage foreign = VeskThumbnails::thumbnailImage(path, 0, image);
    foreign.load(cacheFile("normal", path));
    foreign.fill(Qt::red);
    foreign.setText(key, value);
    QVERIFY(foreign.save(cacheFile("normal", path)));
    const QColor expected = used ? Qt::red : Qt::blue;
    QCOMPARE(VeskThumbnails::thumbnailImage(path, 0, image).pixelColor(0, 0), expected);
    // A type that is not decoded here still shows what other programs have made of it.
    QVERIFY(!VeskThumbnails::thumbnailImage(path, 0, "video/mp4").isNull());
    QVERIFY(VeskThumbnails::thumbnailImage(path, 1, "video/mp4").isNull());
}

void VeskThumbnailsTest::remembersFailures()
{
    const QString path = write("broken.png", "\x89PNG\r\n\x1a\nbroken");
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

void VeskThumbnailsTest::hasNoneOf_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("mimeType");
    mkfifo(QFile::encodeName(dir.filePath("fifo.png")).constData(), 0600);
    QTest::newRow("FIFO") << dir.filePath("fifo.png") << image;
    QTest::newRow("device") << "/dev/zero" << image;
    QTest::newRow("directory") << dir.path() << image;
    QTest::newRow("missing") << dir.filePath("none.png") << image;
    QTest::newRow("no path") << "" << image;
    QTest::newRow("empty") << write("empty.png", "") << image;
    QTest::newRow("10^10 pixels") << write("huge.pbm", "P4 100000 100000\n") << image;
    QTest::newRow("another type") << saveImage("typed.png", QSize(10, 10)) << "application/pdf";
    QTest::newRow("unknown type") << saveImage("typed.png", QSize(10, 10)) << "";
}

void VeskThumbnailsTest::hasNoneOf()
{
    QFETCH(QString, path);
    QFETCH(QString, mimeType);
    QVERIFY(VeskThumbnails::thumbnailImage(path, 0, mimeType).isNull());
    QVERIFY(VeskThumbnails::thumbnailImage(path, 1, mimeType).isNull());
}

void VeskThumbnailsTest::makesNoneOfThumbnails()
{
    const QString path = saveImage("source.png", QSize(300, 300));
    QVERIFY(!VeskThumbnails::thumbnailImage(path, 1, image).isNull());
    const QStringList before = cachedFiles();
    QCOMPARE(VeskThumbnails::thumbnailImage(before.first(), 0, image).size(), QSize(128, 128));
    QFile broken(cache + "/large/broken.png");
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("x") == 1);
    QVERIFY(VeskThumbnails::thumbnailImage(broken.fileName(), 0, image).isNull());
    QVERIFY(broken.remove());
    QCOMPARE(cachedFiles(), before);
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
