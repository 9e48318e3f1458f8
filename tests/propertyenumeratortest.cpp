// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "recordingplugin.h"
#include "testtree.h"

#include <veskfm/propertydataholder.h>
#include <veskfm/propertyenumerator.h>

#include <QIcon>
#include <QRandomGenerator>
#include <QSemaphore>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <stdexcept>

using namespace VeskFM;

namespace
{

/// An entry of which only the identity matters.
class NamedData : public EntryData
{
public:
    explicit NamedData(const QString &path, const QString &localPath = {}, QList<EntryTrait> traits = {})
        : m_path(path)
        , m_localPath(localPath)
        , m_traits(traits)
    {
    }
    QString path() const override { return m_path; }
    QString localPath() const override { return m_localPath; }
    int type() const override { return Entry::File; }
    bool is(EntryTrait trait) const override { return m_traits.contains(trait); }

private:
    const QString m_path, m_localPath;
    const QList<EntryTrait> m_traits;
};

Entry named(int number)
{
    return Entry(new NamedData(QStringLiteral("/%1").arg(number)));
}

/// One plug-in with one column, whose refinement tells its entry and waits at the gate, when there is one.
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
            if (gated)
                gate.tryAcquire(1, patienceMs);
            order.append(entry.path());
            --running;
        };
    }
    /// Queues the plug-in's set alone: the built-in one has nothing to say about these entries.
    PropertyDataHolder *refine(const Entry &entry)
    {
        PropertyDataHolder *holder = enumerator->allocPropertyDataHolder(entry);
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

    std::atomic<bool> gated{false}, overlapped{false};
    std::atomic<int> running{0}, patienceMs{30000};
    QSemaphore started, gate;
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
    void numbersProperties_data()
    {
        QTest::addColumn<int>("property");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("propertySet"); // 77: left alone
        QTest::addColumn<bool>("sortable");
        QTest::newRow("name") << 0 << 0 << 0 << true;
        QTest::newRow("type") << 1 << 1 << 0 << true;
        QTest::newRow("first of a plug-in") << 2 << 0 << 1 << true;
        QTest::newRow("last of a plug-in") << 4 << 2 << 1 << false;
        QTest::newRow("behind a plug-in without columns") << 5 << 0 << 3 << true;
        QTest::newRow("last of all") << 6 << 1 << 3 << false;
        QTest::newRow("beyond") << 7 << -1 << 77 << false;
        QTest::newRow("negative is the built-in set's") << -1 << -1 << 0 << true;
    }

    void numbersProperties()
    {
        QFETCH(int, property);
        QFETCH(int, index);
        QFETCH(int, propertySet);
        SetRecord record;
        RecordingPlugin three(3), none(0), two(2, &record);
        PropertyEnumerator enumerator({&three, &none, &two});
        QCOMPARE(enumerator.count(), 7);
        int foundSet = 77;
        QCOMPARE(enumerator.indexInPropertySet(property, &foundSet), index);
        QCOMPARE(foundSet, propertySet);
        QTEST(enumerator.isSortableProperty(property), "sortable");
        if (propertySet == 1 || propertySet == 3)
            QCOMPARE(enumerator.propertyNameData(property, 3), QVariant(index * 1000 + 3));
        if (propertySet == 77)
            QVERIFY(!enumerator.propertyNameData(property, 0).isValid());

        const std::unique_ptr<EntryPropertySet> made(enumerator.createPropertySet(foundSet));
        QCOMPARE(bool(made), propertySet == 0 || propertySet == 3);
        QVERIFY(!enumerator.createPropertySet(-1));
    }

    void sharesHoldersByKey()
    {
        PropertyEnumerator enumerator({});
        const Entry file(new NamedData("/a", "/local/a"));
        const Entry place(new NamedData("/places/a", "/local/a"));
        const Entry storage(new NamedData("/storage/a", "/local/a", {EntryTrait::StoragePlace}));
        PropertyDataHolder *holder = enumerator.allocPropertyDataHolder(file);
        QCOMPARE(enumerator.allocPropertyDataHolder(place), holder);
        QCOMPARE(holder->referenceCount(), 2);
        PropertyDataHolder *ofStorage = enumerator.allocPropertyDataHolder(storage);
        QVERIFY(ofStorage != holder);
        for (PropertyDataHolder *each : {holder, holder, ofStorage})
            enumerator.releasePropertyDataHolder(each);
        QCOMPARE(enumerator.idleHolderCount(), 2);
    }

    void reusesIdleHolders()
    {
        SetRecord record;
        RecordingPlugin plugin(1, &record);
        PropertyEnumerator enumerator({&plugin});
        PropertyDataHolder *holder = enumerator.allocPropertyDataHolder(named(1));
        holder->preparePropertySet(named(1), 1, &enumerator);
        holder->setRefined();
        enumerator.releasePropertyDataHolder(holder);
        enumerator.releasePropertyDataHolder(nullptr);
        QCOMPARE(enumerator.idleHolderCount(), 1);
        QCOMPARE(enumerator.allocPropertyDataHolder(named(1)), holder);
        QCOMPARE(enumerator.idleHolderCount(), 0);
        QVERIFY(!holder->isRefined());
        holder->preparePropertySet(named(1), 1, &enumerator); // the set is kept and prepared anew
        QCOMPARE(record.alive.load(), 1);
        QCOMPARE(record.prepared.load(), 2);
        enumerator.releasePropertyDataHolder(holder);
    }

    void trimsTheOldestIdleHolders()
    {
        PropertyEnumerator enumerator({});
        QVector<PropertyDataHolder *> holders;
        for (int i = 0; i < 5003; ++i)
            holders.append(enumerator.allocPropertyDataHolder(named(i)));
        for (int i = holders.size() - 1; i >= 0; --i) // the last made is the oldest release
            enumerator.releasePropertyDataHolder(holders.at(i));
        enumerator.releasePropertyDataHolder(enumerator.allocPropertyDataHolder(named(5002))); // and now the youngest

        auto *foreign = new PropertyDataHolder(1); // somebody else's, given away by its release
        foreign->incrementReferenceCount();
        enumerator.releasePropertyDataHolder(foreign);
        QCOMPARE(enumerator.idleHolderCount(), 5004);
        enumerator.releaseDataHoldersTimeout();
        QCOMPARE(enumerator.idleHolderCount(), 5000);
        for (int kept : {5002, 4997, 0})
            QCOMPARE(enumerator.allocPropertyDataHolder(named(kept)), holders.at(kept));
        QCOMPARE(enumerator.idleHolderCount(), 4997);
        enumerator.allocPropertyDataHolder(named(5001)); // was trimmed: a new one, none taken from the idle
        QCOMPARE(enumerator.idleHolderCount(), 4997);
        enumerator.releaseDataHolders(-1);
        QCOMPARE(enumerator.idleHolderCount(), 0);
    }

    void findsEveryHolderAmongMany()
    {
        PropertyEnumerator enumerator({});
        QRandomGenerator random(1);
        QHash<int, PropertyDataHolder *> held;
        for (int step = 0; step < 30000; ++step) {
            const int number = int(random.bounded(3000));
            if (PropertyDataHolder *holder = held.value(number)) {
                PropertyDataHolder *again = enumerator.allocPropertyDataHolder(named(number));
                QCOMPARE(again, holder);
                enumerator.releasePropertyDataHolder(again);
                enumerator.releasePropertyDataHolder(held.take(number));
            } else {
                held.insert(number, enumerator.allocPropertyDataHolder(named(number)));
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
        const Entry plain(new NamedData("/x.DESKTOP")), desktop(new NamedData("/x.desktop"));
        const Entry link(new NamedData("/l", {}, {EntryTrait::SymLink}));
        PropertyEnumerator enumerator({});
        QCOMPARE(enumerator.emblems(plain, sets), QStringList({"a", "", "z"}));
        QCOMPARE(enumerator.emblems(plain, {}), QStringList());
        QCOMPARE(enumerator.emblems(link, {&second}), QStringList({"emblem-symbolic-link", "", "z"}));
        enumerator.setShowPropertyEmblems(false);
        QCOMPARE(enumerator.emblems(desktop, sets), QStringList("emblem-symbolic-link"));
        enumerator.setShowLinkEmblem(false);
        QCOMPARE(enumerator.emblems(desktop, sets), QStringList());
    }

    void answersForSingleEntries()
    {
        TestTree tree({"a.txt"});
        PropertyEnumerator enumerator({});
        QCOMPARE(enumerator.displayedName(tree.entry("a.txt")), QString("a.txt"));
        enumerator.icon(tree.entry("a.txt"));
        QCOMPARE(enumerator.displayedName(Entry()), QString());
        QCOMPARE(enumerator.idleHolderCount(), 2);
    }

    void refinesInQueueOrderOneAtATime()
    {
        Engine engine;
        QStringList expected;
        for (int i = 0; i < 50; ++i) {
            engine.refine(named(i));
            expected.append(named(i).path());
        }
        QCOMPARE(engine.enumerator->pendingRequestCount(), 50); // nothing runs before the start
        engine.enumerator->startProcessing();
        QTRY_COMPARE(engine.announced().size(), 50);
        QCOMPARE(engine.order, expected);
        QVERIFY(!engine.overlapped);
        const EntryPropertyRequest last = engine.announced().last();
        QCOMPARE(last.entry, named(49));
        QVERIFY(last.holder->isRefined());
        QCOMPARE(last.holder->referenceCount(), 1);
    }

    void announcesWhileWorkGoesOn()
    {
        Engine engine;
        for (int i = 0; i < 100; ++i)
            engine.refine(named(i));
        engine.gated = true;
        engine.patienceMs = 5; // slow work
        engine.enumerator->startProcessing();
        QVERIFY(engine.spy.wait());
        QVERIFY(engine.enumerator->pendingRequestCount() > 0); // a part of them, in good time
        QTRY_COMPARE(engine.announced().size(), 100);
        QVERIFY(engine.spy.size() < 100); // and not one by one
    }

    void startsAndStopsByCount()
    {
        Engine engine;
        PropertyEnumerator &enumerator = *engine.enumerator;
        engine.gated = true;
        enumerator.startProcessing();
        enumerator.startProcessing();
        engine.refine(named(1));
        engine.started.acquire();
        PropertyDataHolder *second = engine.refine(named(2));
        enumerator.stopProcessing();
        enumerator.stopProcessing(); // balanced: nothing new starts, nothing is lost
        engine.gate.release(10);
        QTRY_COMPARE(engine.running.load(), 0);
        QCoreApplication::processEvents();
        QVERIFY(engine.spy.isEmpty());
        QCOMPARE(enumerator.pendingRequestCount(), 1);
        enumerator.startProcessing();
        QTRY_COMPARE(second->referenceCount(), 1);
        enumerator.stopProcessing();

        PropertyDataHolder *discarded = engine.refine(named(3));
        enumerator.stopProcessing(); // one too many
        QCOMPARE(enumerator.pendingRequestCount(), 0);
        enumerator.releasePropertyDataHolder(discarded);
        QCOMPARE(discarded->referenceCount(), 1); // the request's, for good
        QCOMPARE(enumerator.idleHolderCount(), 0);

        PropertyDataHolder *last = engine.refine(named(4));
        enumerator.startProcessing(); // makes up for that one
        QCOMPARE(enumerator.pendingRequestCount(), 1);
        enumerator.startProcessing();
        QTRY_COMPARE(last->referenceCount(), 1);
    }

    void leavesOutHoldersThatNobodyShows()
    {
        Engine engine;
        engine.gated = true;
        engine.enumerator->startProcessing();
        PropertyDataHolder *gone = engine.refine(named(1));
        engine.started.acquire();
        engine.enumerator->releasePropertyDataHolder(gone);
        engine.gate.release();
        QVERIFY(engine.spy.wait());
        QCOMPARE(engine.announced().size(), 0);
        QCOMPARE(engine.enumerator->idleHolderCount(), 1);
        engine.enumerator->flushUpdatedHolders(); // nothing to tell, so nothing is told
        QCOMPARE(engine.spy.size(), 1);
    }

    void bearsReceiversThatQueueMore()
    {
        Engine engine;
        int more = 20;
        connect(engine.enumerator.get(), &PropertyEnumerator::dataHoldersUpdated, this,
                [&](const EntryPropertyRequestList &requests) {
                    for (const EntryPropertyRequest &request : requests)
                        engine.enumerator->releasePropertyDataHolder(request.holder);
                    engine.enumerator->releaseDataHolders(0);
                    if (more-- > 0)
                        engine.refine(named(more));
                });
        engine.refine(named(99));
        engine.enumerator->startProcessing();
        QTRY_COMPARE(engine.record.refined.load(), 21);
        QTRY_COMPARE(engine.record.alive.load(), 0);
    }

    void survivesItsOwnAndItsHoldersEndWhileRefining()
    {
        Engine engine;
        engine.gated = true;
        engine.patienceMs = 30; // the gate stays closed: whoever needs the refinement to end has to wait for it
        engine.enumerator->startProcessing();
        {
            RecordingSet set(&engine.record);
            PropertyDataHolder onStack(0);
            engine.enumerator->updatePropertySets({&set}, &onStack, named(1));
            engine.enumerator->updatePropertySets({&set}, &onStack, named(1));
            engine.started.acquire();
        }
        QCOMPARE(engine.running.load(), 0);
        QCOMPARE(engine.enumerator->pendingRequestCount(), 0);
        PropertyDataHolder *next = engine.refine(named(2)); // the scheduler goes on behind it
        QTRY_COMPARE(next->referenceCount(), 1);
        engine.started.acquire();

        engine.refine(named(3));
        engine.started.acquire();
        engine.enumerator.reset();
        QCOMPARE(engine.running.load(), 0);
    }

    void destroysHoldersThatOnlyRequestsHold()
    {
        Engine engine;
        PropertyDataHolder *shown = engine.refine(named(1));
        for (int i = 2; i < 5; ++i)
            engine.enumerator->releasePropertyDataHolder(engine.refine(named(i)));
        engine.enumerator->stopProcessing();
        engine.enumerator->releasePropertyDataHolder(engine.refine(named(5)));
        QCOMPARE(engine.record.alive.load(), 5);
        engine.enumerator.reset();
        QCOMPARE(engine.record.alive.load(), 1); // a row's
        delete shown;
        QCOMPARE(engine.record.alive.load(), 0);
    }

    void survivesARefinementThatThrows()
    {
        Engine engine;
        engine.record.onRefine = [](const Entry &entry) {
            if (entry == named(1))
                throw std::runtime_error("broken file");
            throw 1;
        };
        QTest::ignoreMessage(QtWarningMsg, "Computing the properties of \"/1\" failed: broken file");
        QTest::ignoreMessage(QtWarningMsg, "Computing the properties of \"/2\" failed");
        PropertyDataHolder *holder = engine.refine(named(1));
        engine.enumerator->startProcessing();
        QTRY_COMPARE(holder->referenceCount(), 1);
        QVERIFY(holder->isRefined());
        PropertyDataHolder *synchronous = engine.enumerator->allocPropertyDataHolder(named(2));
        engine.record.canRefine = true;
        synchronous->refinePropertyAtIndex(2, engine.enumerator.get());
        QVERIFY(synchronous->preparePropertySet(named(2), 1, engine.enumerator.get()));
    }
};

QTEST_MAIN(PropertyEnumeratorTest)
#include "propertyenumeratortest.moc"
