// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "modelrows.h"
#include "testtree.h"
#include "treevfs.h"

#include <veskfm/treemodel.h>

#include <QTreeView>

#include <QtTest>

using namespace VeskFM;

namespace
{

/// A tree over the fake VFS that shows "/top".
struct Shown
{
    explicit Shown(const QStringList &directories = {})
    {
        vfs.add("/", Entry::Dir);
        for (const QString &path : QStringList("/top") + directories)
            dir(path);
        model.rebuild(vfs.entry("/top"));
    }
    Entry dir(const QString &path, std::initializer_list<EntryTrait> more = {})
    {
        const Entry made = vfs.add(path, Entry::Dir, more);
        static_cast<FakeEntryData *>(const_cast<EntryData *>(made.data()))->local = path;
        return made;
    }
    /// The answer to a listing: the children in the fake VFS.
    void list(const QString &path, VFS::EntryChildFilters filters = VFS::ContainersOnly)
    {
        EntryList children;
        for (const Entry &entry : qAsConst(vfs.nodes)) {
            if (VFS::parentDirPath(entry.path()) == path && entry.path() != path)
                children.append(entry);
        }
        vfs.answer(vfs.entry(path), filters, children);
    }
    QModelIndex at(const QString &path) { return model.indexOfEntry(vfs.entry(path)); }
    QStringList rows() const { return ModelRows(&model).all(); }

    TreeVfs vfs;
    TreeModel model{ModelFilter::AllEntries};
};

} // namespace

class TreeModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsContainersOnly()
    {
        Shown shown({"/top/dir", "/top/.hidden"});
        shown.vfs.add("/top/dir.txt");
        shown.vfs.add("/top/mounted", Entry::Archive, {EntryTrait::ArchiveMountPoint});
        shown.model.setNameFilters({"*.txt"});
        shown.list("/top", VFS::PlainListing); // asked for by a flat model
        QCOMPARE(shown.rows(), QStringList());
        shown.list("/top");
        QCOMPARE(shown.rows(), QStringList({"/top/dir", "/top/mounted"}));
        shown.model.setArchivesAreFiles(true);
        shown.model.setShowHiddenEntries(true);
        shown.list("/top", VFS::ContainersOnly | VFS::ArchivesAsFiles);
        QCOMPARE(shown.vfs.watcher.asked.last(), "/top 12");
        QVERIFY(shown.rows().contains("/top/.hidden"));
    }

    void hasExpandersUntilLeavesAreRefined()
    {
        Shown shown({"/top/branch", "/top/leaf"});
        shown.dir("/top/trash", {EntryTrait::Place, EntryTrait::TrashDirPlace});
        shown.vfs.leaves = QStringList{"/top/leaf"};
        QVERIFY(shown.model.hasChildren() && !TreeModel(ModelFilter::AllEntries).hasChildren());
        shown.list("/top");
        const QModelIndex leaf = shown.at("/top/leaf");
        QVERIFY(shown.model.hasChildren(shown.at("/top/branch")) && shown.model.hasChildren(leaf));
        QVERIFY(shown.at("/top/branch").data(Qt::DecorationRole).isValid()); // as when they are painted
        QVERIFY(leaf.data(Qt::DecorationRole).isValid());
        QVERIFY(shown.model.hasChildren(shown.at("/top/branch")) && !shown.model.hasChildren(leaf));
        shown.vfs.tell(&EntryWatcher::entryCreated, shown.dir("/top/leaf/new")); // no leaf any more; still not listed
        QVERIFY(shown.model.hasChildren(leaf) && shown.model.rowCount(leaf) == 0);

        const QModelIndex trash = shown.at("/top/trash");
        shown.model.fetchMore(trash);
        QVERIFY(!shown.model.hasChildren(trash) && !shown.model.canFetchMore(trash));
        shown.vfs.tell(&EntryWatcher::entryReset, shown.vfs.entry("/top/trash"));
        QCOMPARE(shown.vfs.watcher.asked, QStringList{"/top 4"});
    }

    void opensPaths_data()
    {
        QTest::addColumn<bool>("isTopListed");
        QTest::addColumn<bool>("isMiddleListing");
        QTest::addColumn<int>("signalsOfRows");
        QTest::newRow("while the top is being listed") << false << false << 1; // for the row of the top
        QTest::newRow("below a listed directory") << true << false << 0;       // the rest comes silently
        QTest::newRow("while the middle is being listed") << true << true << 1;
    }

    void opensPaths()
    {
        QFETCH(bool, isTopListed);
        QFETCH(bool, isMiddleListing);
        const QStringList path{"/top/.a", "/top/.a/b", "/top/.a/b/c"}; // the hidden directory is no obstacle
        Shown shown(path);
        shown.model.setShowHiddenEntries(isTopListed);
        if (isTopListed)
            shown.list("/top");
        if (isMiddleListing)
            shown.model.fetchMore(shown.model.index(0, 0));
        QSignalSpy inserted(&shown.model, &TreeModel::rowsInserted);
        const QModelIndexList indexes = shown.model.pathIndexList(shown.vfs.entry(path.last()));
        QCOMPARE(indexes.size(), 3);
        QTEST(inserted.count(), "signalsOfRows");
        QCOMPARE(indexes.last().parent().parent(), indexes.first());
        QCOMPARE(shown.rows(), path);
        QCOMPARE(shown.vfs.watcher.asked.last(), "/top/.a/b 4"); // nobody has expanded the last one
        QCOMPARE(shown.at(path.last()), indexes.last());         // found again, not made twice

        shown.model.filter().setShowHiddenEntries(true);
        shown.dir("/top/.a/a"); // the listing puts the others around it
        shown.list("/top/.a");
        QCOMPARE(shown.rows(), QStringList({"/top/.a", "/top/.a/a", "/top/.a/b", "/top/.a/b/c"}));
        shown.dir("/top/.a/late"); // a listed directory has the rows it has
        QCOMPARE(shown.at("/top/.a/late"), indexes.first());
        QVERIFY(!shown.at("/top").isValid() && !shown.at("/nowhere").isValid());
    }

    void removesWhatVanished()
    {
        Shown shown({"/top/a", "/top/b", "/top/b/c", "/top/b/c/d"});
        shown.list("/top");
        const QPersistentModelIndex below = shown.at("/top/b/c/d").parent();
        shown.list("/top/b");
        shown.vfs.tell(&EntryWatcher::entryReset, shown.vfs.entry("/top/b/c")); // still there: listed again
        QVERIFY(below.isValid() && shown.model.rowCount(below) == 0);
        QCOMPARE(shown.vfs.watcher.asked.count("/top/b/c 4"), 2);
        shown.vfs.tell(&EntryWatcher::entryReset, shown.vfs.nodes.take("/top/b"));
        QVERIFY(!below.isValid());
        shown.list("/top/b/c"); // an answer that was under way
        QCOMPARE(shown.rows(), QStringList{"/top/a"});
        shown.vfs.tell(&EntryWatcher::entryReset, shown.vfs.nodes.take("/top")); // the root stays
        QCOMPARE(shown.rows(), QStringList{"/top/a"});
    }

    void survivesASlotThatRebuilds()
    {
        Shown shown({"/top/a", "/top/a/b"});
        connect(&shown.model, &TreeModel::rowsInserted, this, [&] { shown.model.rebuild(); });
        QVERIFY(shown.model.pathIndexList(shown.vfs.entry("/top/a/b")).isEmpty());
    }

    /// Anything that can happen to a tree happens in any order; who listens knows the rows as they are.
    void tellsEveryRow()
    {
        QRandomGenerator random(4711);
        Shown shown;
        ModelRows told(&shown.model);
        told.follow();
        QStringList known{"/top"};
        int most = 0;
        for (int step = 0; step < 1500; ++step) {
            const QString path = known.at(int(random.bounded(uint(known.size()))));
            const Entry entry = shown.vfs.entry(path);
            const uint what = entry.isNull() ? 99 : random.bounded(40u);
            if (what < 12 && path.size() < 20) {
                known.append(path + '/' + QString::number(step));
                shown.vfs.tell(&EntryWatcher::entryCreated, shown.dir(known.last()));
            } else if (what < 14 && path != "/top") {
                for (const QString &other : qAsConst(known)) {
                    if (other.startsWith(path))
                        shown.vfs.nodes.remove(other);
                }
                shown.vfs.tell(what == 13 ? &EntryWatcher::entryDeleted : &EntryWatcher::entryReset, entry);
            } else if (what == 15) {
                shown.vfs.tell(&EntryWatcher::entryReset, entry);
            } else if (what < 22) {
                shown.model.fetchMore(shown.at(path));
                told.read(QModelIndex()); // a view learns of silent rows by going there
            } else if (what < 40) {
                shown.list(path); // also when nobody asked, as for another model
            }
            QCOMPARE(told.all(), shown.rows());
            most = qMax(most, told.all().size());
        }
        QVERIFY2(most > 50, qPrintable(QString::number(most)));
    }

    void followsTheDiskInAView()
    {
        TestTree tree({"0/1/2/3/4/5/6/7/8/9/10/11/", "0/1/other/", "0/1/file"});
        TreeModel model(ModelFilter::AllEntries);
        QTreeView view;
        view.setModel(&model);
        view.show();
        model.rebuild(tree.entry());
        const QModelIndexList path = model.pathIndexList(tree.entry("0/1/2/3/4/5/6/7/8/9/10/11"));
        QCOMPARE(path.size(), 12); // before any listing
        for (const QModelIndex &index : path)
            view.expand(index);
        const QModelIndex one = path.at(1);
        QTRY_COMPARE(model.rowCount(one), 2);
        QVERIFY(view.isExpanded(path.at(2)));
        tree.remove("0/1/2"); // while its branch is expanded
        QTRY_COMPARE(model.rowCount(one), 1);
        tree.add("0/1/new/");
        QTRY_COMPARE(model.rowCount(one), 2);
        QCOMPARE(view.indexBelow(one).data().toString(), "new");
    }
};

QTEST_MAIN(TreeModelTest)

#include "treemodeltest.moc"
