// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "visiblerows.h"

#include <QAbstractItemModelTester>
#include <QStandardItemModel>
#include <QtTest>

#include <random>

/// Rows come, go, open and close at random; what is listed has to be what a walk over the tree finds each time, and what
/// somebody has who knows the signals alone.
class VisibleRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tree.clear();
        m_items = {m_tree.invisibleRootItem()};
        m_expanded = {m_tree.invisibleRootItem()};
    }

    void followsTheTree()
    {
        VisibleRows rows(&m_tree);
        const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::Fatal);
        QStringList heard;
        connect(&rows, &VisibleRows::rowsInserted, this, [&](const QModelIndex &, int first, int last) {
            for (int row = first; row <= last; ++row)
                heard.insert(row, rows.index(row, 0).data().toString());
        });
        connect(&rows, &VisibleRows::rowsRemoved, this, [&](const QModelIndex &, int first, int last) {
            heard.erase(heard.begin() + first, heard.begin() + last + 1);
        });
        for (int step = 0; step < 3000; ++step) {
            QStandardItem *const item = m_items.at(below(m_items.size()));
            const int kind = below(8);
            if (kind < 3)
                insert(item, below(item->rowCount() + 1));
            else if (kind == 3 && item->rowCount() > 0)
                remove(item, below(item->rowCount()));
            else if (item->index().isValid())
                toggle(&rows, item);
            QStringList expected;
            collect(m_tree.invisibleRootItem(), &expected);
            QCOMPARE(heard, expected);
            for (int row = 0; row < expected.size(); ++row) {
                const QModelIndex index = rows.index(row, 0);
                QCOMPARE(index.data().toString(), expected.at(row));
                QCOMPARE(rows.mapFromSource(rows.mapToSource(index)), index);
            }
        }
    }

    void expandsAllThereIs()
    {
        VisibleRows rows(&m_tree);
        for (int i = 0; i < 200; ++i)
            insert(m_items.at(below(m_items.size())), 0);
        rows.expandAll();
        QCOMPARE(rows.rowCount(), m_items.size() - 1);
        const QModelIndex top = m_tree.index(m_tree.rowCount() - 1, 0);
        rows.collapse(top);
        rows.expandAll(top);
        QCOMPARE(rows.rowCount(), m_items.size() - 1);
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }

    void insert(QStandardItem *parent, int row)
    {
        auto *const item = new QStandardItem(QString::number(++m_serial));
        for (int i = below(3); i > 0; --i)
            item->appendRow(new QStandardItem(QString::number(++m_serial)));
        parent->insertRow(row, item);
        note(item);
    }

    void note(QStandardItem *item)
    {
        m_items.append(item);
        for (int i = 0; i < item->rowCount(); ++i)
            note(item->child(i));
    }

    void remove(QStandardItem *parent, int row)
    {
        forget(parent->child(row));
        parent->removeRow(row);
    }

    void forget(QStandardItem *item)
    {
        m_items.removeOne(item);
        m_expanded.remove(item);
        for (int i = 0; i < item->rowCount(); ++i)
            forget(item->child(i));
    }

    void toggle(VisibleRows *rows, QStandardItem *item)
    {
        // What nobody has seen cannot be opened: its row is not known.
        bool known = true;
        for (QStandardItem *above = item->parent(); above; above = above->parent())
            known = known && m_expanded.contains(above);
        if (!known)
            return;
        if (m_expanded.remove(item)) {
            rows->collapse(item->index());
        } else {
            m_expanded.insert(item);
            rows->expand(item->index());
        }
    }

    void collect(QStandardItem *parent, QStringList *texts)
    {
        for (int i = 0; i < parent->rowCount(); ++i) {
            texts->append(parent->child(i)->text());
            if (m_expanded.contains(parent->child(i)))
                collect(parent->child(i), texts);
        }
    }

    QStandardItemModel m_tree;
    QVector<QStandardItem *> m_items;
    QSet<QStandardItem *> m_expanded;
    std::mt19937 m_random{20261121};
    int m_serial = 0;
};

QTEST_MAIN(VisibleRowsTest)
#include "visiblerowstest.moc"
