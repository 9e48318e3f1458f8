// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testarchive.h"
#include "testtree.h"
#include "treevfs.h"

#include <veskfm/entryenumerator.h>

#include <QTest>

using namespace VeskFM;

namespace
{

/// Takes down what is listed, and for which filters.
class WalkedVfs : public TreeVfs
{
public:
    EntryList childs(const Entry &entry, EntryChildFilters filters, QAtomicInt *) const override
    {
        asked.append(entry.path() + QLatin1Char(' ') + QString::number(filters));
        return children.value(entry.path());
    }
    mutable QStringList asked;
    QHash<QString, EntryList> children;
};

} // namespace

class EntryEnumeratorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walksDepthFirst()
    {
        TestTree tree({"dir/.deep/leaf/inner/x"}); // one child each: the order among siblings is the VFS's
        EntryEnumerator enumerator;
        enumerator.setStartEntry(tree.entry());
        enumerator.setIncludeHidden(true);
        QCOMPARE(walk(enumerator), QStringList({"dir", ".deep", "leaf", "inner", "x"}));
        enumerator.setIncludeHidden(false); // hidden ones are entered, not returned
        QCOMPARE(walk(enumerator), QStringList({"dir", "leaf", "inner", "x"}));
        enumerator.setIncludeSubdirs(false);
        QCOMPARE(walk(enumerator), QStringList({"dir"}));
    }

    void startsAnewAfterTheEndAndWithEachStartEntry()
    {
        TestTree tree({"dir/a", "dir/b", "two/c", "empty/"});
        EntryEnumerator enumerator;
        QVERIFY(enumerator.getNextEntry().isNull());
        enumerator.setStartEntry(tree.entry("empty"));
        QVERIFY(enumerator.getNextEntry().isNull());
        enumerator.setStartEntry(tree.entry());
        const QStringList names = walk(enumerator);
        QCOMPARE(names.size(), 6);
        QCOMPARE(walk(enumerator), names); // after the null entry
        QVERIFY(!enumerator.nextEntry().isNull());
        enumerator.setStartEntry(tree.entry("two"));
        QCOMPARE(walk(enumerator), QStringList("c"));
    }

    void endsInSpiteOfLinkLoops()
    {
        TestTree tree({"dir/file"});
        tree.link("dir/up", "..");
        tree.link("dir/self", "self");
        tree.link("start", "dir");
        EntryEnumerator enumerator;
        enumerator.setStartEntry(tree.entry("start")); // a link itself
        QStringList names = walk(enumerator);
        names.sort();
        QCOMPARE(names, QStringList({"file", "self", "up"}));
    }

    void entersArchivesIfAsked()
    {
        WalkedVfs vfs;
        const Entry top = vfs.add("/top", Entry::Dir);
        const Entry dir = vfs.add("/top/dir", Entry::Dir);
        const Entry zip = vfs.add("/top/dir/zip", Entry::Archive, {EntryTrait::ArchiveMountPoint});
        vfs.children = {{top.path(), EntryList(dir)}, {dir.path(), EntryList(zip)}};
        EntryEnumerator enumerator;
        enumerator.setStartEntry(top);
        walk(enumerator);
        QCOMPARE(vfs.asked, QStringList({"/top 1", "/top/dir 3"}));
        enumerator.setIncludeArchives(true);
        walk(enumerator);
        QCOMPARE(vfs.asked.mid(2), QStringList({"/top 1", "/top/dir 1", "/top/dir/zip 1"}));
    }

    void walksRealArchives()
    {
        TestTree tree;
        packArchive(tree.path("a.tar.gz"), {{"dir/leaf", ""}});
        EntryEnumerator enumerator;
        enumerator.setStartEntry(tree.entry());
        QCOMPARE(walk(enumerator), QStringList("a.tar.gz"));
        enumerator.setIncludeArchives(true);
        QCOMPARE(walk(enumerator), QStringList({"a.tar.gz", "dir", "leaf"}));
        enumerator.setStartEntry(tree.entry("a.tar.gz/dir"));
        QCOMPARE(walk(enumerator), QStringList("leaf"));
    }

private:
    static QStringList walk(EntryEnumerator &enumerator)
    {
        QStringList names;
        for (Entry entry = enumerator.nextEntry(); !entry.isNull(); entry = enumerator.nextEntry())
            names.append(entry.fileName());
        return names;
    }
};

QTEST_GUILESS_MAIN(EntryEnumeratorTest)
#include "entryenumeratortest.moc"
