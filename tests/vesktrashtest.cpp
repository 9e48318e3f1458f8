// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/vesktrash.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <filesystem>
#include <system_error>

/// The trash's book-keeping, on real files in the test's own home.
class VeskTrashTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void remembersWhereItemsCameFrom_data();
    void remembersWhereItemsCameFrom();
    void refusesToTrash_data();
    void refusesToTrash();
    void trustsNoInfoFile_data();
    void trustsNoInfoFile();
    void knowsWhatLiesInIt_data();
    void knowsWhatLiesInIt();
    void seesEveryChangeOfEmptiness();
    void sumsSizesAndRemembersThoseOfDirectories();

private:
    static QByteArray fill(const QByteArray &path, const QByteArray &content = "x");
    static qint64 timeOf(const QByteArray &path);

    QByteArray home = qgetenv("HOME");
    QByteArray top = qgetenv("XDG_DATA_HOME") + "/Trash";
    QByteArray files = top + "/files";
};

void VeskTrashTest::init()
{
    std::error_code failure; // QDir passes over names that are not UTF-8
    std::filesystem::remove_all(top.toStdString(), failure);
    QVERIFY(!failure);
    QCOMPARE(VeskTrash::getTopDirPath(), top.toStdString());
    QVERIFY(VeskTrash::isEmpty());
}

QByteArray VeskTrashTest::fill(const QByteArray &path, const QByteArray &content)
{
    const int descriptor = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const bool done =
        descriptor >= 0 && write(descriptor, content.constData(), size_t(content.size())) == content.size();
    close(descriptor);
    return done ? path : QByteArray();
}

qint64 VeskTrashTest::timeOf(const QByteArray &path)
{
    struct stat facts = {};
    return stat(path.constData(), &facts) == 0 ? qint64(facts.st_mtim.tv_sec) : -1;
}

void VeskTrashTest::remembersWhereItemsCameFrom_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("origin");
    QTest::newRow("plain") << home + "/a.txt" << QByteArray("a.txt") << home + "/a.txt";
    QTest::newRow("special characters") << home + "/a b%41\n=;.txt" << QByteArray("a b%41\n=;.txt")
                                        << home + "/a b%41\n=;.txt";
    QTest::newRow("not UTF-8") << home + "/\xff\xe4.txt" << QByteArray("\xff\xe4.txt") << home + "/\xff\xe4.txt";
    QTest::newRow("no room for the suffix")
        << home + '/' + QByteArray("ä").repeated(127) + 'x' << QByteArray("ä").repeated(122)
        << home + '/' + QByteArray("ä").repeated(127) + 'x';
    QTest::newRow("slashes and dots") << home + "//sub/../b/./" << QByteArray("b") << home + "/b";
}

void VeskTrashTest::remembersWhereItemsCameFrom()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, origin);
    QDir(QFile::decodeName(home)).mkdir(QStringLiteral("sub"));
    const qint64 before = time(nullptr);
    const std::string first = VeskTrash::registerFile(path.toStdString());
    QCOMPARE(QByteArray::fromStdString(first), files + '/' + name);
    QVERIFY(!fill(QByteArray::fromStdString(first)).isEmpty());
    const std::string second = VeskTrash::registerFile(path.toStdString());
    QVERIFY(second.size() > files.size() + 1U && second != first);

    QCOMPARE(QByteArray::fromStdString(VeskTrash::getFilePathToRestore(first)), origin);
    QCOMPARE(QByteArray::fromStdString(VeskTrash::getFilePathToRestore(second)), origin);
    const qint64 deleted = VeskTrash::getDeletionDate(first);
    QVERIFY(deleted >= before && deleted <= time(nullptr));

    QVERIFY(VeskTrash::unregisterFile(first));
    QVERIFY(!VeskTrash::unregisterFile(first));
    QCOMPARE(VeskTrash::getFilePathToRestore(first), std::string());
    QCOMPARE(VeskTrash::getDeletionDate(first), 0LL);
    const std::string third = VeskTrash::registerFile(path.toStdString());
    QVERIFY2(third != first, "the file that is still there must not be overwritten");
}

void VeskTrashTest::refusesToTrash_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("relative") << QByteArray("a.txt");
    QTest::newRow("root") << QByteArray("/");
    QTest::newRow("parent") << home + "/..";
    QTest::newRow("hidden NUL") << home + QByteArray("/a\0b", 4);
    QTest::newRow("home, which holds the trash") << home;
    QTest::newRow("the trash") << top;
    QTest::newRow("in the trash") << files + "/a.txt";
    QTest::newRow("in the trash, roundabout") << home + "/../home/.local/share/Trash/files/a.txt";
}

void VeskTrashTest::refusesToTrash()
{
    QFETCH(QByteArray, path);
    QCOMPARE(VeskTrash::registerFile(path.toStdString()), std::string());
    QVERIFY(QDir(QFile::decodeName(top + "/info")).isEmpty());
}

void VeskTrashTest::trustsNoInfoFile_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QByteArray>("origin");
    QTest::addColumn<bool>("dated");
    const QByteArray head = "[Trash Info]\n";
    const QByteArray date = "DeletionDate=2024-02-29T12:00:00\n";
    QTest::newRow("good") << head + "Path=/home/a%20b\n" + date << QByteArray("/home/a b") << true;
    QTest::newRow("first path counts, CR LF")
        << "[Trash Info]\r\nPath=/a\r\nPath=/b\r\n" + date << QByteArray("/a") << true;
    QTest::newRow("bad date") << head + "Path=/a\nDeletionDate=2024-02-30T99\n" << QByteArray("/a") << false;
    QTest::newRow("empty") << QByteArray() << QByteArray() << false;
    QTest::newRow("other group") << "[Other]\nPath=/a\n" + date << QByteArray() << false;
    QTest::newRow("path in a later group") << head + date + "[Other]\nPath=/a\n" << QByteArray() << false;
    QTest::newRow("relative") << head + "Path=../a\n" + date << QByteArray() << false;
    QTest::newRow("climbs") << head + "Path=/home/%2E%2E/etc/passwd\n" + date << QByteArray() << false;
    QTest::newRow("hidden NUL") << head + "Path=/etc/passwd%00.txt\n" + date << QByteArray() << false;
    QTest::newRow("bad encoding") << head + "Path=/a%zz\n" + date << QByteArray() << false;
    QTest::newRow("huge") << head + "Path=/" + QByteArray(1 << 20, 'a') + '\n' << QByteArray() << false;
}

void VeskTrashTest::trustsNoInfoFile()
{
    QFETCH(QByteArray, info);
    QFETCH(QByteArray, origin);
    QFETCH(bool, dated);
    const std::string item = VeskTrash::registerFile((home + "/x").toStdString());
    QVERIFY(!fill(top + "/info/x.trashinfo", info).isEmpty());
    QCOMPARE(QByteArray::fromStdString(VeskTrash::getFilePathToRestore(item)), origin);
    QCOMPARE(VeskTrash::getDeletionDate(item) != 0, dated);
}

void VeskTrashTest::knowsWhatLiesInIt_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<bool>("inTrash");
    QTest::newRow("item") << files + "/dir" << true;
    QTest::newRow("trailing slash") << files + "/dir/" << true;
    QTest::newRow("nested") << files + "/dir/file" << true;
    QTest::newRow("through a link to home") << home + "/link/.local/share/Trash/files/dir" << true;
    QTest::newRow("link in the trash itself") << files + "/out" << true;
    QTest::newRow("behind a link that leads out") << files + "/out/file" << false;
    QTest::newRow("climbs out") << files + "/../info/x" << false;
    QTest::newRow("climbs out of something missing") << files + "/none/../../../x" << false;
    QTest::newRow("the trash itself") << files << false;
    QTest::newRow("neighbour with the same beginning") << top + "/files2/x" << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void VeskTrashTest::knowsWhatLiesInIt()
{
    QFETCH(QByteArray, path);
    QFETCH(bool, inTrash);
    QVERIFY(QDir().mkpath(QFile::decodeName(files + "/dir")));
    QFile::link(QFile::decodeName(home), QFile::decodeName(home + "/link"));
    QFile::link(QFile::decodeName(home), QFile::decodeName(files + "/out"));
    QCOMPARE(VeskTrash::isFileInTrash(path.toStdString()), inTrash);
}

void VeskTrashTest::seesEveryChangeOfEmptiness()
{
    QVERIFY(QDir().mkpath(QFile::decodeName(files)));
    const QByteArray item = files + "/x";
    for (int i = 0; i < 200; ++i) { // many within one tick of the file system's clock
        fill(item);
        QVERIFY(!VeskTrash::isEmpty());
        unlink(item.constData());
        QVERIFY(VeskTrash::isEmpty());
    }
    const timespec longAgo[2] = {{1000000000, 0}, {1000000000, 0}};
    QCOMPARE(utimensat(AT_FDCWD, files.constData(), longAgo, 0), 0);
    QVERIFY(VeskTrash::isEmpty()); // remembered from now on
    fill(item);
    QVERIFY(!VeskTrash::isEmpty());
}

void VeskTrashTest::sumsSizesAndRemembersThoseOfDirectories()
{
    const QByteArray file = QByteArray::fromStdString(VeskTrash::registerFile((home + "/f").toStdString()));
    fill(file, QByteArray(1000, 'x'));
    QCOMPARE(VeskTrash::size(), 1000ULL);
    QVERIFY(VeskTrash::hasSizeCache());

    const QByteArray dir = QByteArray::fromStdString(VeskTrash::registerFile((home + "/a dir").toStdString()));
    QVERIFY(QDir().mkpath(QFile::decodeName(dir)));
    QVERIFY(!VeskTrash::hasSizeCache());
    VeskTrash::registerDirSize("a dir", 123456);
    VeskTrash::registerDirSize("../a dir", 1);
    QVERIFY(VeskTrash::hasSizeCache());
    QCOMPARE(VeskTrash::size(), 124456ULL);
    QFile cache(QFile::decodeName(top + "/directorysizes"));
    QVERIFY(cache.open(QIODevice::ReadOnly));
    QCOMPARE(cache.readAll(), "123456 " + QByteArray::number(timeOf(top + "/info/a dir.trashinfo")) + " a%20dir\n");

    const timespec longAgo[2] = {{1000000000, 0}, {1000000000, 0}}; // another item under the same name
    QCOMPARE(utimensat(AT_FDCWD, (top + "/info/a dir.trashinfo").constData(), longAgo, 0), 0);
    QVERIFY(!VeskTrash::hasSizeCache());
    fill(dir + "/inner", QByteArray(70000, 'x'));
    const unsigned long long walked = VeskTrash::size();
    QVERIFY(walked >= 71000 && walked < 124456);
    QVERIFY(VeskTrash::hasSizeCache()); // what was walked is known now
    VeskTrash::unregisterDirSize("a dir");
    QVERIFY(!VeskTrash::hasSizeCache());

    QVERIFY(
        !fill(top + "/directorysizes", "junk\n-5 1000000000 a%20dir\n99999999999999999999 1 x\n1 2 %zz\n").isEmpty());
    QCOMPARE(VeskTrash::size(), walked);
}

QTEST_GUILESS_MAIN(VeskTrashTest)
#include "vesktrashtest.moc"
