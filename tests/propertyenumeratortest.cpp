// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakevfs.h"
#include "recordingplugin.h"

#include <veskfm/propertydataholder.h>
#include <veskfm/propertyenumerator.h>

#include <QtTest>

#include <memory>
#include <stdexcept>

using namespace VeskFM;

namespace
{

Entry numbered(int number)
{
    return fakeEntry(QStringLiteral("/%1").arg(number));
}

/// One plug-in with one column, whose refinement tells its entry and waits at the gate.
struct Engine
{
    Engine()
        : enumerator(std::make_unique<PropertyEnumerator>(QList<PropsPlugin *>{&plugin}))
        , spy(enumerator.get(), &PropertyEnumerator::dataHoldersUpdated)
    {
        record.onRefine = [this](const Entry &entry) {
            if (++running > 1)
                overlapped = true;
            started.release();
            gate.tryAcquire(1, patienceMs);
            order.append(entry.path());
            --running;
        };
    }
    ~Engine()
    {
        enumerator.reset();
        qDeleteAll(shown); // rows would have gone before the enumerator
    }
    PropertyDataHolder *show(const Entry &entry)
    {
        shown.append(enumerator->allocPropertyDataHolder(entry));
        return shown.last();
    }
    void release(PropertyDataHolder *holder)
    {
        shown.removeOne(holder);
        enumerator->releasePropertyDataHolder(holder);
    }
    /// Queues the plug-in's set alone: the built-in one has nothing to say about these entries.
    PropertyDataHolder *refine(const Entry &entry)
    {
        PropertyDataHolder *holder = show(entry);
        enumerator->updatePropertySets({holder->preparePropertySet(entry, 1, enumerator.get()), nullptr}, holder,
                                       entry);
        return holder;
    }
    EntryPropertyRequestList announced() const
    {
        EntryPropertyRequestList all;
        for (const QList<QVariant> &arguments : spy)
            all += arguments.first().value<EntryPropertyRequestList>();
        return all;
    }

    std::atomic<bool> overlapped{false};
    std::atomic<int> running{0}, patienceMs{0}; // how long each waits at the gate
    QSemaphore started, gate;
    QVector<PropertyDataHolder *> shown;
    QStringList order; // the refining thread's, while there are requests
    SetRecord record;
    RecordingPlugin plugin{1, &record};
    std::unique_ptr<PropertyEnumerator> enumerator;
    QSignalSpy spy;
};

} // namespace

class PropertyEnumeratorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersProperties()
    {
        SetRecord record;
        RecordingPlugin three(3), none(0), two(2, &record);
        PropertyEnumerator enumerator({&three, &none, &two});
        QCOMPARE(enumerator.count(), 7);
        QStringList found; // index in its set, number of the set (77: left alone), whether it can be sorted by
        for (int property = -1; property <= 7; ++property) {
            int set = 77;
            const int index = enumerator.indexInPropertySet(property, &set);
            const bool sortable = enumerator.isSortableProperty(property);
            found.append(QStringLiteral("%1 %2 %3").arg(index).arg(set).arg(sortable));
            const std::unique_ptr<EntryPropertySet> made(enumerator.createPropertySet(set));
            QCOMPARE(bool(made), set == 0 || set == 3);
        }
        QCOMPARE(found,
                 QStringList({"-1 0 1", "0 0 1", "1 0 1", "0 1 1", "1 1 0", "2 1 0", "0 3 1", "1 3 0", "-1 77 0"}));
        QCOMPARE(enumerator.propertyNameData(6, 3), QVariant(1003));
        QVERIFY(!enumerator.createPropertySet(-1) && !enumerator.propertyNameData(7, 0).isValid());
    }

    void sharesAndReusesHoldersByKey()
    {
        SetRecord record;
        RecordingPlugin plugin(1, &record);
        PropertyEnumerator enumerator({&plugin});
        const Entry file = fakeEntry("/a", {}, "/local/a");
        PropertyDataHolder *holder = enumerator.allocPropertyDataHolder(file);
        QCOMPARE(enumerator.allocPropertyDataHolder(fakeEntry("/places/a", {}, "/local/a")), holder);
        QCOMPARE(holder->referenceCount(), 2);
        PropertyDataHolder *ofStorage =
            enumerator.allocPropertyDataHolder(fakeEntry("/storage/a", {EntryTrait::StoragePlace}, "/local/a"));
        QVERIFY(ofStorage != holder);
        holder->preparePropertySet(file, 1, &enumerator);
        holder->setRefined();
        for (PropertyDataHolder *each : {holder, holder, ofStorage})
            enumerator.releasePropertyDataHolder(each);
        enumerator.releasePropertyDataHolder(nullptr);
        QCOMPARE(enumerator.idleHolderCount(), 2);

        QCOMPARE(enumerator.allocPropertyDataHolder(file), holder);
        QCOMPARE(enumerator.idleHolderCount(), 1);
        QVERIFY(!holder->isRefined());
        holder->preparePropertySet(file, 1, &enumerator); // the set is kept and prepared anew
        QCOMPARE(record.alive.load(), 1);
        QCOMPARE(record.prepared.load(), 2);
        enumerator.releasePropertyDataHolder(holder);
    }

    void trimsTheOldestIdleHolders()
    {
        PropertyEnumerator enumerator({});
        QVector<PropertyDataHolder *> holders;
        for (int i = 0; i < 5003; ++i)
            holders.append(enumerator.allocPropertyDataHolder(numbered(i)));
        for (int i = holders.size() - 1; i >= 0; --i) // the last made is the oldest release
            enumerator.releasePropertyDataHolder(holders.at(i));
        enumerator.releasePropertyDataHolder(
            enumerator.allocPropertyDataHolder(numbered(5002))); // and now the youngest

        auto *foreign = new PropertyDataHolder(1); // somebody else's, given away by its release
        foreign->incrementReferenceCount();
        enumerator.releasePropertyDataHolder(foreign);
        QCOMPARE(enumerator.idleHolderCount(), 5004);
        enumerator.releaseDataHoldersTimeout();
        QCOMPARE(enumerator.idleHolderCount(), 5000);
        for (int kept : {5002, 4997, 0})
            QCOMPARE(enumerator.allocPropertyDataHolder(numbered(kept)), holders.at(kept));
        QCOMPARE(enumerator.idleHolderCount(), 4997);
        holders[5001] = enumerator.allocPropertyDataHolder(numbered(5001)); // was trimmed: new, none of the idle
        QCOMPARE(enumerator.idleHolderCount(), 4997);
        enumerator.releaseDataHolders(-1);
        QCOMPARE(enumerator.idleHolderCount(), 0);
        for (int kept : {5002, 5001, 4997, 0})
            enumerator.releasePropertyDataHolder(holders.at(kept));
    }

    void findsEveryHolderAmongMany()
    {
        PropertyEnumerator enumerator({});
        QRandomGenerator random(1);
        QHash<int, PropertyDataHolder *> held;
        for (int step = 0; step < 30000; ++step) {
            const int number = int(random.bounded(3000));
            if (PropertyDataHolder *holder = held.value(number)) {
                PropertyDataHolder *again = enumerator.allocPropertyDataHolder(numbered(number));
                QCOMPARE(again, holder);
                enumerator.releasePropertyDataHolder(again);
                enumerator.releasePropertyDataHolder(held.take(number));
            } else {
                held.insert(number, enumerator.allocPropertyDataHolder(numbered(number)));
            }
            if (step % 100 == 0)
                enumerator.releaseDataHolders(int(random.bounded(100)));
        }
        for (PropertyDataHolder *holder : qAsConst(held)) {
            QCOMPARE(holder->referenceCount(), 1);
            enumerator.releasePropertyDataHolder(holder);
        }
    }

    void collectsEmblems()
    {
        SetRecord records[2];
        RecordingSet first(&records[0]), second(&records[1]);
        records[0].emblems = QStringList{"a", "", "c", "", "five"};
        records[1].emblems = QStringList{"", "", "z", ""};
        const QVector<EntryPropertySet *> sets{&first, nullptr, &second};
        const Entry plain = fakeEntry("/x.DESKTOP"), desktop = fakeEntry("/x.desktop");
        PropertyEnumerator enumerator({});
        QCOMPARE(enumerator.emblems(plain, sets), QStringList({"a", "", "z"}));
        QCOMPARE(enumerator.emblems(desktop, {&second}), QStringList({"emblem-symbolic-link", "", "z"}));
        enumerator.setShowPropertyEmblems(false);
        QCOMPARE(enumerator.emblems(desktop, sets), QStringList("emblem-symbolic-link"));
        QCOMPARE(enumerator.emblems(plain, sets), QStringList());
    }

    void refinesInQueueOrderOneAtATimeAndAnnouncesInBatches()
    {
        Engine engine;
        QStringList expected;
        for (int i = 0; i < 100; ++i) {
            engine.refine(numbered(i));
            expected.append(numbered(i).path());
        }
        QCOMPARE(engine.enumerator->pendingRequestCount(), 100); // nothing runs before the start
        engine.patienceMs = 5;                                   // slow work
        engine.enumerator->startProcessing();
        QVERIFY(engine.spy.wait());
        QVERIFY(engine.enumerator->pendingRequestCount() > 0); // a part of them, in good time
        QTRY_COMPARE(engine.announced().size(), 100);
        QVERIFY(engine.spy.size() < 100); // and not one by one
        QCOMPARE(engine.order, expected);
        QVERIFY(!engine.overlapped);
        const EntryPropertyRequest last = engine.announced().last();
        QCOMPARE(last.entry, numbered(99));
        QVERIFY(last.holder->isRefined());
        QCOMPARE(last.holder->referenceCount(), 1);
    }

    void startsAndStopsByCount()
    {
        Engine engine;
        PropertyEnumerator &enumerator = *engine.enumerator;
        engine.patienceMs = 30000;
        enumerator.startProcessing();
        enumerator.startProcessing();
        engine.refine(numbered(1));
        engine.started.acquire();
        PropertyDataHolder *second = engine.refine(numbered(2));
        enumerator.stopProcessing();
        enumerator.stopProcessing(); // balanced: nothing new starts, nothing is lost
        engine.patienceMs = 0;
        engine.gate.release();
        QTRY_COMPARE(engine.running.load(), 0);
        QCoreApplication::processEvents();
        QVERIFY(engine.spy.isEmpty());
        QCOMPARE(enumerator.pendingRequestCount(), 1);
        enumerator.startProcessing();
        QTRY_COMPARE(second->referenceCount(), 1);
        enumerator.stopProcessing();

        PropertyDataHolder *discarded = engine.refine(numbered(3));
        enumerator.stopProcessing(); // one too many
        QCOMPARE(enumerator.pendingRequestCount(), 0);
        engine.release(discarded);
        QCOMPARE(discarded->referenceCount(), 1); // the request's, for good
        QCOMPARE(enumerator.idleHolderCount(), 0);

        PropertyDataHolder *last = engine.refine(numbered(4));
        enumerator.startProcessing(); // makes up for that one
        QCOMPARE(enumerator.pendingRequestCount(), 1);
        enumerator.startProcessing();
        QTRY_COMPARE(last->referenceCount(), 1);
    }

    void bearsReceiversThatQueueMore()
    {
        Engine engine;
        int more = 20;
        connect(engine.enumerator.get(), &PropertyEnumerator::dataHoldersUpdated, this,
                [&](const EntryPropertyRequestList &requests) {
                    for (const EntryPropertyRequest &request : requests)
                        engine.release(request.holder);
                    engine.enumerator->releaseDataHolders(0);
                    if (more-- > 0)
                        engine.refine(numbered(more));
                });
        engine.refine(numbered(99));
        engine.enumerator->startProcessing();
        QTRY_COMPARE(engine.record.refined.load(), 21);
        QTRY_COMPARE(engine.record.alive.load(), 0);
    }

    void survivesItsOwnAndItsHoldersEndWhileRefining()
    {
        Engine engine;
        engine.patienceMs = 30; // the gate stays closed: whoever needs the refinement to end has to wait for it
        engine.enumerator->startProcessing();
        {
            RecordingSet set(&engine.record);
            PropertyDataHolder onStack(0);
            engine.enumerator->updatePropertySets({&set}, &onStack, numbered(1));
            engine.enumerator->updatePropertySets({&set}, &onStack, numbered(1));
            engine.started.acquire();
        }
        QCOMPARE(engine.running.load(), 0);
        QCOMPARE(engine.enumerator->pendingRequestCount(), 0);
        PropertyDataHolder *next = engine.refine(numbered(2)); // the scheduler goes on behind it
        QTRY_COMPARE(next->referenceCount(), 1);
        engine.started.acquire();

        engine.refine(numbered(3));
        engine.started.acquire();
        engine.enumerator.reset();
        QCOMPARE(engine.running.load(), 0);
    }

    void leavesOutAndDestroysHoldersThatNobodyShows()
    {
        Engine engine;
        engine.release(engine.refine(numbered(0)));
        engine.enumerator->startProcessing();
        QVERIFY(engine.spy.wait());
        QCOMPARE(engine.announced().size(), 0);
        QCOMPARE(engine.enumerator->idleHolderCount(), 1);
        engine.enumerator->flushUpdatedHolders(); // nothing to tell, so nothing is told
        QCOMPARE(engine.spy.size(), 1);
        engine.enumerator->stopProcessing();

        PropertyDataHolder *shown = engine.refine(numbered(1));
        for (int i = 2; i < 5; ++i)
            engine.release(engine.refine(numbered(i)));
        engine.enumerator->stopProcessing();
        engine.release(engine.refine(numbered(5)));
        engine.enumerator.reset();
        QCOMPARE(engine.record.alive.load(), 1); // a row's
        engine.shown.removeOne(shown);
        delete shown;
        QCOMPARE(engine.record.alive.load(), 0);
    }

    void survivesARefinementThatThrows()
    {
        Engine engine;
        engine.record.onRefine = [](const Entry &entry) {
            if (entry == numbered(1))
                throw std::runtime_error("broken file");
            throw 1;
        };
        QTest::ignoreMessage(QtWarningMsg, "Computing the properties of \"/1\" failed: broken file");
        QTest::ignoreMessage(QtWarningMsg, "Computing the properties of \"/2\" failed");
        PropertyDataHolder *holder = engine.refine(numbered(1));
        engine.enumerator->startProcessing();
        QTRY_COMPARE(holder->referenceCount(), 1);
        QVERIFY(holder->isRefined());
        PropertyDataHolder *synchronous = engine.show(numbered(2));
        engine.record.canRefine = true;
        synchronous->refinePropertyAtIndex(2, engine.enumerator.get());
        QVERIFY(synchronous->preparePropertySet(numbered(2), 1, engine.enumerator.get()));
    }
};

QTEST_MAIN(PropertyEnumeratorTest)
#include "propertyenumeratortest.moc"
