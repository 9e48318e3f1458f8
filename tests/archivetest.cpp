// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testarchive.h"
#include "testtree.h"

#include <veskplatform/archivemount.h>
#include <veskplatform/archivemountsmanagerproxy.h>
#include <veskplatform/archiveproblem.h>

#include <QtTest>

#include <atomic>
#include <thread>

using namespace VeskFM;

namespace
{
EntryList listed(const Entry &directory, VFS::EntryChildFilters filters = VFS::PlainListing)
{
    return VFS::ptr()->childs(directory, filters, nullptr);
}

/// All below, each with its path from there, its kind, and its size or what it leads to.
QStringList described(const Entry &directory, const QString &above = {})
{
    QStringList lines;
    for (const Entry &entry : listed(directory)) {
        const QString path = above + entry.fileName();
        lines += entry.isSymLink() ? path + (entry.isDir() ? " => " : " -> ") + entry.symLinkTarget().section('/', -1)
            : entry.isDir()        ? path + '/'
                                   : path + ' ' + QString::number(entry.fileSize());
        if (entry.isDir() && !entry.isSymLink())
            lines += described(entry, path + '/');
    }
    lines.sort();
    return lines;
}

QByteArray contentOf(const Entry &entry)
{
    QFile file(entry.localPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class ArchiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatWasPacked_data();
    void showsWhatWasPacked();
};

void ArchiveTest::showsWhatWasPacked_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char *suffix : {"zip", "7z", "tar", "tar.gz", "tar.bz2", "tar.xz", "tar.zst"})
        QTest::newRow(suffix) << suffix;
}

void ArchiveTest::showsWhatWasPacked()
{
    QFETCH(QString, suffix);
    TestTree tree;
    const QString path = tree.path("a." + suffix);
    const QByteArray large(300000, 'x');
    packArchive(path,
                {{"top.txt", "top"},
                 {"d/inner/deep", large},
                 {"empty/", {}, '5'},
                 {"d/link", "inner", '2'},
                 {"nested.zip", "not entered"},
                 {".hidden", ""}});
    const VFS &vfs = *VFS::ptr();
    const Entry archive = vfs.entry(path);
    QCOMPARE(described(archive),
             QStringList({".hidden 0", "d/", "d/inner/", "d/inner/deep 300000", "d/link => inner", "empty/",
                          "nested.zip 11", "top.txt 3"}));
    QCOMPARE(archiveProblem(archive), QString());
    QVERIFY(!archive.isFile() && archive.isArchiveMountPoint() && archive.localPath() == path);

    const Entry deep = vfs.entry(path + "/d/link/deep");
    QCOMPARE(deep.path(), path + "/d/link/deep");
    QVERIFY(deep.isFile() && deep.isExists() && deep.localPath().isEmpty());
    QCOMPARE(vfs.parent(vfs.parent(vfs.parent(deep))), archive);
    QCOMPARE(vfs.pathEntryList(deep, archive).size(), 4);
    QCOMPARE(vfs.sibling(archive, archive.fileName()), archive);
    QCOMPARE(vfs.entry(path + "/d/inner/../link/"), vfs.entry(path + "/d/link"));
    QCOMPARE(vfs.symLinkTargetEntry(vfs.entry(path + "/d/link")), vfs.entry(path + "/d/inner"));
    QVERIFY(vfs.isEntryExists(deep) && vfs.entry(path + "/d/none").isNull() && vfs.entry(path + "/top.txt/x").isNull());
    QVERIFY(vfs.entry(path + "/nested.zip").type() == Entry::File && vfs.entry(path + "/.hidden").isHidden());
    QCOMPARE(fileNames(listed(archive, VFS::ContainersOnly)), QStringList({"d", "empty"}));
    QVERIFY(vfs.mayContainContainers(vfs.entry(path + "/d")) && !vfs.mayContainContainers(vfs.entry(path + "/empty")));
    QVERIFY(listed(archive, VFS::RecursiveListing | VFS::NoArchiveDescent).isEmpty());

    ArchiveMount mount;
    QVERIFY2(mount.mount(deep, nullptr), qPrintable(mount.problem()));
    QCOMPARE(contentOf(deep), large);
    QCOMPARE(contentOf(mount.localEntry(vfs.entry(path + "/top.txt"))), QByteArray("top"));
    QCOMPARE(described(mount.localEntry(archive)), described(archive));
    QVERIFY(!(QFile(deep.localPath()).permissions() & QFile::WriteOwner));
    QCOMPARE(vfs.entriesFromUrls(vfs.urlsFromEntries({deep, archive})),
             EntryList({vfs.entry(path + "/d/inner/deep"), archive}));
}

QTEST_GUILESS_MAIN(ArchiveTest)
#include "archivetest.moc"
