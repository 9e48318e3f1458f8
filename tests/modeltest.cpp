// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "modelrows.h"
#include "testtree.h"
#include "treevfs.h"

#include <veskfm/model.h>
#include <veskfm/modelitem.h>

#include <QMimeData>

#include <QtTest>

#include <memory>

using namespace VeskFM;

namespace
{

/// The model as the toolkit's tester accepts it: that wants no flags at all for no index.
class TestableModel : public QIdentityProxyModel
{
public:
    explicit TestableModel(Model *model) { setSourceModel(model); }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() ? QIdentityProxyModel::flags(index) : Qt::ItemFlags();
    }
};

QStringList displayNames(const Model &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row, 0).data().toString());
    return names;
}

/// A model over the fake VFS, to show "/home/dir", and a log of what it tells: "insert 0-2", "remove 3-3", "listed",
/// "loading", "changed", "layout", "reset", "sorted".
struct Shown
{
    Shown()
    {
        for (const char *path : {"/", "/home", "/home/dir"})
            dir = vfs.add(path, Entry::Dir);
        model = std::make_unique<Model>(Model::ListMode, ModelFilter::AllEntries, nullptr);
        const auto note = [this](const char *what) { return [this, what] { log.append(what); }; };
        const auto rows = [this](const char *what) {
            return [this, what](const QModelIndex &, int first, int last) {
                log.append(QStringLiteral("%1 %2-%3").arg(what).arg(first).arg(last));
            };
        };
        Model *const source = model.get();
        QObject::connect(source, &Model::rowsInserted, rows("insert"));
        QObject::connect(source, &Model::rowsRemoved, rows("remove"));
        QObject::connect(source, &Model::modelReset, note("reset"));
        QObject::connect(source, &Model::layoutChanged, note("layout"));
        QObject::connect(source, &Model::dirListed, note("listed"));
        QObject::connect(source, &Model::sortingChanged, note("sorted"));
        QObject::connect(source, &Model::dataChanged, [this](const auto &, const auto &, const auto &roles) {
            log.append(roles == QVector<int>{Model::ListingRole} ? "loading" : "changed");
        });
    }
    QStringList take() { return std::exchange(log, {}); }
    Entry file(const QString &name) { return vfs.add("/home/dir/" + name); }
    EntryList files(const QStringList &names)
    {
        EntryList list;
        for (const QString &name : names)
            list.append(file(name));
        return list;
    }
    void list(const EntryList &children, const Entry &entry, VFS::EntryChildFilters filters = VFS::PlainListing)
    {
        vfs.answer(entry, filters, children);
    }
    void show(const QStringList &names)
    {
        model->rebuild(dir);
        list(files(names), dir);
        log.clear();
    }

    TreeVfs vfs;
    Entry dir;
    std::unique_ptr<Model> model;
    QStringList log;
};

} // namespace

class ModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsInNumericOrderAndFollowsTheDisk()
    {
        TestTree tree({"b.txt", "a10.txt", "a9.txt", ".hidden", "sub/"});
        Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
        QSignalSpy listed(&model, &Model::dirListed);
        model.rebuild(tree.entry());
        QCOMPARE(model.rowCount(), 0); // rows never arrive inside rebuild()
        QCOMPARE(model.pathIndexList(tree.entry("b.txt")), QModelIndexList({QModelIndex()}));
        QVERIFY(listed.wait());
        QCOMPARE(displayNames(model), QStringList({"sub", "a9.txt", "a10.txt", "b.txt"}));
        QCOMPARE(model.pathIndexList(tree.entry("b.txt")), QModelIndexList({model.index(3, 0)}));
        TestableModel testable(&model);
        QAbstractItemModelTester tester(&testable); // only now: a listing announces rows that are already there
        tree.add(".late");
        tree.add("c.txt");
        tree.remove("a9.txt");
        QTRY_COMPARE(displayNames(model), QStringList({"sub", "a10.txt", "b.txt", "c.txt"}));
        tree.rename("b.txt", "a1.txt");
        QTRY_COMPARE(displayNames(model), QStringList({"sub", "a1.txt", "a10.txt", "c.txt"}));
        tree.write("a1.txt", QByteArray(1234, 'x'));
        QTRY_COMPARE(model.entryByIndex(model.index(1, 0)).fileSize(), 1234);

        const QModelIndexList indexes = {
            model.index(2, 0), model.index(2, 1), {}, model.index(1, 1), model.index(2, 0)};
        const std::unique_ptr<QMimeData> drag(model.mimeData(indexes));
        QCOMPARE(drag->urls(),
                 QList<QUrl>({QUrl::fromLocalFile(tree.path("a10.txt")), QUrl::fromLocalFile(tree.path("a1.txt"))}));
        QCOMPARE(fileNames(model.indexesToEntries(indexes)), QStringList({"a10.txt", "a10.txt"})); // first column only
        QVERIFY(model.isHiddenChild(tree.add(".h/x/y")) && !model.isHiddenChild(tree.entry("c.txt")));
    }

    void tellsInOrderWhatAListingBrings()
    {
        Shown shown;
        Model other(Model::ListMode, ModelFilter::AllEntries, nullptr);
        other.setArchivesAreFiles(true);
        other.rebuild(shown.dir);
        shown.model->rebuild(shown.dir);
        QCOMPARE(shown.take(), QStringList({"loading", "reset"}));
        QVERIFY(shown.model->data(QModelIndex(), Model::ListingRole).toBool());
        shown.model->fetchMore(QModelIndex()); // it is under way
        QCOMPARE(shown.vfs.watcher.asked, QStringList({"/home/dir 8", "/home/dir 0"}));

        shown.list(shown.files({"x"}), shown.dir, VFS::ArchivesAsFiles); // asked for by the other one
        QCOMPARE(shown.take(), QStringList());
        shown.list(shown.files({"b", "a", "c", "a", ".h"}), shown.dir);
        QCOMPARE(shown.take(), QStringList({"insert 0-2", "loading", "listed"}));
        QCOMPARE(displayNames(*shown.model), QStringList({"a", "b", "c"}));
        QCOMPARE(displayNames(other), QStringList({"x"}));
        shown.list(shown.files({"d"}), shown.dir); // asked for by nobody
        QCOMPARE(shown.take(), QStringList());
        QVERIFY(!shown.model->data(QModelIndex(), Model::ListingRole).toBool());
        shown.model->refresh();
        QCOMPARE(shown.take(), QStringList({"remove 0-2", "loading"}));
        shown.list({}, shown.dir);
        QCOMPARE(shown.take(), QStringList({"loading", "listed"}));
    }

    void showsDotDotFirstInBothOrders()
    {
        Shown shown;
        Model &model = *shown.model;
        model.setShowDotDot(true);
        shown.show({"b", "a"});
        QCOMPARE(displayNames(model), QStringList({"..", "a", "b"}));
        model.sort(0, Qt::DescendingOrder);
        QCOMPARE(displayNames(model), QStringList({"..", "b", "a"}));
        QCOMPARE(model.index(0, 0).flags(), Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
        model.rebuild(shown.vfs.entry("/home")); // its parent is the root
        shown.list({shown.dir}, shown.vfs.entry("/home"));
        QCOMPARE(displayNames(model), QStringList({"dir"}));
    }

    void reactsToEvents()
    {
        Shown shown;
        shown.show({"b", "d"});
        shown.vfs.tell(&EntryWatcher::entryCreated, shown.file("c"));
        shown.vfs.tell(&EntryWatcher::entryCreated, shown.file(".hidden"));
        shown.vfs.tell(&EntryWatcher::entryCreated, shown.vfs.add("/home/elsewhere"));
        QCOMPARE(shown.take(), QStringList({"insert 1-1"}));
        shown.vfs.tell(&EntryWatcher::entryCreated, shown.file("c")); // it is there already
        shown.vfs.tell(&EntryWatcher::entryChanged, shown.file("b"));
        shown.vfs.tell(&EntryWatcher::entryAttributesChanged, shown.file("b"));
        shown.vfs.tell(&EntryWatcher::entryChanged, shown.file("unknown"));
        QCOMPARE(shown.take(), QStringList({"layout", "layout", "layout"}));
        shown.vfs.tell(&EntryWatcher::entryDeleted, shown.file("b"));
        shown.vfs.tell(&EntryWatcher::entryDeleted, shown.dir); // the root stays
        QCOMPARE(shown.take(), QStringList({"remove 0-0"}));
        QCOMPARE(displayNames(*shown.model), QStringList({"c", "d"}));

        shown.vfs.tell(&EntryWatcher::entryReset, shown.dir);
        QCOMPARE(shown.take(), QStringList({"remove 0-1", "loading"}));
        const Entry sub = shown.vfs.add("/home/dir/sub", Entry::Dir);
        for (const Entry &early : {shown.file("x"), sub, sub}) // not listed yet: only a directory sets a flag, once
            shown.vfs.tell(&EntryWatcher::entryCreated, early);
        QCOMPARE(shown.take(), QStringList({"changed"}));
        shown.list(shown.files({"x"}), shown.dir);
        shown.vfs.nodes.remove("/home/dir");
        shown.vfs.tell(&EntryWatcher::entryReset, shown.dir); // vanished: left as it is
        QCOMPARE(displayNames(*shown.model), QStringList({"x"}));
    }

    void dropsOnDirectoriesAndSwapsFilesForFresherEntries()
    {
        Shown shown;
        const auto grown = [&](const char *path, int kind) { return shown.vfs.add(path, kind, {}, 99); };
        shown.model->rebuild(shown.dir);
        shown.list({shown.vfs.add("/home/dir/d", Entry::Dir), shown.file("f"), shown.file("g")}, shown.dir);
        QVERIFY(shown.model->index(0, 0).flags() & Qt::ItemIsDropEnabled);
        QVERIFY(!(shown.model->index(1, 0).flags() & Qt::ItemIsDropEnabled));
        shown.vfs.tell(&EntryWatcher::entryChanged, grown("/home/dir/d", Entry::Dir));
        shown.vfs.tell(&EntryWatcher::entryChanged, grown("/home/dir/f", Entry::File));
        shown.vfs.tell(&EntryWatcher::entryCreated,
                       grown("/home/dir/g", Entry::Archive)); // another kind sorts elsewhere
        const auto sizeAt = [&](int row) { return shown.model->entryByIndex(shown.model->index(row, 0)).fileSize(); };
        QCOMPARE(QList<qint64>({sizeAt(0), sizeAt(1), sizeAt(2)}), QList<qint64>({0, 99, 0}));
    }

    void survivesNestedFinds()
    {
        Shown shown;
        Model &model = *shown.model;
        model.setShowDotDot(true);
        model.rebuild(shown.dir);
        const Entry home = shown.vfs.entry("/home");
        const Entry sub = shown.vfs.add("/home/dir/sub", Entry::Dir);
        const Entry deep = shown.vfs.add("/home/dir/sub/deep", Entry::Dir);
        shown.list({sub, shown.file("f")}, shown.dir);
        // The rows of directories take part in listings that other models asked for; so the same entry can stand in
        // several places, also below itself.
        shown.list({shown.dir}, home);
        shown.list({deep}, sub);
        shown.list({sub}, deep);
        shown.list({deep}, sub);
        QVERIFY(static_cast<ModelItem *>(model.index(1, 0).internalPointer())->finds(sub).size() > 1);
        shown.vfs.tell(&EntryWatcher::entryReset, sub);
        shown.list({deep}, sub);
        shown.list({sub}, deep);
        shown.vfs.tell(&EntryWatcher::entryDeleted, sub);
        QCOMPARE(displayNames(model), QStringList({"..", "f"}));
        shown.vfs.tell(&EntryWatcher::entryDeleted, home);
        shown.vfs.tell(&EntryWatcher::entryReset, shown.dir);
        QCOMPARE(model.rowCount(), 0);
    }

    void survivesSlotsThatLeaveTheDirectory()
    {
        Shown shown;
        Model *const model = shown.model.get();
        const Entry home = shown.vfs.entry("/home");
        const auto leavesAt = [&](auto signal, auto provoke) {
            model->rebuild(shown.dir);
            QObject context;
            connect(model, signal, &context, [&] { model->rebuild(home); });
            shown.list(shown.files({"a", "b"}), shown.dir);
            provoke();
            return model->actualRootEntry() == home && model->rowCount() == 0;
        };
        QVERIFY(leavesAt(&Model::rowsInserted, [] {}));
        QVERIFY(leavesAt(&Model::layoutAboutToBeChanged,
                         [&] { shown.vfs.tell(&EntryWatcher::entryChanged, shown.file("a")); }));
        QVERIFY(leavesAt(&Model::rowsRemoved, [&] { shown.vfs.tell(&EntryWatcher::entryReset, shown.dir); }));
    }

    void sorts()
    {
        Shown shown;
        Model &model = *shown.model;
        model.sort(1, Qt::DescendingOrder);
        QCOMPARE(shown.take(), QStringList({"sorted"})); // without rows too
        model.rebuildWithPropertySortIndex(0, Model::Ascending);
        shown.show({"a", "b"});
        model.sort(99, Qt::DescendingOrder);
        model.rebuildWithPropertySortIndex(-1, Model::KeepOrder);
        model.rebuildWithPropertySortIndex(0, Model::Ascending);
        QCOMPARE(shown.take(), QStringList());
        model.rebuildWithPropertySortIndex(-1, Model::Descending); // keeps the property
        QCOMPARE(shown.take(), QStringList({"reset", "sorted"}));
        QCOMPARE(displayNames(model), QStringList({"b", "a"}));
        model.rebuildWithPropertySortIndex(1, Model::KeepOrder);
        QCOMPARE(model.sortOrder(), Model::Descending);
        QCOMPARE(model.propertySortIndex(), 1);
        shown.vfs.tell(&EntryWatcher::entryCreated, shown.file("0")); // of the same type: before all equal ones
        QCOMPARE(displayNames(model), QStringList({"0", "b", "a"}));
    }

    void listsAgainOnlyWhenTheFilterChanged()
    {
        Shown shown;
        Model &model = *shown.model;
        shown.show({"a"});
        shown.vfs.watcher.asked.clear();
        model.setNameFilters({"*"});
        model.setNameFiltersForFilesOnly(false);
        model.setShowHiddenEntries(false);
        model.rebuildWithEntryFilters({});
        model.setShowDotDot(false);
        model.rebuildWithMode(Model::InvalidMode);
        model.rebuild(fakeEntry("/gone"));
        QCOMPARE(shown.vfs.watcher.asked, QStringList());

        model.setShowHiddenEntries(true);
        model.setNameFilters({"*.x"});
        model.setNameFiltersForFilesOnly(true);
        model.setShowDotDot(true);
        model.rebuildWithEntryFilters(ModelFilter::DirsOnly);
        model.filter().setEntryFilters(ModelFilter::AllEntries);
        model.flushFilter();
        QCOMPARE(shown.vfs.watcher.asked.size(), 6);
    }

    void answersQueriesWithoutRoot()
    {
        Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
        model.rebuild(Entry());
        model.refresh();
        model.updatePresentation();
        model.setShowDotDot(true);
        QVERIFY(model.actualRootEntry().isNull() && !model.canFetchMore(QModelIndex()) && !model.hasChildren());
        QVERIFY(!model.data(QModelIndex()).isValid() && !model.index(0, 0).isValid());
        QVERIFY(!model.indexOfEntry(Entry()).isValid() && model.pathIndexList(Entry()).isEmpty());
        QCOMPARE(model.internalPropertyName(-1) + model.internalPropertyName(99), QString());
    }

    void queuesRefinementForIcons()
    {
        TestTree tree;
        tree.add("script", "#!/bin/sh\n");
        Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
        model.rebuild(tree.entry());
        QTRY_COMPARE(model.rowCount(), 1);
        int layouts = 0;
        connect(&model, &Model::layoutChanged, this, [&] { ++layouts; });
        auto *const item = static_cast<ModelItem *>(model.index(0, 0).internalPointer());
        for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole), int(Model::SortKeyRole)})
            model.index(0, 0).data(role);
        QVERIFY(item->needsRefine());
        const QString unrefined = model.index(0, 1).data().toString();
        QVERIFY(model.index(0, 0).data(Qt::DecorationRole).isValid());
        QVERIFY(!item->needsRefine());
        QTRY_COMPARE(layouts, 1);
        QVERIFY(model.index(0, 1).data().toString() != unrefined);
    }

    /// Keeps the rows of a model by its signals alone, and holds them against the model after thousands of events.
    void signalsAloneRebuildTheRows()
    {
        Shown shown;
        Model &model = *shown.model;
        ModelRows told(&model);
        told.follow();
        QRandomGenerator random(5);
        const auto someName = [&] { return QStringLiteral("n%1").arg(random.bounded(900)); };
        model.rebuild(shown.dir);
        for (int i = 0; i < 6000; ++i) {
            const int what = random.bounded(1000);
            if (what == 0)
                model.sort(0, random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
            else if (what == 1)
                shown.vfs.tell(&EntryWatcher::entryReset, shown.dir);
            if (i == 0 || what < 4) {
                QStringList names;
                for (int n = random.bounded(700); n > 0; --n)
                    names.append(someName());
                shown.list(shown.files(names), shown.dir);
            }
            shown.vfs.tell(what % 7 < 3       ? &EntryWatcher::entryDeleted
                               : what % 7 < 6 ? &EntryWatcher::entryCreated
                                              : &EntryWatcher::entryChanged,
                           shown.vfs.add("/home/dir/" + someName(), random.bounded(9) ? Entry::File : Entry::Dir));
            if (i % 50 == 0) {
                const QStringList rows = told.all();
                QCOMPARE(rows, ModelRows(&model).all());
                for (int row = 0; row < rows.size(); ++row)
                    QCOMPARE(model.indexOfEntry(shown.vfs.entry(rows.at(row))).row(), row);
            }
        }
        QVERIFY(told.all().size() > 100);
    }
};

QTEST_MAIN(ModelTest)
#include "modeltest.moc"
