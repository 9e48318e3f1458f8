// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "recordingplugin.h"
#include "testtree.h"

#include <veskfm/propertydataholder.h>
#include <veskfm/propertyenumerator.h>
#include <veskplatform/veskicon.h>

#include <QTest>

using namespace VeskFM;

namespace
{
using Emblems = QMap<Qt::Corner, QString>;
QList<Emblems> emblemRequests;
} // namespace

// Stands in front of the platform's: what matters here is what it is asked for.
QIcon VeskIcon::withEmblems(const QIcon &icon, const Emblems &emblems)
{
    emblemRequests.append(emblems);
    return icon;
}

class PropertyDataHolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lastReferenceTakesTheMasks()
    {
        PropertyDataHolder holder(3);
        QVERIFY(PropertyDataHolder(0).isRefined());
        QVERIFY(!holder.isRefined());
        holder.incrementReferenceCount();
        holder.incrementReferenceCount();
        holder.setRefined();
        QVERIFY(holder.decrementReferenceCount());
        QVERIFY(holder.isRefined());
        QVERIFY(!holder.decrementReferenceCount());
        QVERIFY(!holder.isRefined());
        QVERIFY(holder.decrementReferenceCount()); // below 0: not the last reference
        QCOMPARE(holder.referenceCount(), -1);
    }

    void marksTheSetOfAPropertyForRefinement()
    {
        PropertyEnumerator enumerator({});
        // The name needs none, -1 means unknown, other negative ones belong to the built-in set.
        for (const auto &[property, marked] : {std::pair{0, false}, {1, true}, {2, false}, {-1, false}, {-2, true}}) {
            PropertyDataHolder holder(1);
            holder.refinePropertyAtIndex(property, &enumerator);
            QCOMPARE(holder.isRefined(), marked);
            holder.setRefined();
            holder.invalidate(property, &enumerator);
            QCOMPARE(holder.isRefined(), marked);
        }
        PropertyDataHolder none(0); // has no slot for any set
        none.refinePropertyAtIndex(1, &enumerator);
        QVERIFY(!none.propertyValueData(m_entry, 1, 0, &enumerator).isValid());
        QVERIFY(!none.propertyValueData(m_entry, 9, 0, &enumerator).isValid());
        QVERIFY(!none.preparePropertySet(m_entry, -1, &enumerator));
    }

    void preparesOnceAndRefinesWhenWanted()
    {
        SetRecord record;
        RecordingPlugin plugin(2, &record);
        PropertyEnumerator enumerator({&plugin});
        PropertyDataHolder holder(2);
        QCOMPARE(holder.propertyValueData(m_entry, 3, 7, &enumerator).toString(), QString("1/7/1"));
        QCOMPARE(holder.propertyValueData(m_entry, 2, 256, &enumerator).toString(), QString("0/256/1"));
        holder.updatePresentation(m_entry);

        holder.refinePropertyAtIndex(2, &enumerator); // wanted, but the set cannot
        QCOMPARE(holder.propertyValueData(m_entry, 2, 0, &enumerator).toString(), QString("0/0/2"));
        QCOMPARE(record.refined.load(), 0);
        holder.updatePresentation(m_entry);
        QCOMPARE(record.presentations, QList<bool>({false, true}));

        record.canRefine = true;
        holder.invalidate(3, &enumerator);
        holder.preparePropertySet(m_entry, 1, &enumerator);
        holder.refinePropertyAtIndex(3, &enumerator); // refined already
        holder.preparePropertySet(m_entry, 1, &enumerator);
        QCOMPARE(record.prepared.load(), 3);
        QCOMPARE(record.refined.load(), 1);
        QCOMPARE(record.alive.load(), 1);
    }

    void refinesAllSetsThatExistOrQueuesThem()
    {
        SetRecord record;
        RecordingPlugin without(1), plugin(1, &record);
        PropertyEnumerator enumerator({&without, &plugin});
        PropertyDataHolder unused(3);
        unused.refineAllProperties(m_entry, &enumerator);
        QVERIFY(unused.isRefined());
        QCOMPARE(record.alive.load(), 0); // none was made for it

        PropertyDataHolder holder(3);
        holder.incrementReferenceCount();
        holder.delayedRefineAllProperties(m_entry, nullptr);
        holder.delayedRefineAllProperties(m_entry, &enumerator);
        holder.delayedRefineAllProperties(m_entry, &enumerator); // wanting is not remembered: it is queued twice
        QCOMPARE(enumerator.pendingRequestCount(), 2);
        QCOMPARE(holder.referenceCount(), 3);
        QCOMPARE(record.prepared.load(), 1);
        enumerator.startProcessing();
        QTRY_COMPARE(holder.referenceCount(), 1);
        QVERIFY(holder.isRefined());
        QCOMPARE(record.refined.load(), 2); // the worker does not ask whether a set can
        holder.delayedRefineAllProperties(m_entry, &enumerator);
        QCOMPARE(enumerator.pendingRequestCount(), 0);
    }

    void laysEmblemsIntoCorners()
    {
        SetRecord record;
        record.emblems = QStringList{"bl", "", "tr", "tl", "too many"};
        RecordingPlugin plugin(0, &record);
        PropertyEnumerator enumerator({&plugin});
        PropertyDataHolder holder(2);
        holder.propertyValueData(m_entry, 0, Qt::DecorationRole, &enumerator);
        const Emblems all{{Qt::BottomLeftCorner, "bl"}, {Qt::TopRightCorner, "tr"}, {Qt::TopLeftCorner, "tl"}};
        QCOMPARE(emblemRequests.last(), all);
        enumerator.setShowPropertyEmblems(false);
        holder.propertyValueData(m_entry, 0, Qt::DecorationRole, &enumerator);
        QCOMPARE(emblemRequests.last(), Emblems()); // asked all the same
        const int asked = emblemRequests.size();
        holder.propertyValueData(m_entry, 1, Qt::DecorationRole, &enumerator); // only the name column has an icon
        QCOMPARE(emblemRequests.size(), asked);
    }

private:
    TestTree m_tree{"a.txt"};
    const Entry m_entry = m_tree.entry("a.txt");
};

QTEST_MAIN(PropertyDataHolderTest)
#include "propertydataholdertest.moc"
