// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "models/itemcomparison.h"
#include "models/model_p.h"
#include "treevfs.h"

#include <veskfm/entrypropertyset.h>
#include <veskfm/entryviewparameters.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/propsplugin.h>

#include <QDateTime>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace VeskFM;

namespace
{

QHash<QString, QVariant> sortValues; // by path: what the column of the plug-in below is sorted by
constexpr int valueColumn = 2;

class ValueSet : public EntryPropertySet
{
public:
    void prepare(const Entry &) override {}
    QVariant value(const Entry &entry, int, int role) const override
    {
        return role == Model::SortKeyRole ? sortValues.value(entry.path()) : QVariant();
    }
};

class ValuePlugin : public PropsPlugin
{
public:
    QString pluginName() const override { return QStringLiteral("values"); }
    QString pluginDescription() const override { return {}; }
    QString propsPageTitle() const override { return {}; }
    int propertySetSize() const override { return 1; }
    QVariant propertyHeaderData(int, int) override { return QStringLiteral("Value"); }
    bool isPropertySortable(int) override { return true; }
    EntryPropertySet *createPropertySet() const override { return new ValueSet; }
};

/// A model whose third column is that of the plug-in.
class ValueModel : public Model
{
public:
    explicit ValueModel(PropertyEnumerator *enumerator)
        : Model(TableMode, ModelFilter::AllEntries | ModelFilter::HiddenEntries, nullptr)
    {
        d->propertyEnumerator = enumerator;
    }
    ModelPrivate *privatePart() { return d.get(); }
    void sortBy(int property, SortOrder order)
    {
        d->propertySortIndex = property;
        d->sortOrder = order;
    }
};

QStringList paths(const ModelItem *item)
{
    QStringList list;
    const QList<ModelItem *> children = item->childs();
    for (const ModelItem *child : children)
        list.append((child->isDotDotDir() ? QStringLiteral("..=") : QString()) + child->entry().path());
    return list;
}

/// What one random listing is made of.
struct Kinds
{
    const char *name;
    QList<int> types;
    std::function<QVariant(QRandomGenerator &)> value;
    bool filesOnly = false; // nothing else has a value
};

QVariant shortText(QRandomGenerator &random)
{
    static const QStringList texts = {"a", "a1", "a01", "a10", "b", "B", "Report 7", "Report 07", "é", "", "ж"};
    return texts.at(random.bounded(texts.size()));
}

QList<Kinds> allKinds()
{
    const QList<int> usual = {Entry::File,    Entry::FileLink, Entry::Dir,
                              Entry::DirLink, Entry::Archive,  Entry::ArchiveLink};
    const QList<int> unusual = {Entry::File, Entry::Dir, Entry::Archive, Entry::VirtualDir, 9999, 10007, 0, -5};
    const auto number = [](QRandomGenerator &random) { return random.bounded(-3, 4); };
    const auto real = [](QRandomGenerator &random) {
        return (random.bounded(2) ? -1.0 : 1.0) * (random.bounded(3) / 2.0); // zeros of both signs
    };
    return {
        {"texts", usual, shortText},
        {"unlisted kinds", unusual, shortText},
        {"a kind that makes groups go in circles", {Entry::Dir, Entry::Archive, 10002, Entry::File}, shortText},
        {"numbers", usual, [=](QRandomGenerator &random) { return QVariant(number(random)); }},
        {"big numbers", usual, [](QRandomGenerator &random) { return QVariant(qulonglong(random.bounded(3)) << 62); }},
        {"sizes", usual, [=](QRandomGenerator &random) { return QVariant(qlonglong(number(random)) << 40); }},
        {"reals with both zeros", usual, [=](QRandomGenerator &random) { return QVariant(real(random)); }},
        {"reals and no numbers", usual,
         [=](QRandomGenerator &random) { return QVariant(random.bounded(3) ? real(random) : std::nan("")); }},
        {"dates", usual,
         [=](QRandomGenerator &random) { return QVariant(QDateTime::fromMSecsSinceEpoch(number(random) * 1000)); }},
        {"nothing to compare", usual, [](QRandomGenerator &random) { return QVariant(random.bounded(2) == 1); }},
        {"numbers and nothing", usual,
         [=](QRandomGenerator &random) { return random.bounded(2) ? QVariant(number(random)) : QVariant(); }},
        {"numbers and texts", usual,
         [=](QRandomGenerator &random) { return random.bounded(2) ? QVariant(number(random)) : shortText(random); }}};
}

} // namespace

class ItemOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void comparesPairs_data();
    void comparesPairs();
    void oneListingEqualsInsertingOneByOne_data();
    void oneListingEqualsInsertingOneByOne();
    void resortIsStable();

private:
    Entry randomChild(QRandomGenerator &random, const Kinds &kinds);

    TreeVfs m_vfs;
    ValuePlugin m_plugin;
    PropertyEnumerator m_enumerator{{&m_plugin}};
};

void ItemOrderTest::cleanup()
{
    sortValues.clear();
    EntryViewParameters::ptr()->setNumericSortingEnabled(true);
    EntryViewParameters::ptr()->setLocaleSortingEnabled(false);
    QLocale::setDefault(QLocale::c());
}

void ItemOrderTest::comparesPairs_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("firstKind"); // 0 is a place
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("secondKind");
    QTest::addColumn<bool>("numeric");
    QTest::addColumn<bool>("byLocale");
    QTest::addColumn<QString>("ascending"); // how first and second compare
    QTest::addColumn<QString>("descending");

    const int file = Entry::File;
    QTest::newRow("numeric") << "file9" << file << "file10" << file << true << false << "<"
                             << ">";
    QTest::newRow("not numeric") << "file9" << file << "file10" << file << false << false << ">"
                                 << "<";
    QTest::newRow("C collation has capitals first") << "Z" << file << "a" << file << false << false << "<"
                                                    << ">";
    QTest::newRow("numeric in the C locale too, though by locale")
        << "f9" << file << "f10" << file << true << true << "<"
        << ">";
    QTest::newRow("directories first in both orders") << "z" << int(Entry::Dir) << "a" << file << true << false << "<"
                                                      << "<";
    QTest::newRow("links among their targets")
        << "a" << int(Entry::DirLink) << "b" << int(Entry::Dir) << true << false << "<"
        << ">";
    QTest::newRow("archives between") << "z" << int(Entry::Archive) << "a" << int(Entry::FileLink) << true << false
                                      << "<"
                                      << "<";
    QTest::newRow("archives behind directories")
        << "a" << int(Entry::ArchiveLink) << "z" << int(Entry::Dir) << true << false << ">"
        << ">";
    QTest::newRow("unlisted kinds: the higher number first")
        << "z" << 20000 << "a" << int(Entry::Dir) << true << false << "<"
        << "<";
    QTest::newRow("unlisted kinds: low ones last") << "a" << 1000 << "z" << file << true << false << ">"
                                                   << ">";
    QTest::newRow("places first") << "z" << 0 << "a" << int(Entry::Dir) << true << false << "<"
                                  << "<";
    QTest::newRow("places by index, not by name") << "place2" << 0 << "place1" << 0 << true << false << "<"
                                                  << "<";
    QTest::newRow("places of one index are equal") << "place3" << 0 << "place4" << 0 << true << false << "="
                                                   << "=";
}

void ItemOrderTest::comparesPairs()
{
    QFETCH(QString, first);
    QFETCH(int, firstKind);
    QFETCH(QString, second);
    QFETCH(int, secondKind);
    QFETCH(bool, numeric);
    QFETCH(bool, byLocale);
    EntryViewParameters::ptr()->setNumericSortingEnabled(numeric);
    EntryViewParameters::ptr()->setLocaleSortingEnabled(byLocale);
    m_vfs.places.order = {{"/p/place1", 5}, {"/p/place2", -1}, {"/p/place3", 7}, {"/p/place4", 7}};
    const auto make = [this](const QString &name, int kind) {
        return kind ? m_vfs.add("/p/" + name, kind) : m_vfs.add("/p/" + name, Entry::File, {EntryTrait::Place});
    };

    ValueModel model(&m_enumerator);
    ModelItem parent(m_vfs.add("/p", Entry::Dir), &model, nullptr);
    const ModelItem a(make(first, firstKind), &model, &parent);
    const ModelItem b(make(second, secondKind), &model, &parent);
    for (const Model::SortOrder order : {Model::Ascending, Model::Descending}) {
        model.sortBy(0, order);
        const ItemComparison comparison(&parent);
        const QString result = comparison.lessThan(&a, &b) ? "<" : comparison.lessThan(&b, &a) ? ">" : "=";
        QTEST(result, order == Model::Ascending ? "ascending" : "descending");
    }
}

Entry ItemOrderTest::randomChild(QRandomGenerator &random, const Kinds &kinds)
{
    const int number = random.bounded(60); // some come twice
    const QString path = QStringLiteral("/%1/%2").arg(number).arg(shortText(random).toString());
    if (m_vfs.nodes.contains(path))
        return m_vfs.nodes.value(path);
    if (random.bounded(15) == 0) {
        m_vfs.places.order.insert(path, random.bounded(3));
        return m_vfs.add(path, Entry::VirtualDir, {EntryTrait::Place});
    }
    const int type = kinds.types.at(random.bounded(kinds.types.size()));
    if (!kinds.filesOnly || type == Entry::File || type == Entry::FileLink)
        sortValues.insert(path, kinds.value(random));
    return m_vfs.add(path, type);
}

void ItemOrderTest::oneListingEqualsInsertingOneByOne_data()
{
    QTest::addColumn<int>("kinds");
    QTest::addColumn<bool>("byLocale");
    for (int i = 0; i < allKinds().size(); ++i)
        QTest::newRow(allKinds().at(i).name) << i << false;
    QTest::newRow("texts in a real locale") << 0 << true;
}

void ItemOrderTest::oneListingEqualsInsertingOneByOne()
{
    QFETCH(int, kinds);
    QFETCH(bool, byLocale);
    if (byLocale)
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EntryViewParameters::ptr()->setLocaleSortingEnabled(byLocale);

    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        m_vfs.nodes.clear();
        m_vfs.add("/", Entry::Dir);
        m_vfs.add("/parent", Entry::Dir);
        const Entry shown = m_vfs.add("/parent/shown", Entry::Dir);
        const bool withDotDot = random.bounded(3) == 0;
        const Model::SortOrder order = random.bounded(2) ? Model::Ascending : Model::Descending;
        const int property = random.bounded(4) ? valueColumn : 0;
        EntryViewParameters::ptr()->setNumericSortingEnabled(random.bounded(4) != 0);

        EntryList former, delivered;
        for (int i = random.bounded(2) * random.bounded(8); i > 0; --i)
            former.append(randomChild(random, allKinds().at(kinds)));
        for (int i = random.bounded(40); i > 0; --i)
            delivered.append(random.bounded(25) ? randomChild(random, allKinds().at(kinds)) : m_vfs.parent(shown));

        ValueModel listed(&m_enumerator), literal(&m_enumerator);
        for (ValueModel *model : {&listed, &literal}) {
            model->setShowDotDot(withDotDot);
            model->sortBy(property, order);
            model->rebuild(shown);
            ModelItem *const root = model->privatePart()->root.get();
            for (const Entry &entry : qAsConst(former)) { // as a tree that was opened before its listing came
                if (!root->hasChildItem(entry))
                    model->privatePart()->insertItemSilently(root, entry);
            }
            if (round % 5 == 4) // the order changed meanwhile, so that they are not sorted by it
                model->sortBy(property, order == Model::Ascending ? Model::Descending : Model::Ascending);
        }
        listed.privatePart()->onDirListed(shown, VFS::PlainListing, delivered);

        ModelPrivate *const d = literal.privatePart();
        if (withDotDot) {
            auto *const dotDot = new ModelItem(m_vfs.parent(shown), &literal, d->root.get());
            dotDot->setDotDotDir(true);
            d->root->insertChild(d->root->estimatedChildIndex(dotDot), dotDot);
        }
        for (const Entry &entry : qAsConst(delivered)) {
            if (!d->root->hasChildItem(entry) && d->acceptEntry(entry))
                d->insertItemSilently(d->root.get(), entry);
        }
        QCOMPARE(paths(listed.privatePart()->root.get()), paths(d->root.get()));
        QCOMPARE(listed.privatePart()->root->hasNodeChilds(), d->root->hasNodeChilds());
    }
}

void ItemOrderTest::resortIsStable()
{
    QRandomGenerator random(11);
    for (const Kinds &kinds : allKinds()) {
        for (int round = 0; round < 60; ++round) {
            m_vfs.nodes.clear();
            ValueModel model(&m_enumerator);
            ModelItem parent(m_vfs.add("/p", Entry::Dir), &model, nullptr);
            for (int i = 0; i < 40; ++i)
                parent.insertChild(i, new ModelItem(randomChild(random, kinds), &model, &parent));
            model.sortBy(valueColumn, round % 2 ? Model::Ascending : Model::Descending);

            QList<ModelItem *> expected = parent.childs();
            const ItemComparison comparison(&parent);
            std::stable_sort(expected.begin(), expected.end(), [&comparison](const ModelItem *a, const ModelItem *b) {
                return comparison.lessThan(a, b);
            });
            parent.resort();
            QCOMPARE(parent.childs(), expected);
        }
    }
}

QTEST_MAIN(ItemOrderTest)
#include "itemordertest.moc"
