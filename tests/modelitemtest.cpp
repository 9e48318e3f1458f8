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
    void worksWithoutModelAndRefusesMisplacedChildren()
    {
        ModelItem parent(m_vfs.add("/d", Entry::Dir), nullptr, nullptr);
        auto *const dir = new ModelItem(m_vfs.add("/d/z", Entry::Dir), nullptr, &parent);
        auto *const file = new ModelItem(m_vfs.add("/d/a"), nullptr, &parent);
        parent.insertChild(-1, file);
        parent.insertChild(1, file);
        parent.insertChild(0, nullptr);
        parent.removeChild(nullptr);
        parent.removeChild(file);
        QVERIFY(parent.childCount() == 0 && !parent.child(0) && !parent.child(-1));
        parent.insertChild(parent.estimatedChildIndex(file), file);
        QVERIFY(!parent.hasNodeChilds());
        parent.insertChild(parent.estimatedChildIndex(dir), dir);
        QVERIFY(parent.hasNodeChilds());
        QCOMPARE(parent.childs(), QList<ModelItem *>({dir, file}));
        QCOMPARE(parent.estimatedChildIndex(nullptr), -1);
        QCOMPARE(parent.estimatedChildIndex(file), -1); // it stands there itself
        QVERIFY(!file->data(Qt::DisplayRole, 0).isValid());
        dir->refresh(); // none of these has anything to do
        dir->delayedRefine();
        dir->updatePresentation();
        parent.resort();
        QCOMPARE(file->row(), 1);
    }

    void keepsRowsThroughManyChanges()
    {
        ModelItem parent(m_vfs.add("/d", Entry::Dir), nullptr, nullptr);
        QList<ModelItem *> expected;
        QRandomGenerator random(3);
        const auto insert = [&](int row) {
            expected.insert(row, new ModelItem(numbered(1), nullptr, &parent));
            parent.insertChild(row, expected.at(row));
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
        for (int row = 0; row < expected.size(); ++row)
            QCOMPARE(expected.at(row)->row(), row);
        while (!expected.isEmpty())
            remove(random.bounded(expected.size()));
        QCOMPARE(parent.childCount(), 0);
    }

    void findsByEntry()
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

        twice->setDotDotDir(true);
        QVERIFY(!top.hasChildItem(numbered(1))); // the row to the parent counts only beside names
        QCOMPARE(top.find(numbered(1)), below);
        model.rebuildWithPropertySortIndex(1, Model::Ascending);
        QCOMPARE(top.child(numbered(1)), twice);
    }

    void holdsAndRefinesItsValues()
    {
        PropertyEnumerator *const enumerator = Props::ptr()->propertyEnumerator();
        const int idle = enumerator->idleHolderCount();
        Model model(Model::ListMode, ModelFilter::AllEntries, nullptr);
        ModelItem item(numbered(77), &model, nullptr);
        QVERIFY(item.needsRefine());
        item.delayedRefine();
        QVERIFY(!item.needsRefine());
        item.refresh();
        QVERIFY(item.needsRefine());
        item.refine();
        QVERIFY(item.dataHolder()->isRefined() && !item.needsRefine());

        auto sibling = std::make_unique<ModelItem>(item.entry(), &model, nullptr);
        QCOMPARE(sibling->dataHolder(), item.dataHolder());
        QVERIFY(!sibling->needsRefine());
        const int shared = item.dataHolder()->referenceCount();
        sibling.reset();
        QCOMPARE(item.dataHolder()->referenceCount(), shared - 1);
        QCOMPARE(enumerator->idleHolderCount(), idle);
        model.rebuildWithPropertySortIndex(1, Model::Ascending);
        QVERIFY(ModelItem(item.entry(), &model, nullptr).needsRefine()); // sorted by anything but the name
        QVERIFY(!item.needsRefine()); // though the values they share have to be computed anew
    }

private:
    Entry numbered(int number) { return m_vfs.add(QStringLiteral("/%1").arg(number)); }

    TreeVfs m_vfs;
};

QTEST_MAIN(ModelItemTest)
#include "modelitemtest.moc"
