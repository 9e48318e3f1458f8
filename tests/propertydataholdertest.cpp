// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "recordingplugin.h"
#include "testtree.h"

#include <veskfm/propertydataholder.h>
#include <veskfm/propertyenumerator.h>
#include <veskplatform/veskicon.h>

#include <QApplication>
#include <QProcess>
#include <QTest>

using namespace VeskFM;

namespace
{
QList<QMap<Qt::Corner, QString>> emblemRequests;
}

// Stands in front of the platform's: what matters here is what it is asked for.
QIcon VeskIcon::withEmblems(const QIcon &icon, const QMap<Qt::Corner, QString> &emblems)
{
    emblemRequests.append(emblems);
    return icon;
}

class PropertyDataHolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allowsUpToEightSets_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("negative") << -1 << false;
        QTest::newRow("none") << 0 << true;
        QTest::newRow("most") << 8 << true;
        QTest::newRow("one too many") << 9 << false;
    }

    void allowsUpToEightSets()
    {
        QFETCH(int, count);
        QFETCH(bool, allowed);
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--make-holder", QString::number(count)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, allowed);
        QCOMPARE(process.readAllStandardError().contains("PropertyDataHolder: too many properties"), !allowed);
    }

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

    void marksTheSetOfAPropertyForRefinement_data()
    {
        QTest::addColumn<int>("property");
        QTest::addColumn<bool>("marked");
        QTest::newRow("the name needs none") << 0 << false;
        QTest::newRow("the type") << 1 << true;
        QTest::newRow("beyond the last") << 2 << false;
        QTest::newRow("resolves to -1, which means unknown") << -1 << false;
        QTest::newRow("negative belongs to the built-in set") << -2 << true;
    }

    void marksTheSetOfAPropertyForRefinement()
    {
        QFETCH(int, property);
        QFETCH(bool, marked);
        PropertyEnumerator enumerator({});
        PropertyDataHolder holder(1);
        holder.refinePropertyAtIndex(property, &enumerator);
        QCOMPARE(holder.isRefined(), marked);
        holder.setRefined();
        holder.invalidate(property, &enumerator);
        QCOMPARE(holder.isRefined(), marked);
        PropertyDataHolder(0).refinePropertyAtIndex(1, &enumerator); // no slot for the set
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

    void refinesAtOnceOnlyTheSetsThatExist()
    {
        SetRecord records[2];
        RecordingPlugin first(1, &records[0]), second(1, &records[1]);
        records[0].canRefine = records[1].canRefine = true;
        PropertyEnumerator enumerator({&first, &second});
        PropertyDataHolder holder(3);
        QVERIFY(holder.preparePropertySet(m_entry, 2, &enumerator));
        holder.refineAllProperties(m_entry, &enumerator);
        QVERIFY(holder.isRefined());
        QCOMPARE(records[0].alive.load(), 0);
        QCOMPARE(records[1].prepared.load(), 2);
        QCOMPARE(records[1].refined.load(), 1);
    }

    void queuesAllSetsThatAreNotRefined()
    {
        SetRecord record;
        RecordingPlugin without(1), plugin(1, &record);
        PropertyEnumerator enumerator({&without, &plugin});
        auto *holder = new PropertyDataHolder(3);
        holder->incrementReferenceCount();
        holder->delayedRefineAllProperties(m_entry, nullptr);
        holder->delayedRefineAllProperties(m_entry, &enumerator);
        holder->delayedRefineAllProperties(m_entry, &enumerator); // wanting is not remembered: it is queued twice
        QCOMPARE(enumerator.pendingRequestCount(), 2);
        QCOMPARE(holder->referenceCount(), 3);
        QCOMPARE(record.prepared.load(), 1);

        enumerator.startProcessing();
        QTRY_COMPARE(holder->referenceCount(), 1);
        QVERIFY(holder->isRefined());
        QCOMPARE(record.refined.load(), 2); // the worker does not ask whether a set can
        holder->delayedRefineAllProperties(m_entry, &enumerator);
        QCOMPARE(enumerator.pendingRequestCount(), 0);
        delete holder;
    }

    void laysEmblemsIntoCorners()
    {
        SetRecord record;
        record.emblems = QStringList{"bl", "", "tr", "tl", "too many"};
        RecordingPlugin plugin(0, &record);
        PropertyEnumerator enumerator({&plugin});
        PropertyDataHolder holder(2);
        QCOMPARE(holder.propertyValueData(m_entry, 0, Qt::DecorationRole, &enumerator).userType(),
                 int(QMetaType::QIcon));
        using Emblems = QMap<Qt::Corner, QString>;
        const Emblems all{{Qt::BottomLeftCorner, "bl"}, {Qt::TopRightCorner, "tr"}, {Qt::TopLeftCorner, "tl"}};
        QCOMPARE(emblemRequests.last(), all);
        enumerator.setShowPropertyEmblems(false);
        holder.propertyValueData(m_entry, 0, Qt::DecorationRole, &enumerator);
        QCOMPARE(emblemRequests.last(), Emblems()); // asked all the same
        emblemRequests.clear();
        holder.propertyValueData(m_entry, 1, Qt::DecorationRole, &enumerator); // only the name column has an icon
        QVERIFY(emblemRequests.isEmpty());
    }

    void givesNothingForUnknownProperties()
    {
        SetRecord record;
        RecordingPlugin plugin(1, &record);
        PropertyEnumerator enumerator({&plugin});
        PropertyDataHolder small(1);
        QVERIFY(!small.propertyValueData(m_entry, 3, 0, &enumerator).isValid());
        QVERIFY(!small.propertyValueData(m_entry, 2, 0, &enumerator).isValid()); // has no slot for it
        QVERIFY(!small.propertyValueData(m_entry, 0, 0, nullptr).isValid());
        QVERIFY(!small.preparePropertySet(m_entry, -1, &enumerator));
        QCOMPARE(record.alive.load(), 0);
    }

private:
    TestTree m_tree{"a.txt"};
    const Entry m_entry = m_tree.entry("a.txt");
};

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--make-holder") == 0) {
        PropertyDataHolder holder(atoi(argv[2]));
        return 0;
    }
    QApplication application(argc, argv);
    PropertyDataHolderTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "propertydataholdertest.moc"
