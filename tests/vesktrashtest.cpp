// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/vesktrash.h>

#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <system_error>

/// The trash's book-keeping, on real files in the test's own home.
class VeskTrashTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        std::error_code failure; // QDir passes over names that are not UTF-8
        std::filesystem::remove_all(top.toStdString(), failure);
        QVERIFY(!failure);
        QCOMPARE(VeskTrash::getTopDirPath(), top.toStdString());
        QVERIFY(VeskTrash::isEmpty());
    }

    void remembersWhereItemsCameFrom_data()
    {
        QTest::addColumn<QByteArray>("path"); // below home
        QTest::addColumn<QByteArray>("name"); // in the trash
        QTest::addColumn<QByteArray>("origin");
        const QByteArray odd = "a b%41\n=;.txt", bytes = "\xff\xe4.txt", longest = QByteArray("ä").repeated(127) + 'x';
        QTest::newRow("special characters") << odd << odd << odd;
        QTest::newRow("not UTF-8") << bytes << bytes << bytes;
        QTest::newRow("no room for the suffix") << longest << QByteArray("ä").repeated(122) << longest;
        QTest::newRow("slashes and dots") << QByteArray("/sub/../b/./") << QByteArray("b") << QByteArray("b");
    }

    void remembersWhereItemsCameFrom()
    {
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, origin);
        QDir(QFile::decodeName(home)).mkdir(QStringLiteral("sub"));
        const std::string source = (home + '/' + path).toStdString(), target = (home + '/' + origin).toStdString();
        const qint64 before = time(nullptr);
        const std::string first = VeskTrash::registerFile(source);
        QCOMPARE(QByteArray::fromStdString(first), files + '/' + name);
        QVERIFY(fill(QByteArray::fromStdString(first)));
        const std::string second = VeskTrash::registerFile(source);
        QVERIFY(second.size() > files.size() + 1U && second != first);
        QCOMPARE(VeskTrash::getFilePathToRestore(first), target);
        QCOMPARE(VeskTrash::getFilePathToRestore(second), target);
        const qint64 deleted = VeskTrash::getDeletionDate(first);
        QVERIFY(deleted >= before && deleted <= time(nullptr));

        QVERIFY(VeskTrash::unregisterFile(first));
        QVERIFY(!VeskTrash::unregisterFile(first));
        QCOMPARE(VeskTrash::getFilePathToRestore(first), std::string());
        QCOMPARE(VeskTrash::getDeletionDate(first), 0LL);
        QVERIFY2(VeskTrash::registerFile(source) != first, "the file that is still there must not be overwritten");
    }

    void refusesToTrash()
    {
        const QByteArray hiddenNul = home + QByteArray("/a\0b", 4), item = files + "/a.txt";
        const QByteArray roundabout = home + "/../home/.local/share/Trash/files/a.txt", parent = home + "/..";
        // Home holds the trash.
        for (const QByteArray &path :
             {QByteArray(), QByteArray("a.txt"), QByteArray("/"), parent, hiddenNul, home, top, item, roundabout})
            QVERIFY2(VeskTrash::registerFile(path.toStdString()).empty(), path.constData());
        QVERIFY(QDir(QFile::decodeName(top + "/info")).isEmpty());
    }

    void trustsNoInfoFile_data()
    {
        QTest::addColumn<QByteArray>("info");
        QTest::addColumn<QByteArray>("origin");
        QTest::addColumn<bool>("dated");
        const QByteArray head = "[Trash Info]\n", date = "DeletionDate=2024-02-29T12:00:00\n", none;
        QTest::newRow("good") << head + "Path=/home/a%20b\n" + date << QByteArray("/home/a b") << true;
        QTest::newRow("first path counts, CR LF")
            << "[Trash Info]\r\nPath=/a\r\nPath=/b\r\n" + date << QByteArray("/a") << true;
        QTest::newRow("bad date") << head + "Path=/a\nDeletionDate=2024-02-30T99\n" << QByteArray("/a") << false;
        QTest::newRow("empty") << none << none << false;
        QTest::newRow("other group") << "[Other]\nPath=/a\n" + date << none << false;
        QTest::newRow("path in a later group") << head + date + "[Other]\nPath=/a\n" << none << false;
        QTest::newRow("relative") << head + "Path=../a\n" + date << none << false;
        QTest::newRow("climbs") << head + "Path=/home/%2E%2E/etc/passwd\n" + date << none << false;
        QTest::newRow("hidden NUL") << head + "Path=/etc/passwd%00.txt\n" + date << none << false;
        QTest::newRow("bad encoding") << head + "Path=/a%zz\n" + date << none << false;
        QTest::newRow("huge") << head + "Path=/" + QByteArray(1 << 20, 'a') + '\n' << none << false;
    }

    void trustsNoInfoFile()
    {
        QFETCH(QByteArray, info);
        const std::string item = VeskTrash::registerFile((home + "/x").toStdString());
        QVERIFY(fill(top + "/info/x.trashinfo", info));
        QTEST(QByteArray::fromStdString(VeskTrash::getFilePathToRestore(item)), "origin");
        QTEST(VeskTrash::getDeletionDate(item) != 0, "dated");
    }

    void knowsWhatLiesInIt()
    {
        QVERIFY(QDir().mkpath(QFile::decodeName(files + "/dir")));
        QVERIFY(QFile::link(QFile::decodeName(home), QFile::decodeName(home + "/link")));
        QVERIFY(QFile::link(QFile::decodeName(home), QFile::decodeName(files + "/out")));
        const QByteArray likeTrash = home + "/.Trash-" + QByteArray::number(getuid()) + "/files";
        QVERIFY(QDir().mkpath(QFile::decodeName(likeTrash)));
        const struct
        {
            const char *what;
            QByteArray path;
            bool inTrash;
        } rows[] = {
            {"item", files + "/dir", true},
            {"trailing slash", files + "/dir/", true},
            {"nested", files + "/dir/file", true},
            {"through a link to home", home + "/link/.local/share/Trash/files/dir", true},
            {"link in the trash itself", files + "/out", true},
            {"behind a link that leads out", files + "/out/file", false},
            {"climbs out", files + "/../info/x", false},
            {"climbs out of something missing", files + "/none/../../../x", false},
            {"the trash itself", files, false},
            {"neighbour with the same beginning", top + "/files2/x", false},
            {"what is like a trash at the top of no mount", likeTrash + "/x", false},
            {"nothing", {}, false},
        };
        for (const auto &row : rows)
            QVERIFY2(VeskTrash::isFileInTrash(row.path.toStdString()) == row.inTrash, row.what);
    }

    void seesEveryChangeOfEmptiness()
    {
        QVERIFY(QDir().mkpath(QFile::decodeName(files)));
        const QByteArray item = files + "/x";
        for (int i = 0; i < 200; ++i) { // many within one tick of the file system's clock
            fill(item);
            QVERIFY(!VeskTrash::isEmpty());
            unlink(item.constData());
            QVERIFY(VeskTrash::isEmpty());
        }
        QVERIFY(makeOld(files));
        QVERIFY(VeskTrash::isEmpty()); // remembered from now on
        fill(item);
        QVERIFY(!VeskTrash::isEmpty());
    }

    void sumsSizesAndRemembersThoseOfDirectories()
    {
        const QByteArray file = QByteArray::fromStdString(VeskTrash::registerFile((home + "/f").toStdString()));
        fill(file, QByteArray(1000, 'x'));
        QCOMPARE(VeskTrash::size(), 1000ULL);
        QVERIFY(VeskTrash::hasSizeCache());

        const QByteArray dir = QByteArray::fromStdString(VeskTrash::registerFile((home + "/a dir").toStdString()));
        QVERIFY(QDir().mkpath(QFile::decodeName(dir)));
        QVERIFY(!VeskTrash::hasSizeCache());
        const QByteArray info = top + "/info/a dir.trashinfo";
        const qint64 changed = QFileInfo(QFile::decodeName(info)).lastModified().toSecsSinceEpoch();
        VeskTrash::registerDirSize("a dir", 123456);
        VeskTrash::registerDirSize("../a dir", 1);
        QVERIFY(VeskTrash::hasSizeCache());
        QCOMPARE(VeskTrash::size(), 124456ULL);
        QFile cache(QFile::decodeName(top + "/directorysizes"));
        QVERIFY(cache.open(QIODevice::ReadOnly));
        QCOMPARE(cache.readAll(), "123456 " + QByteArray::number(changed) + " a%20dir\n");

        QVERIFY(makeOld(info)); // another item under the same name
        QVERIFY(!VeskTrash::hasSizeCache());
        fill(dir + "/inner", QByteArray(70000, 'x'));
        const unsigned long long walked = VeskTrash::size();
        QVERIFY(walked >= 71000 && walked < 124456);
        QVERIFY(VeskTrash::hasSizeCache()); // what was walked is known now
        VeskTrash::unregisterDirSize("a dir");
        QVERIFY(!VeskTrash::hasSizeCache());

        QVERIFY(fill(top + "/directorysizes", "junk\n-5 1000000000 a%20dir\n99999999999999999999 1 x\n1 2 %zz\n"));
        QCOMPARE(VeskTrash::size(), walked);
    }

private:
    static bool fill(const QByteArray &path, const QByteArray &content = "x")
    {
        return bool(std::ofstream(path.constData()).write(content.constData(), content.size()).flush());
    }

    static bool makeOld(const QByteArray &path)
    {
        const timespec longAgo[2] = {{1000000000, 0}, {1000000000, 0}};
        return utimensat(AT_FDCWD, path.constData(), longAgo, 0) == 0;
    }

    QByteArray home = qgetenv("HOME");
    QByteArray top = qgetenv("XDG_DATA_HOME") + "/Trash";
    QByteArray files = top + "/files";
};

QTEST_GUILESS_MAIN(VeskTrashTest)
#include "vesktrashtest.moc"
