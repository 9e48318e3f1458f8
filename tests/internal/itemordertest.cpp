// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "models/itemcomparison.h"
#include "models/model_p.h"
#include "recordingplugin.h"
#include "treevfs.h"

#include <veskfm/entryviewparameters.h>
#include <veskfm/propertyenumerator.h>

#include <QDateTime>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>

using namespace VeskFM;

namespace
{

constexpr int valueColumn = 2;

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

} // namespace

class ItemOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_record.onValue = [this](const Entry &entry) { return m_values.value(entry.path()); };
    }

    void cleanup()
    {
        EntryViewParameters::ptr()->setNumericSortingEnabled(true);
        EntryViewParameters::ptr()->setLocaleSortingEnabled(false);
        QLocale::setDefault(QLocale::c());
    }

    void comparesPairs()
    {
        constexpr int place = 0, file = Entry::File, dir = Entry::Dir;
        struct
        {
            const char *what;
            const char *first;
            int firstKind;
            const char *second;
            int secondKind;
            const char *results; // of first and second, ascending and descending
            bool numeric = true;
            bool byLocale = false;
        } const rows[] = {
            {"numeric", "f9", file, "f10", file, "<>"},
            {"not numeric", "f9", file, "f10", file, "><", false},
            {"capitals first in C", "Z", file, "a", file, "<>", false},
            {"numeric by the C locale too", "f9", file, "f10", file, "<>", true, true},
            {"directories first in both orders", "z", dir, "a", file, "<<"},
            {"links among their targets", "a", Entry::DirLink, "b", dir, "<>"},
            {"archives before files", "z", Entry::Archive, "a", Entry::FileLink, "<<"},
            {"archives behind directories", "a", Entry::ArchiveLink, "z", dir, ">>"},
            {"unlisted kinds: higher numbers first", "z", 20000, "a", dir, "<<"},
            {"unlisted kinds: lower numbers last", "a", 1000, "z", file, ">>"},
            {"places first", "z", place, "a", dir, "<<"},
            {"places by index, not by name", "p2", place, "p1", place, "<<"},
            {"places of one index are equal", "p3", place, "p4", place, "=="},
        };
        m_vfs.places.order = {{"/p/p1", 5}, {"/p/p2", -1}, {"/p/p3", 7}, {"/p/p4", 7}};
        const auto make = [this](const QString &name, int kind) {
            return kind ? m_vfs.add(QLatin1String("/p/") + name, kind)
                        : m_vfs.add(QLatin1String("/p/") + name, Entry::File, {EntryTrait::Place});
        };

        for (const auto &row : rows) {
            EntryViewParameters::ptr()->setNumericSortingEnabled(row.numeric);
            EntryViewParameters::ptr()->setLocaleSortingEnabled(row.byLocale);
            ValueModel model(&m_enumerator);
            ModelItem parent(m_vfs.add("/p", Entry::Dir), &model, nullptr);
            const ModelItem a(make(row.first, row.firstKind), &model, &parent);
            const ModelItem b(make(row.second, row.secondKind), &model, &parent);
            QString results;
            for (const Model::SortOrder order : {Model::Ascending, Model::Descending}) {
                model.sortBy(0, order);
                const ItemComparison comparison(&parent);
                results += comparison.lessThan(&a, &b) ? "<" : comparison.lessThan(&b, &a) ? ">" : "=";
            }
            QVERIFY2(results == row.results, row.what);
        }
    }

    void sortsAsOneByOne_data()
    {
        QTest::addColumn<QVariantList>("values");
        QTest::addColumn<bool>("ofFilesOnly");
        QTest::addColumn<QList<int>>("types");
        QTest::addColumn<bool>("byLocale");
        const QList<int> usual = {Entry::File,    Entry::FileLink, Entry::Dir,
                                  Entry::DirLink, Entry::Archive,  Entry::ArchiveLink};
        const QList<int> unlisted = {Entry::File, Entry::Dir, 1000, 9999, 10007, 0, -5};
        const QList<int> circular = {Entry::Dir, Entry::Archive, 10002, Entry::File};
        const QVariantList texts(m_texts.cbegin(), m_texts.cend());
        const QVariantList numbers = {-3, -2, -1, 0, 1, 2, 3}, nothing = {QVariant(), QVariant(), QVariant()};
        const QVariantList reals = {-1.5, -0.0, 0.0, 0.5, 1.0}, big = {1ULL << 62, 1ULL << 63, 3ULL << 62};
        const QVariantList sizes = {0LL, 1LL, 1000000000000LL, 1000000000001LL, 1LL << 62};
        const QVariantList dates = {QDateTime::fromMSecsSinceEpoch(-2000), QDateTime::fromMSecsSinceEpoch(3000)};
        QTest::newRow("texts") << texts << false << usual << false;
        QTest::newRow("numbers") << numbers << false << usual << false;
        QTest::newRow("big numbers") << big << false << usual << false;
        QTest::newRow("sizes of files") << sizes << true << usual << false;
        QTest::newRow("reals with both zeros") << reals << false << usual << false;
        QTest::newRow("dates") << dates << false << usual << false;
        QTest::newRow("nothing to compare") << QVariantList{true, false, false} << false << usual << false;
        QTest::newRow("reals and no numbers") << reals + QVariantList{std::nan("")} << false << usual << false;
        QTest::newRow("numbers and nothing") << numbers + nothing << false << usual << false;
        QTest::newRow("numbers and texts") << numbers + texts << false << usual << false;
        QTest::newRow("by a real locale") << texts << false << usual << true;
        QTest::newRow("unlisted kinds") << texts << false << unlisted << false;
        QTest::newRow("a kind that makes groups go in circles") << texts << false << circular << false;
    }

    void sortsAsOneByOne()
    {
        QFETCH(QVariantList, values);
        QFETCH(bool, ofFilesOnly);
        QFETCH(QList<int>, types);
        QFETCH(bool, byLocale);
        const auto randomChild = [&] {
            const QString path = QStringLiteral("/%1/%2").arg(m_random.bounded(60)).arg(anyOf(m_texts)); // some twice
            if (m_vfs.nodes.contains(path))
                return m_vfs.nodes.value(path);
            m_vfs.places.order.insert(path, m_random.bounded(3));
            const int type = anyOf(types);
            const bool isFile = type == Entry::File || type == Entry::FileLink;
            m_values.insert(path, ofFilesOnly && !isFile ? QVariant() : anyOf(values));
            return m_random.bounded(15) ? m_vfs.add(path, type)
                                        : m_vfs.add(path, Entry::VirtualDir, {EntryTrait::Place});
        };
        QLocale::setDefault(byLocale ? QLocale(QLocale::German, QLocale::Germany) : QLocale::c());
        EntryViewParameters::ptr()->setLocaleSortingEnabled(byLocale);
        for (int round = 0; round < 300; ++round) {
            m_vfs.nodes.clear();
            m_vfs.add("/parent", Entry::Dir);
            const Entry shown = m_vfs.add("/parent/shown", Entry::Dir);
            EntryViewParameters::ptr()->setNumericSortingEnabled(m_random.bounded(4) != 0);
            const int property = m_random.bounded(4) ? valueColumn : 0;
            const bool withDotDot = m_random.bounded(3) == 0;
            EntryList former, delivered;
            for (int i = m_random.bounded(2) * m_random.bounded(8); i > 0; --i)
                former.append(randomChild());
            for (int i = m_random.bounded(40); i > 0; --i)
                delivered.append(m_random.bounded(25) ? randomChild() : m_vfs.parent(shown));

            ValueModel listed(&m_enumerator), literal(&m_enumerator);
            for (ValueModel *model : {&listed, &literal}) {
                model->sortBy(property, round % 2 ? Model::Ascending : Model::Descending);
                model->rebuild(shown);
                fillOneByOne(model, former); // as in a tree that was opened before its listing came
                if (round % 5 == 4)          // the order changed meanwhile, so that they are not sorted by it
                    model->sortBy(property, round % 2 ? Model::Descending : Model::Ascending);
                model->privatePart()->showDotDot = withDotDot;
            }
            listed.privatePart()->onDirListed(shown, VFS::PlainListing, delivered);
            fillOneByOne(&literal, delivered);
            ModelItem *const root = listed.privatePart()->root.get();
            QCOMPARE(paths(root), paths(literal.privatePart()->root.get()));
            QCOMPARE(root->hasNodeChilds(), literal.privatePart()->root->hasNodeChilds());

            listed.sortBy(valueColumn, m_random.bounded(2) ? Model::Ascending : Model::Descending);
            QList<ModelItem *> sorted = root->childs();
            const ItemComparison comparison(root);
            std::stable_sort(sorted.begin(), sorted.end(),
                             [&](const ModelItem *a, const ModelItem *b) { return comparison.lessThan(a, b); });
            root->resort();
            QCOMPARE(root->childs(), sorted);
        }
    }

private:
    template <typename List> typename List::value_type anyOf(const List &list)
    {
        return list.at(m_random.bounded(list.size()));
    }

    /// As the watcher's answer was worked through entry by entry, each with a search of its own.
    void fillOneByOne(ValueModel *model, const EntryList &entries)
    {
        ModelPrivate *const d = model->privatePart();
        ModelItem *const root = d->root.get();
        if (d->showDotDot) {
            auto *const dotDot = new ModelItem(m_vfs.parent(root->entry()), model, root);
            dotDot->setDotDotDir(true);
            root->insertChild(root->estimatedChildIndex(dotDot), dotDot);
        }
        for (const Entry &entry : entries) {
            if (!root->hasChildItem(entry) && d->acceptEntry(entry))
                d->insertItemSilently(root, entry);
        }
    }

    const QStringList m_texts = {"a", "a1", "a01", "a10", "b", "B", "Report 7", "Report 07", "é", "", "ж"};
    TreeVfs m_vfs;
    QHash<QString, QVariant> m_values; // by path: what the column of the plug-in is sorted by
    SetRecord m_record;
    RecordingPlugin m_plugin{1, &m_record};
    PropertyEnumerator m_enumerator{{&m_plugin}};
    QRandomGenerator m_random{7};
};

QTEST_MAIN(ItemOrderTest)
#include "itemordertest.moc"
