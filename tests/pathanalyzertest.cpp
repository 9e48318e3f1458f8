// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/pathanalyzer.h>

#include "fakevfs.h"
#include "testtree.h"

#include <QtTest>

using namespace VeskFM;

class PathAnalyzerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formsPairs_data()
    {
        QTest::addColumn<QStringList>("sources");
        QTest::addColumn<QString>("destination");
        QTest::addColumn<QString>("pairs"); // "name>target" and the conflict's number where there is one
        QTest::addColumn<QString>("error");

        const QString dirOnFile = QStringLiteral("Can't make operation over pair of dir and file entries");
        const QString manyOnFile = QStringLiteral("Can't make operation over entries and file entry");
        const auto row = [](const char *name, const QStringList &sources, const char *destination, const char *pairs,
                            const QString &error = {}) {
            QTest::newRow(name) << sources << QString::fromUtf8(destination) << QString::fromUtf8(pairs) << error;
        };
        row("into a directory", {"a", "dir"}, "other", "a>other/a dir>other/dir");
        row("into a directory behind a link", {"a"}, "link", "a>link/a");
        row("under a new name", {"a"}, "new", "a>new");
        row("name taken", {"b"}, "dir", "b>dir/b:1");
        row("name taken by a broken link", {"a"}, "brokens", "a>brokens/a:1");
        row("file onto file", {"a"}, "b", "a>b:1");
        row("onto itself", {"a"}, "", "a>a:2");
        row("two of one name", {"a", "other/deep/a"}, "dir", "a>dir/a a>dir/a:3");
        row("directory into itself", {"dir", "a"}, "dir", "dir>dir/dir:4 a>dir/a");
        row("directory into what is below it", {"other"}, "other/deep", "other>other/deep/other:4");
        row("directory into itself by a link", {"other"}, "link", "other>link/other:4");
        row("a link to a directory into that", {"link"}, "other", "link>other/link");
        row("a name that begins alike is not inside", {"di"}, "dir", "di>dir/di");
        row("directory onto a file", {"dir"}, "a", "", dirOnFile);
        row("several onto a file", {"a", "b"}, "dir/b", "", manyOnFile);
        row("several onto a new name", {"a", "b"}, "new", "", manyOnFile);
        row("no directory for the new name", {"a"}, "none/new", "", QStringLiteral("Nothing can be put there"));
        row("nothing selected", {}, "dir", "", QStringLiteral("Nothing is selected"));
        row("something that is gone", {"a", "gone"}, "dir", "", QStringLiteral("Nothing is selected"));
    }

    void formsPairs()
    {
        QFETCH(QStringList, sources);
        QFETCH(QString, destination);
        TestTree tree({"a", "b", "dir/b", "di/", "other/deep/a", "brokens/"});
        tree.link("link", "other");
        tree.link("brokens/a", "nowhere");
        EntryList selection;
        for (const QString &source : qAsConst(sources))
            selection.append(tree.entry(source));
        const Entry present = tree.entry(destination);
        PathAnalyzer analyzer(selection, present.isNull() ? fakeEntry(tree.path(destination)) : present);
        analyzer.resolve();

        QStringList pairs;
        for (const PathAnalyzerPair &pair : analyzer.pairs()) {
            QString text = pair.source().fileName() + QLatin1Char('>') + pair.targetPath().mid(tree.path().size() + 1);
            if (pair.conflict() != PathAnalyzerPair::NoConflict)
                text += QLatin1Char(':') + QString::number(pair.conflict());
            pairs.append(text);
        }
        QTEST(pairs.join(QLatin1Char(' ')), "pairs");
        QTEST(analyzer.errorString(), "error");
        QCOMPARE(analyzer.conflicts().size(), pairs.filter(QStringLiteral(":")).size());
    }

    void stopsWhenAskedAndCountsWithoutFollowingLinks()
    {
        TestTree tree({"dir/", "dir/empty/", "outside/"});
        tree.add("dir/a", QByteArray(100, 'a'));
        tree.add("dir/deep/b", QByteArray(23, 'b'));
        tree.add("outside/huge", QByteArray(5000, 'c'));
        tree.add("single", QByteArray(7, 'd'));
        tree.link("dir/link", "../outside");
        PathAnalyzer analyzer({tree.entry("dir"), tree.entry("single")}, tree.entry("outside"));
        QAtomicInt cancel(1);
        QVERIFY(!analyzer.analyze(&cancel));
        QCOMPARE(analyzer.error(), PathAnalyzer::Cancelled);
        QVERIFY(analyzer.analyze());
        QCOMPARE(analyzer.totalDirs(), 3LL);
        QCOMPARE(analyzer.totalFiles(), 4LL);
        QCOMPARE(analyzer.totalBytes(), 130LL);
    }
};

QTEST_GUILESS_MAIN(PathAnalyzerTest)

#include "pathanalyzertest.moc"
