// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"
#include "treevfs.h"

#include <veskfm/entryviewparameters.h>
#include <veskfm/model.h>
#include <veskfm/modelitem.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>

#include <QAbstractItemModelTester>
#include <QDataStream>
#include <QIdentityProxyModel>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace VeskFM;

namespace
{

QStringList displayNames(const Model &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row, 0).data().toString());
    return names;
}

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

/// What a model tells, in order: "insert 0-2", "remove 3-3", "listed", "loading", "changed", "layout", "reset", "sorted".
class SignalLog
{
public:
    explicit SignalLog(Model *model)
    {
        const auto note = [this](const char *what) { return [this, what] { log.append(what); }; };
        const auto rows = [this](const char *what) {
            return [this, what](const QModelIndex &, int first, int last) {
                log.append(QStringLiteral("%1 %2-%3").arg(what).arg(first).arg(last));
            };
        };
        QObject::connect(model, &Model::rowsInserted, model, rows("insert"));
        QObject::connect(model, &Model::rowsRemoved, model, rows("remove"));
        QObject::connect(model, &Model::modelReset, model, note("reset"));
        QObject::connect(model, &Model::layoutChanged, model, note("layout"));
        QObject::connect(model, &Model::dirListed, model, note("listed"));
        QObject::connect(model, &Model::sortingChanged, model, note("sorted"));
        QObject::connect(model, &Model::dataChanged, model, [this](const auto &, const auto &, const auto &roles) {
            log.append(roles == QVector<int>{Model::ListingRole} ? "loading" : "changed");
        });
    }
    QStringList take() { return std::exchange(log, {}); }

    QStringList log;
};

/// A model over the fake VFS that shows "/home/dir".
struct Shown
{
    explicit Shown(Model::Mode mode = Model::ListMode)
    {
        for (const char *path : {"/", "/home", "/home/dir"})
            vfs.add(path, Entry::Dir);
        dir = vfs.entry("/home/dir");
        model = std::make_unique<Model>(mode, ModelFilter::AllEntries, nullptr);
        log = std::make_unique<SignalLog>(model.get());
    }
    Entry file(const QString &name) { return vfs.add("/home/dir/" + name); }
    EntryList files(const QStringList &names)
    {
        EntryList list;
        for (const QString &name : names)
            list.append(file(name));
        return list;
    }
    /// Lets the watcher answer, and what it says arrive.
    void list(const EntryList &children, const Entry &entry, VFS::EntryChildFilters filters = VFS::PlainListing)
    {
        Q_EMIT vfs.watcher.dirListed(entry, filters, children);
        QCoreApplication::processEvents();
    }
    void tell(void (EntryWatcher::*event)(const Entry &), const Entry &entry)
    {
        Q_EMIT(vfs.watcher.*event)(entry);
        QCoreApplication::processEvents();
    }
    void show(const QStringList &names)
    {
        model->rebuild(dir);
        list(files(names), dir);
        log->take();
    }

    TreeVfs vfs;
    Entry dir;
    std::unique_ptr<Model> model;
    std::unique_ptr<SignalLog> log;
};

} // namespace

class ModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { EntryViewParameters::ptr()->setNumericSortingEnabled(true); }
    void listsInNumericOrderAndFollowsTheDisk();
    void tellsInOrderWhatAListingBrings();
    void modelsIgnoreListingsForOthers();
    void showsDotDotFirstInBothOrders();
    void reactsToEvents();
    void swapsOnlyFilesForFresherEntries();
    void onlyFlagsAnUnlistedDirectory();
    void survivesNestedFinds();
    void survivesSlotsThatLeaveTheDirectory();
    void sorts();
    void listsAgainOnlyWhenTheFilterChanged();
    void answersQueriesWithoutRoot();
    void givesRolesAndFlags();
    void collectsDragData();
    void findsPaths();
    void queuesRefinementForIcons();
    void streamsModes();
    void signalsAloneRebuildTheRows();
};

void ModelTest::listsInNumericOrderAndFollowsTheDisk()
{
    TestTree tree({"b.txt", "a10.txt", "a9.txt", ".hidden", "sub/"});
    Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
    QSignalSpy listed(&model, &Model::dirListed);
    model.rebuild(tree.entry());
    QCOMPARE(model.rowCount(), 0); // rows never arrive inside rebuild()
    QVERIFY(listed.wait());
    QCOMPARE(displayNames(model), QStringList({"sub", "a9.txt", "a10.txt", "b.txt"}));
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
}

void ModelTest::tellsInOrderWhatAListingBrings()
{
    Shown shown;
    shown.model->rebuild(shown.dir);
    QCOMPARE(shown.log->take(), QStringList({"loading", "reset"}));
    QCOMPARE(shown.vfs.watcher.asked, QStringList({"/home/dir 0"}));
    QVERIFY(shown.model->data(QModelIndex(), Model::ListingRole).toBool());
    QVERIFY(shown.model->canFetchMore(QModelIndex()));
    shown.model->fetchMore(QModelIndex());
    QCOMPARE(shown.vfs.watcher.asked.size(), 1);

    shown.list(shown.files({"b", "a", "c", "a", ".h"}), shown.dir);
    QCOMPARE(shown.log->take(), QStringList({"insert 0-2", "loading", "listed"}));
    QCOMPARE(displayNames(*shown.model), QStringList({"a", "b", "c"}));
    QVERIFY(!shown.model->data(QModelIndex(), Model::ListingRole).toBool());
    shown.list(shown.files({"d"}), shown.dir); // asked for by somebody else
    QCOMPARE(shown.log->take(), QStringList());

    shown.model->refresh();
    QCOMPARE(shown.log->take(), QStringList({"remove 0-2", "loading"}));
    shown.list({}, shown.dir);
    QCOMPARE(shown.log->take(), QStringList({"loading", "listed"}));
}

void ModelTest::modelsIgnoreListingsForOthers()
{
    Shown shown;
    Model other(Model::ListMode, ModelFilter::AllEntries, nullptr);
    other.setArchivesAreFiles(true);
    shown.model->rebuild(shown.dir);
    other.rebuild(shown.dir);
    QCOMPARE(shown.vfs.watcher.asked, QStringList({"/home/dir 0", "/home/dir 8"}));
    shown.list(shown.files({"a"}), shown.dir, VFS::ArchivesAsFiles);
    QCOMPARE(shown.model->rowCount(), 0);
    QCOMPARE(other.rowCount(), 1);
    shown.list(shown.files({"b", "c"}), shown.dir, VFS::PlainListing);
    QCOMPARE(displayNames(*shown.model), QStringList({"b", "c"}));
    QCOMPARE(displayNames(other), QStringList({"a"}));
}

void ModelTest::showsDotDotFirstInBothOrders()
{
    Shown shown;
    Model &model = *shown.model;
    model.setShowDotDot(true);
    shown.show({"b", "a"});
    QCOMPARE(displayNames(model), QStringList({"..", "a", "b"}));
    model.sort(0, Qt::DescendingOrder);
    QCOMPARE(displayNames(model), QStringList({"..", "b", "a"}));
    QCOMPARE(model.index(0, 0).flags(), Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
    QCOMPARE(model.entryByIndex(model.index(0, 0)), shown.vfs.entry("/home"));

    model.rebuild(shown.vfs.entry("/home")); // its parent is the root
    shown.list({shown.dir}, shown.vfs.entry("/home"));
    QCOMPARE(displayNames(model), QStringList({"dir"}));
}

void ModelTest::reactsToEvents()
{
    Shown shown;
    shown.show({"b", "d"});
    shown.tell(&EntryWatcher::entryCreated, shown.file("c"));
    shown.tell(&EntryWatcher::entryCreated, shown.file(".hidden"));
    shown.tell(&EntryWatcher::entryCreated, shown.vfs.add("/home/elsewhere"));
    QCOMPARE(shown.log->take(), QStringList({"insert 1-1"}));
    shown.tell(&EntryWatcher::entryCreated, shown.file("c")); // it is there already
    shown.tell(&EntryWatcher::entryChanged, shown.file("b"));
    shown.tell(&EntryWatcher::entryAttributesChanged, shown.file("b"));
    shown.tell(&EntryWatcher::entryChanged, shown.file("unknown"));
    QCOMPARE(shown.log->take(), QStringList({"layout", "layout", "layout"}));
    shown.tell(&EntryWatcher::entryDeleted, shown.file("b"));
    shown.tell(&EntryWatcher::entryDeleted, shown.dir); // the root stays
    QCOMPARE(shown.log->take(), QStringList({"remove 0-0"}));
    QCOMPARE(displayNames(*shown.model), QStringList({"c", "d"}));

    shown.vfs.watcher.asked.clear();
    shown.tell(&EntryWatcher::entryReset, shown.dir);
    QCOMPARE(shown.log->take(), QStringList({"remove 0-1", "loading"}));
    QCOMPARE(shown.vfs.watcher.asked, QStringList({"/home/dir 0"}));
    shown.list(shown.files({"x"}), shown.dir);
    shown.vfs.nodes.remove("/home/dir");
    shown.tell(&EntryWatcher::entryReset, shown.dir); // vanished: left as it is
    QCOMPARE(displayNames(*shown.model), QStringList({"x"}));
}

void ModelTest::swapsOnlyFilesForFresherEntries()
{
    Shown shown;
    const auto grown = [&](const QString &name, int kind) {
        const QVector<EntryTrait> traits = {kind == Entry::Dir ? EntryTrait::Dir : EntryTrait::File};
        auto *const data = new FakeEntryData("/home/dir/" + name, traits);
        data->kind = kind;
        data->size = 99;
        return Entry(data);
    };
    shown.model->rebuild(shown.dir);
    shown.list({shown.vfs.add("/home/dir/d", Entry::Dir), shown.file("f"), shown.file("g")}, shown.dir);
    shown.tell(&EntryWatcher::entryChanged, grown("d", Entry::Dir));
    shown.tell(&EntryWatcher::entryChanged, grown("f", Entry::File));
    shown.tell(&EntryWatcher::entryCreated, grown("g", Entry::Archive)); // another kind sorts elsewhere
    QList<qint64> sizes;
    for (int row = 0; row < 3; ++row)
        sizes.append(shown.model->entryByIndex(shown.model->index(row, 0)).fileSize());
    QCOMPARE(sizes, QList<qint64>({0, 99, 0}));
}

void ModelTest::onlyFlagsAnUnlistedDirectory()
{
    Shown shown;
    shown.model->rebuild(shown.dir);
    shown.log->take();
    shown.tell(&EntryWatcher::entryCreated, shown.file("f"));
    QCOMPARE(shown.log->take(), QStringList());
    const Entry sub = shown.vfs.add("/home/dir/sub", Entry::Dir);
    shown.tell(&EntryWatcher::entryCreated, sub);
    shown.tell(&EntryWatcher::entryCreated, sub);
    QCOMPARE(shown.log->take(), QStringList({"changed"})); // once: then it has the flag
    QCOMPARE(shown.model->rowCount(), 0);
}

void ModelTest::survivesNestedFinds()
{
    Shown shown;
    Model &model = *shown.model;
    model.setShowDotDot(true);
    model.rebuild(shown.dir);
    const Entry home = shown.vfs.entry("/home");
    const Entry sub = shown.vfs.add("/home/dir/sub", Entry::Dir);
    const Entry deep = shown.vfs.add("/home/dir/sub/deep", Entry::Dir);
    shown.list({sub, shown.file("f")}, shown.dir);
    // The rows of directories take part in listings that other models asked for; so the same entry can stand in several
    // places, also below itself.
    shown.list({shown.dir}, home);
    shown.list({deep}, sub);
    shown.list({sub}, deep);
    shown.list({deep}, sub);
    const QModelIndex subIndex = model.index(1, 0);
    auto *const item = static_cast<ModelItem *>(subIndex.internalPointer());
    QCOMPARE(item->entry(), sub);
    QVERIFY(item->finds(sub).size() > 1);

    shown.tell(&EntryWatcher::entryReset, sub);
    shown.list({deep}, sub);
    shown.list({sub}, deep);
    shown.tell(&EntryWatcher::entryDeleted, sub);
    QCOMPARE(displayNames(model), QStringList({"..", "f"}));
    shown.tell(&EntryWatcher::entryDeleted, home);
    shown.tell(&EntryWatcher::entryReset, shown.dir);
    QCOMPARE(model.rowCount(), 0);
}

void ModelTest::survivesSlotsThatLeaveTheDirectory()
{
    Shown shown;
    const Entry home = shown.vfs.entry("/home");
    const auto leave = [&] { shown.model->rebuild(home); };
    shown.model->rebuild(shown.dir);
    QMetaObject::Connection connection = connect(shown.model.get(), &Model::rowsInserted, this, leave);
    shown.list(shown.files({"a", "b"}), shown.dir);
    disconnect(connection);
    QCOMPARE(shown.model->actualRootEntry(), home);
    QCOMPARE(shown.model->rowCount(), 0);

    shown.show({"a", "b"});
    connection = connect(shown.model.get(), &Model::layoutAboutToBeChanged, this, leave);
    shown.tell(&EntryWatcher::entryChanged, shown.file("a"));
    disconnect(connection);
    shown.show({"a", "b"});
    connection = connect(shown.model.get(), &Model::rowsRemoved, this, leave);
    shown.tell(&EntryWatcher::entryReset, shown.dir);
    QCOMPARE(shown.model->actualRootEntry(), home);
}

void ModelTest::sorts()
{
    Shown shown;
    Model &model = *shown.model;
    model.sort(1, Qt::DescendingOrder);
    QCOMPARE(shown.log->take(), QStringList({"sorted"})); // without rows too
    model.rebuildWithPropertySortIndex(0, Model::Ascending);
    shown.show({"a", "b"});
    model.sort(99, Qt::DescendingOrder);
    model.rebuildWithPropertySortIndex(-1, Model::KeepOrder);
    model.rebuildWithPropertySortIndex(0, Model::Ascending);
    QCOMPARE(shown.log->take(), QStringList());
    model.rebuildWithPropertySortIndex(-1, Model::Descending); // keeps the property
    QCOMPARE(shown.log->take(), QStringList({"reset", "sorted"}));
    QCOMPARE(displayNames(model), QStringList({"b", "a"}));
    model.rebuildWithPropertySortIndex(1, Model::KeepOrder);
    QCOMPARE(model.sortOrder(), Model::Descending);
    QCOMPARE(model.propertySortIndex(), 1);
    shown.tell(&EntryWatcher::entryCreated, shown.file("0")); // of the same type: before all equal ones
    QCOMPARE(displayNames(model), QStringList({"0", "b", "a"}));
}

void ModelTest::listsAgainOnlyWhenTheFilterChanged()
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
    model.rebuild(Entry(new FakeEntryData("/gone", {})));
    QCOMPARE(shown.vfs.watcher.asked, QStringList());

    model.setShowHiddenEntries(true);
    model.setNameFilters({"*.x"});
    model.setNameFiltersForFilesOnly(true);
    model.setShowDotDot(true);
    model.rebuildWithEntryFilters(ModelFilter::DirsOnly);
    model.filter().setEntryFilters(ModelFilter::AllEntries);
    model.flushFilter();
    model.rebuild();
    QCOMPARE(shown.vfs.watcher.asked.size(), 7);
    QCOMPARE(model.entryFilters(), ModelFilter::EntryFilters(ModelFilter::AllEntries));
}

void ModelTest::answersQueriesWithoutRoot()
{
    Model model(Model::ListMode, ModelFilter::AllEntries, nullptr);
    model.rebuild(Entry());
    model.refresh();
    model.updatePresentation();
    model.setShowDotDot(true);
    QVERIFY(model.actualRootEntry().isNull());
    QVERIFY(!model.canFetchMore(QModelIndex()) && !model.hasChildren());
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(!model.index(0, 0).isValid() && !model.indexOfEntry(Entry()).isValid());
    QVERIFY(model.pathIndexList(Entry()).isEmpty());
    QCOMPARE(model.columnCount(), 1);
    model.rebuildWithMode(Model::TableMode);
    QCOMPARE(model.columnCount(), Props::ptr()->propertyEnumerator()->count());
    QCOMPARE(model.internalPropertyName(1), QStringLiteral("Type"));
    QCOMPARE(model.internalPropertyName(-1) + model.internalPropertyName(99), QString());
    QCOMPARE(model.propertyIndex("Type"), 1);
    QCOMPARE(model.propertyIndex("Nothing"), -1);
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), model.sortableProperties().value(0).first);
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
}

void ModelTest::givesRolesAndFlags()
{
    Shown shown(Model::TableMode);
    Model &model = *shown.model;
    model.rebuild(shown.dir);
    const Entry place = shown.vfs.add("/home/dir/p", Entry::VirtualDir, {EntryTrait::Place, EntryTrait::DirPlace});
    shown.list({shown.file("f"), shown.vfs.add("/home/dir/d", Entry::Dir), place}, shown.dir);
    const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(model.index(0, 0).flags(), plain | Qt::ItemIsDropEnabled); // the place
    QCOMPARE(model.index(1, 0).flags(), plain | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
    QCOMPARE(model.index(2, 0).flags(), plain | Qt::ItemIsDragEnabled);
    QCOMPARE(model.index(1, 1).flags(), plain);
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::ItemIsEnabled));
    model.rebuildWithMode(Model::DesktopMode);
    QVERIFY(model.index(0, 0).flags() & Qt::ItemIsDragEnabled);

    QVERIFY(!model.parent(model.index(1, 0)).isValid());
    QVERIFY(!model.hasChildren(model.index(1, 0)));
    QVERIFY(model.canFetchMore(model.index(1, 0))); // a directory that nobody listed
    QVERIFY(!model.canFetchMore(model.index(2, 0)));
}

void ModelTest::collectsDragData()
{
    TestTree tree({"a", "b"});
    Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
    QSignalSpy listed(&model, &Model::dirListed);
    model.rebuild(tree.entry());
    QVERIFY(listed.wait());
    const QModelIndexList indexes = {model.index(1, 0), model.index(1, 1), QModelIndex(), model.index(0, 1),
                                     model.index(1, 0)};
    const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
    QCOMPARE(data->urls(), QList<QUrl>({QUrl::fromLocalFile(tree.path("b")), QUrl::fromLocalFile(tree.path("a"))}));
    QCOMPARE(fileNames(model.indexesToEntries(indexes)).mid(0, 1), QStringList({"b"}));
    QCOMPARE(model.indexesToEntries(indexes).size(), 2); // of the first column, twice
    QCOMPARE(model.mimeTypes(), QStringList({"text/uri-list", "text/uri-copy-list", "text/uri-move-list"}));
    QVERIFY(!model.dropMimeData(data.get(), Qt::CopyAction, 0, 0, QModelIndex()));
    QVERIFY(model.isHiddenChild(tree.add(".h/x/y")));
    QVERIFY(!model.isHiddenChild(tree.entry("a")));
}

void ModelTest::findsPaths()
{
    TestTree tree({"dir/f"});
    Model model(Model::ListMode, ModelFilter::AllEntries, nullptr);
    model.rebuild(tree.entry("dir"));
    QCOMPARE(model.pathIndexList(tree.entry("dir/f")), QModelIndexList({QModelIndex()})); // not listed yet
    QTRY_VERIFY(model.indexOfEntry(tree.entry("dir/f")).isValid());
    QCOMPARE(model.pathIndexList(tree.entry("dir/f")), QModelIndexList({model.index(0, 0)}));
    QCOMPARE(model.pathIndexList(tree.entry("dir")), QModelIndexList({QModelIndex()}));
    QCOMPARE(model.pathIndexList(tree.entry()), QModelIndexList());
}

void ModelTest::queuesRefinementForIcons()
{
    TestTree tree;
    tree.add("script", "#!/bin/sh\n");
    Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
    SignalLog log(&model);
    model.rebuild(tree.entry());
    QTRY_COMPARE(model.rowCount(), 1);
    log.take();
    auto *const item = static_cast<ModelItem *>(model.index(0, 0).internalPointer());
    for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole), int(Model::SortKeyRole)})
        model.index(0, 0).data(role);
    QVERIFY(item->needsRefine());
    const QString unrefined = model.index(0, 1).data().toString();
    QVERIFY(model.index(0, 0).data(Qt::DecorationRole).isValid());
    QVERIFY(!item->needsRefine());
    QTRY_COMPARE(log.log, QStringList({"layout"}));
    QVERIFY(model.index(0, 1).data().toString() != unrefined);
}

void ModelTest::streamsModes()
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << Model::TableMode << Model::Mode(-2);
    QCOMPARE(bytes.toHex(), QByteArray("00000008fffffffe"));
    Model::Mode first, second;
    QDataStream stream(bytes);
    stream >> first >> second;
    QCOMPARE(first, Model::TableMode);
    QCOMPARE(int(second), -2);
}

/// Keeps the rows of a model by its signals alone, and holds them against the model after thousands of events.
void ModelTest::signalsAloneRebuildTheRows()
{
    Shown shown;
    Model &model = *shown.model;
    QStringList shadow;
    QObject context;
    const auto pathOf = [&](int row) { return model.entryByIndex(model.index(row, 0)).path(); };
    connect(&model, &Model::rowsInserted, &context, [&](const QModelIndex &, int first, int last) {
        for (int row = first; row <= last; ++row)
            shadow.insert(row, pathOf(row));
    });
    connect(&model, &Model::rowsRemoved, &context, [&](const QModelIndex &, int first, int last) {
        shadow.erase(shadow.begin() + first, shadow.begin() + last + 1);
    });
    connect(&model, &Model::modelReset, &context, [&] {
        shadow.clear();
        for (int row = 0; row < model.rowCount(); ++row)
            shadow.append(pathOf(row));
    });

    QRandomGenerator random(5);
    model.rebuild(shown.dir);
    for (int i = 0; i < 6000; ++i) {
        const QString name = QStringLiteral("n%1").arg(random.bounded(900));
        const int what = random.bounded(1000);
        if (what == 0)
            model.sort(0, random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
        else if (what == 1)
            shown.tell(&EntryWatcher::entryReset, shown.dir);
        if (i == 0 || what < 4) {
            EntryList children;
            for (int n = random.bounded(700); n > 0; --n)
                children.append(shown.file(QStringLiteral("n%1").arg(random.bounded(900))));
            shown.list(children, shown.dir);
        }
        shown.tell(what % 7 < 3       ? &EntryWatcher::entryDeleted
                       : what % 7 < 6 ? &EntryWatcher::entryCreated
                                      : &EntryWatcher::entryChanged,
                   shown.vfs.add("/home/dir/" + name, random.bounded(9) ? Entry::File : Entry::Dir));
        if (i % 50 == 0) {
            QCOMPARE(model.rowCount(), shadow.size());
            for (int row = 0; row < shadow.size(); ++row)
                QCOMPARE(pathOf(row), shadow.at(row));
            for (int row = 0; row < shadow.size(); ++row)
                QCOMPARE(model.indexOfEntry(shown.vfs.entry(shadow.at(row))).row(), row);
            QCOMPARE(QSet<QString>(shadow.begin(), shadow.end()).size(), shadow.size());
        }
    }
    QVERIFY(shadow.size() > 100);
}

QTEST_MAIN(ModelTest)
#include "modeltest.moc"
