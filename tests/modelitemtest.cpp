// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "treevfs.h"

#include <veskfm/model.h>
#include <veskfm/modelitem.h>
#include <veskfm/propertydataholder.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>

#include <QRandomGenerator>
#include <QTest>

#include <memory>

using namespace VeskFM;

class ModelItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsItsEntryIs();
    void worksWithoutModel();
    void refusesMisplacedChildren();
    void keepsRowsThroughManyChanges();
    void findsByEntry();
    void childIgnoresTheDotDotRowOnlyBesideNames();
    void holdsItsValuesAsLongAsItLives();
    void answersListingAndDotDotItself();
    void refreshesWhenSortedByAnythingButTheName();

private:
    Entry numbered(int number) { return m_vfs.add(QStringLiteral("/%1").arg(number)); }

    TreeVfs m_vfs;
};

void ModelItemTest::startsAsItsEntryIs()
{
    Model model(Model::ListMode, ModelFilter::AllEntries, nullptr);
    QVERIFY(ModelItem(numbered(1), &model, nullptr).isChildsInited()); // a file never needs listing
    ModelItem item(m_vfs.add("/it", Entry::Dir), &model, nullptr);
    QVERIFY(!item.isChildsInited() && !item.isChildsIniting() && !item.hasNodeChilds() && !item.isDotDotDir());
    QVERIFY(item.needsRefine());
    item.delayedRefine();
    QVERIFY(!item.needsRefine());
    item.refresh();
    QVERIFY(item.needsRefine());
    item.refine();
    QVERIFY(!item.needsRefine());
    QVERIFY(item.dataHolder()->isRefined());
}

void ModelItemTest::worksWithoutModel()
{
    ModelItem parent(m_vfs.add("/d", Entry::Dir), nullptr, nullptr);
    auto *const dir = new ModelItem(m_vfs.add("/d/z", Entry::Dir), nullptr, &parent);
    auto *const file = new ModelItem(m_vfs.add("/d/a"), nullptr, &parent);
    parent.insertChild(parent.estimatedChildIndex(file), file);
    QVERIFY(!parent.hasNodeChilds());
    parent.insertChild(parent.estimatedChildIndex(dir), dir);
    QVERIFY(parent.hasNodeChilds());
    QCOMPARE(parent.childs(), QList<ModelItem *>({dir, file}));
    QCOMPARE(parent.find(file->entry()), file);
    QCOMPARE(parent.child(dir->entry()), dir);
    QVERIFY(!parent.child(parent.entry()));

    QVERIFY(!file->data(Qt::DisplayRole, 0).isValid());
    QCOMPARE(ModelItem::columnCount(nullptr), 0);
    QVERIFY(!ModelItem::headerData(nullptr, 0, Qt::DisplayRole).isValid());
    dir->refresh(); // none of these has anything to do
    dir->refine();
    dir->delayedRefine();
    dir->refinePropertyAtIndex(1);
    dir->updatePresentation();
    parent.resort();
    QCOMPARE(file->row(), 1);
}

void ModelItemTest::refusesMisplacedChildren()
{
    ModelItem parent(m_vfs.add("/d", Entry::Dir), nullptr, nullptr);
    std::unique_ptr<ModelItem> child(new ModelItem(numbered(1), nullptr, &parent));
    parent.insertChild(-1, child.get());
    parent.insertChild(1, child.get());
    parent.insertChild(0, nullptr);
    parent.removeChild(nullptr);
    parent.removeChild(child.get());
    QCOMPARE(parent.childCount(), 0);
    QVERIFY(!parent.child(0) && !parent.child(-1));
    QCOMPARE(parent.estimatedChildIndex(nullptr), -1);
    QCOMPARE(parent.estimatedChildIndex(child.get()), 0);
    parent.insertChild(0, child.get());
    QCOMPARE(parent.estimatedChildIndex(child.get()), -1); // it stands there itself
    parent.removeChild(child.get());
    QCOMPARE(parent.childCount(), 0);
    QCOMPARE(child->parent(), &parent);
}

void ModelItemTest::keepsRowsThroughManyChanges()
{
    ModelItem parent(m_vfs.add("/d", Entry::Dir), nullptr, nullptr);
    QList<ModelItem *> expected;
    QRandomGenerator random(3);
    const auto insert = [&](int row) {
        auto *const item = new ModelItem(numbered(1), nullptr, &parent);
        parent.insertChild(row, item);
        expected.insert(row, item);
    };
    const auto remove = [&](int row) {
        const std::unique_ptr<ModelItem> item(parent.child(row));
        parent.removeChild(item.get());
        QCOMPARE(expected.takeAt(row), item.get());
        QCOMPARE(item->row(), -1);
    };
    for (int i = 0; i < 1500; ++i)
        insert(expected.size()); // at the end only
    for (int i = 0; i < 3000; ++i)
        random.bounded(3) ? insert(random.bounded(expected.size() + 1)) : remove(random.bounded(expected.size()));
    for (int i = 0; i < 700; ++i)
        remove(0); // whole blocks go
    QCOMPARE(parent.childs(), expected);
    for (int row = 0; row < expected.size(); ++row) {
        QCOMPARE(parent.child(row), expected.at(row));
        QCOMPARE(expected.at(row)->row(), row);
    }
    while (!expected.isEmpty())
        remove(random.bounded(expected.size()));
    QCOMPARE(parent.childCount(), 0);
}

void ModelItemTest::findsByEntry()
{
    Model model(Model::ListMode, ModelFilter::AllEntries, nullptr);
    ModelItem top(numbered(0), &model, nullptr);
    const auto add = [&](ModelItem *parent, int number) {
        auto *const item = new ModelItem(numbered(number), &model, parent);
        parent->insertChild(parent->childCount(), item);
        return item;
    };
    ModelItem *const first = add(&top, 1);
    ModelItem *const second = add(&top, 2);
    ModelItem *const below = add(second, 1);
    ModelItem *const twice = add(&top, 1);
    ModelItem *const deep = add(first, 0);

    QCOMPARE(top.finds(numbered(1)), QList<ModelItem *>({first, below, twice}));
    QCOMPARE(top.finds(numbered(0)), QList<ModelItem *>({&top, deep}));
    QCOMPARE(second->finds(numbered(1)), QList<ModelItem *>({below}));
    QCOMPARE(top.child(numbered(1)), first);
    QCOMPARE(below->exploreIndexPath(), QList<int>({1, 0}));
    top.removeChild(first);
    QCOMPARE(top.find(numbered(1)), below);
    QCOMPARE(top.finds(numbered(0)), QList<ModelItem *>({&top})); // what is below went along
    QCOMPARE(first->finds(numbered(0)), QList<ModelItem *>({deep}));
    delete first;
    QCOMPARE(top.child(numbered(1)), twice);
}

void ModelItemTest::childIgnoresTheDotDotRowOnlyBesideNames()
{
    Model model(Model::ListMode, ModelFilter::AllEntries, nullptr);
    ModelItem top(numbered(0), &model, nullptr);
    auto *const dotDot = new ModelItem(numbered(1), &model, &top);
    dotDot->setDotDotDir(true);
    top.insertChild(0, dotDot);
    QVERIFY(!top.hasChildItem(numbered(1)));
    QCOMPARE(top.find(numbered(1)), dotDot);
    model.rebuildWithPropertySortIndex(1, Model::Ascending);
    QCOMPARE(top.child(numbered(1)), dotDot);
}

void ModelItemTest::holdsItsValuesAsLongAsItLives()
{
    PropertyEnumerator *const enumerator = Props::ptr()->propertyEnumerator();
    Model model(Model::ListMode, ModelFilter::AllEntries, nullptr);
    const int idle = enumerator->idleHolderCount();
    auto item = std::make_unique<ModelItem>(numbered(77), &model, nullptr);
    QCOMPARE(item->dataHolder()->referenceCount(), 1);
    const ModelItem other(numbered(77), &model, nullptr);
    QCOMPARE(other.dataHolder(), item->dataHolder());
    item.reset();
    QCOMPARE(other.dataHolder()->referenceCount(), 1);
    QCOMPARE(enumerator->idleHolderCount(), idle);
}

void ModelItemTest::answersListingAndDotDotItself()
{
    Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
    ModelItem item(m_vfs.add("/parent", Entry::Dir), &model, nullptr);
    QCOMPARE(item.description(), QStringLiteral("parent"));
    item.setChildsIniting(true);
    QCOMPARE(item.data(Model::ListingRole, 1), QVariant(true));
    item.setDotDotDir(true);
    QCOMPARE(item.description(), QStringLiteral(".."));
    QCOMPARE(item.data(Model::SortKeyRole, 0), QVariant("parent")); // it is not sorted by its text
    QVERIFY(item.data(Qt::DisplayRole, 1) != QVariant(".."));
}

void ModelItemTest::refreshesWhenSortedByAnythingButTheName()
{
    Model model(Model::ListMode, ModelFilter::AllEntries, nullptr);
    ModelItem item(numbered(5), &model, nullptr);
    item.refine();
    const ModelItem sibling(item.entry(), &model, nullptr);
    QVERIFY(item.dataHolder()->isRefined());
    QVERIFY(!sibling.needsRefine());
    model.rebuildWithPropertySortIndex(1, Model::Ascending);
    const ModelItem late(item.entry(), &model, nullptr);
    QVERIFY(late.needsRefine());
    QVERIFY(!item.needsRefine()); // though the values they share have to be computed anew
}

QTEST_MAIN(ModelItemTest)
#include "modelitemtest.moc"
