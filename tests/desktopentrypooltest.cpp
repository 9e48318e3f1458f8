// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/desktopentrypool.h>

#include <QtConcurrentRun>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>

using namespace VeskFM;

namespace
{

QString nameIn(const QString &path)
{
    return DesktopEntryPool::ptr()->desktopEntry(path).getBestAvailableName();
}

/// Writes a desktop entry that says it was changed at @p seconds.
void writeEntry(TestTree &tree, const QByteArray &name, time_t seconds)
{
    tree.add("a.desktop", "[Desktop Entry]\nType=Link\nURL=/\nName=" + name + '\n');
    const struct timespec times[2] = {{seconds, 0}, {seconds, 0}};
    QCOMPARE(utimensat(AT_FDCWD, tree.bytes("a.desktop").constData(), times, 0), 0);
}

} // namespace

class DesktopEntryPoolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAFileAgainOnlyWhenItsTimeChanged();
    void dropsRecordsInTime();
};

void DesktopEntryPoolTest::readsAFileAgainOnlyWhenItsTimeChanged()
{
    TestTree tree;
    writeEntry(tree, "first", 1000);
    tree.link("link", "a.desktop");
    QCOMPARE(nameIn(tree.path("a.desktop")), "first");
    writeEntry(tree, "second", 1000);
    QCOMPARE(nameIn(tree.path("link")), "first"); // one record for the file and links to it
    writeEntry(tree, "third", 2000);
    QCOMPARE(nameIn(tree.path("link")), "third");
    writeEntry(tree, "fourth", 2000);
    DesktopEntryPool::ptr()->clearDesktopEntries();
    QCOMPARE(nameIn(tree.path("link")), "third"); // the new time has been noted, and it is too young to be dropped
    tree.remove("a.desktop");
    QVERIFY(!DesktopEntryPool::ptr()->desktopEntry(tree.path("link")).isValid());
}

void DesktopEntryPoolTest::dropsRecordsInTime()
{
    delete DesktopEntryPool::ptr();
    TestTree tree;
    writeEntry(tree, "first", 1000);
    // A worker is the first to ask; the timer must run all the same.
    QCOMPARE(QtConcurrent::run(nameIn, tree.path("a.desktop")).result(), "first");
    QCOMPARE(DesktopEntryPool::ptr()->thread(), thread());
    writeEntry(tree, "second", 1000);
    QCOMPARE(nameIn(tree.path("a.desktop")), "first");
    QTRY_COMPARE_WITH_TIMEOUT(nameIn(tree.path("a.desktop")), "second", 20000);
}

QTEST_GUILESS_MAIN(DesktopEntryPoolTest)
#include "desktopentrypooltest.moc"
