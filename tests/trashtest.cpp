// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/trash.h>

#include "testtree.h"

#include <veskplatform/standardpaths.h>
#include <veskplatform/vesktrash.h>

#include <QtTest>

using namespace VeskFM;

class TrashTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(QDir(QString::fromStdString(VeskTrash::getTopDirPath())).removeRecursively() && QDir().mkpath(files));
    }

    void keepsTheBooks()
    {
        TestTree tree({"ä b.txt"});
        Trash *const trash = Trash::ptr();
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        QString trashed = QStringLiteral("untouched");
        QVERIFY(!trash->registerFile("relative", trashed) && trashed == "untouched");
        QVERIFY(trash->registerFile(tree.path("ä b.txt"), trashed));
        QCOMPARE(trashed, files + "/ä b.txt");
        QVERIFY(QFile::rename(tree.path("ä b.txt"), trashed));

        QCOMPARE(trash->actualIconName(), QStringLiteral("user-trash-full"));
        QCOMPARE(trash->registeredFilePath(trashed), tree.path("ä b.txt"));
        const QDateTime deleted = trash->deletionDate(trashed);
        QVERIFY(deleted >= before && deleted <= QDateTime::currentDateTime());
        QCOMPARE(deleted.timeSpec(), Qt::LocalTime);
        QVERIFY(trash->unregisterFile(trashed));
        QVERIFY(trash->registeredFilePath(trashed).isEmpty() && trash->deletionDate(trashed).toSecsSinceEpoch() == 0);
    }

    void knowsTheTrashDirectory()
    {
        const QString url = QUrl::fromLocalFile(files).toString();
        for (const QString &itself : {files, url})
            QVERIFY(Trash::ptr()->isTrash(itself) && Trash::ptr()->hasEntries(QStringList{files + "/first", itself}));
        for (const char *end :
             {"/", "/x", "2"}) // items are told by the beginning of the path, so a neighbour is one too
            QVERIFY(!Trash::ptr()->isTrash(files + end) && Trash::ptr()->hasEntries(QStringList{files + end}));
        QVERIFY(!Trash::ptr()->isTrash(QString()) && !Trash::ptr()->hasEntries(QStringList{files, QString()}));
    }

    void wantsAllOfThemInTheTrash()
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

    void takesSizesOfDirectItemsOnly()
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

private:
    const QString files = StandardPaths::trashDirPath();
};

QTEST_GUILESS_MAIN(TrashTest)
#include "trashtest.moc"
