// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/trash.h>

#include "testtree.h"

#include <veskplatform/standardpaths.h>
#include <veskplatform/vesktrash.h>

#include <QDir>
#include <QFile>
#include <QTest>
#include <QUrl>

using namespace VeskFM;

class TrashTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepsTheBooks();
    void knowsTheTrashDirectory_data();
    void knowsTheTrashDirectory();
    void wantsAllOfThemInTheTrash();
    void takesSizesOfDirectItemsOnly();

private:
    const QString files = StandardPaths::trashDirPath();
};

void TrashTest::init()
{
    QVERIFY(QDir(QString::fromStdString(VeskTrash::getTopDirPath())).removeRecursively() && QDir().mkpath(files));
}

void TrashTest::keepsTheBooks()
{
    TestTree tree({"ä b.txt"});
    Trash *const trash = Trash::ptr();
    QCOMPARE(trash->actualIconName(), QStringLiteral("user-trash"));
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    QString trashed = QStringLiteral("untouched");
    QVERIFY(!trash->registerFile("relative", trashed));
    QCOMPARE(trashed, QStringLiteral("untouched"));
    QVERIFY(trash->registerFile(tree.path("ä b.txt"), trashed));
    QCOMPARE(trashed, files + "/ä b.txt");
    QVERIFY(QFile::rename(tree.path("ä b.txt"), trashed));

    QVERIFY(!trash->isEmpty());
    QCOMPARE(trash->actualIconName(), QStringLiteral("user-trash-full"));
    QCOMPARE(trash->size(), qulonglong(strlen("ä b.txt")));
    QCOMPARE(trash->registeredFilePath(trashed), tree.path("ä b.txt"));
    const QDateTime deleted = trash->deletionDate(trashed);
    QVERIFY(deleted >= before && deleted <= QDateTime::currentDateTime());
    QCOMPARE(deleted.timeSpec(), Qt::LocalTime);
    QVERIFY(trash->unregisterFile(trashed));
    QCOMPARE(trash->registeredFilePath(trashed), QString());
    QCOMPARE(trash->deletionDate(trashed).toSecsSinceEpoch(), 0);
    delete trash;
    QVERIFY(!Trash::ptr()->isEmpty());
}

void TrashTest::knowsTheTrashDirectory_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("isTrash");
    QTest::addColumn<bool>("isInTrash"); // by the beginning of the path
    QTest::newRow("path") << files << true << true;
    QTest::newRow("URL") << QUrl::fromLocalFile(files).toString() << true << true;
    QTest::newRow("trailing slash") << files + "/" << false << true;
    QTest::newRow("item") << files + "/x" << false << true;
    QTest::newRow("neighbour that begins alike") << files + "2" << false << true;
    QTest::newRow("elsewhere") << "/tmp" << false << false;
    QTest::newRow("nothing") << "" << false << false;
}

void TrashTest::knowsTheTrashDirectory()
{
    QFETCH(QString, url);
    QFETCH(bool, isTrash);
    QFETCH(bool, isInTrash);
    QCOMPARE(Trash::ptr()->isTrash(url), isTrash);
    QCOMPARE(Trash::ptr()->hasEntries(QStringList{files + "/first", url}), isInTrash);
}

void TrashTest::wantsAllOfThemInTheTrash()
{
    QVERIFY(QDir().mkpath(files + "/dir/sub"));
    TestTree tree({"outside"});
    const Entry inside = VFS::ptr()->entry(files + "/dir");
    const Entry nested = VFS::ptr()->entry(files + "/dir/sub");
    const Trash *const trash = Trash::ptr();
    QVERIFY(trash->hasEntries(EntryList{inside, nested}));
    QVERIFY(!trash->hasEntries(EntryList{inside, tree.entry("outside"), nested}));
    QVERIFY(!trash->hasEntries(EntryList{inside, VFS::ptr()->placesEntry()}));
    QVERIFY(!trash->hasEntries(EntryList()) && !trash->hasEntries(QStringList()));
    QVERIFY(trash->isTrash(VFS::ptr()->entry(files)) && !trash->isTrash(inside) && !trash->isTrash(Entry()));
}

void TrashTest::takesSizesOfDirectItemsOnly()
{
    Trash *const trash = Trash::ptr();
    QString dir;
    QVERIFY(trash->registerFile("/somewhere/dir", dir) && QDir().mkpath(dir + "/sub"));
    trash->registerDirSize(dir + "/sub", 1000);
    trash->registerDirSize(dir + "/", 1000);
    trash->registerDirSize(files + "2/dir", 1000);
    QVERIFY(!trash->hasSizeCache());
    trash->registerDirSize(dir, 2000);
    QVERIFY(trash->hasSizeCache());
    QCOMPARE(trash->size(), 2000ULL);
    trash->unregisterDirSize(dir);
    QVERIFY(!trash->hasSizeCache());
}

QTEST_GUILESS_MAIN(TrashTest)
#include "trashtest.moc"
