// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/entryenumerator.h>

#include <QTest>

using namespace VeskFM;

class EntryEnumeratorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walksDepthFirst_data()
    {
        QTest::addColumn<bool>("subdirs");
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("all") << true << true << QStringList{"dir", ".deep", "leaf", "inner", "x"};
        QTest::newRow("children only") << false << true << QStringList{"dir"};
        QTest::newRow("hidden ones are entered, not returned")
            << true << false << QStringList{"dir", "leaf", "inner", "x"};
    }

    void walksDepthFirst()
    {
        QFETCH(bool, subdirs);
        QFETCH(bool, hidden);
        TestTree tree(
            {"dir/.deep/leaf/", "dir/.deep/leaf/inner/x"}); // one child each: the order among siblings is the VFS's
        EntryEnumerator enumerator;
        enumerator.setIncludeSubdirs(subdirs);
        enumerator.setIncludeHidden(hidden);
        enumerator.setStartEntry(tree.entry());
        QTEST(walk(enumerator), "names");
    }

    void endsOnceAndStartsAgain()
    {
        TestTree tree({"dir/a", "dir/b", "empty/"});
        EntryEnumerator enumerator;
        QVERIFY(enumerator.getNextEntry().isNull());
        enumerator.setStartEntry(tree.entry("empty"));
        QVERIFY(enumerator.getNextEntry().isNull());
        enumerator.setStartEntry(tree.entry());
        const QStringList names = walk(enumerator);
        QCOMPARE(names.size(), 4);
        QCOMPARE(walk(enumerator), names); // after the null entry
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

    void startsAnewWithEachStartEntry()
    {
        TestTree tree({"one/a", "two/b"});
        EntryEnumerator enumerator;
        enumerator.setStartEntry(tree.entry());
        QVERIFY(!enumerator.nextEntry().isNull());
        enumerator.setStartEntry(tree.entry("two"));
        QCOMPARE(walk(enumerator), QStringList("b"));
        enumerator.setStartEntry(Entry());
        QCOMPARE(walk(enumerator), QStringList());
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
