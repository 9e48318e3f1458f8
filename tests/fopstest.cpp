// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakes.h"
#include "fakevfs.h"

#include <veskfm/fops.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <QtTest>

#include <csignal>

using namespace VeskFM;

namespace
{

QString service()
{
    return busName(".vesk-fm.fops");
}

/// "sources=/a /b": the record of an operation.
QStringList texts(const QMap<QString, QVariant> &args)
{
    QStringList lines;
    for (auto it = args.begin(); it != args.end(); ++it) {
        QStringList paths;
        for (const Entry &item : it->value<EntryList>())
            paths.append(item.path());
        const QString path = it->value<Entry>().path();
        lines.append(it.key() + '='
                     + (!path.isEmpty()                   ? path
                            : it->canConvert<EntryList>() ? paths.join(' ')
                                                          : it->toString()));
    }
    return lines;
}

} // namespace

class FOpsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void sendsEveryOperationAndGivesItsRecordBack();
    void givesEqualIdentifiersOneRecord();
    void believesOnlyTheService();
    void survivesAFloodOfUnknownResults();
    void keepsTheRecordsOfAServiceThatDied();
    void doesNothingAfterTheApplicationQuit(); // last: it can happen once
};

void FOpsTest::cleanup()
{
    resetFake(service());
}

void FOpsTest::sendsEveryOperationAndGivesItsRecordBack()
{
    const Entry a = fakeEntry("/a");
    const Entry b = fakeEntry("/b");
    const EntryList both{a, b};
    struct Row
    {
        std::function<FOpId(FOps *)> issue;
        QString method;
        QString arguments; // after the stamp
        FOps::OperationType type;
        QStringList args;
    };
    const QString entryA = "(s) \"/a\"";
    const QString entryB = "(s) \"/b\"";
    const QString two = "a(s) {" + entryA + ", " + entryB + '}';
    const QString one = "a(s) {" + entryA + "}, " + entryB;
    const QVector<Row> rows = {
        {[&](FOps *f) { return f->remove(both, true); }, "remove", two + ", true", FOps::Unknown, {}},
        {[&](FOps *f) { return f->cleanTrash(); }, "cleanTrash", {}, FOps::Unknown, {}},
        {[&](FOps *f) { return f->trash(both, false); }, "trash", two + ", false", FOps::Trash, {"sources=/a /b"}},
        {[&](FOps *f) { return f->restore(both); }, "restore", two, FOps::Restore, {"sources=/a /b"}},
        {[&](FOps *f) { return f->copy({a}, b); }, "copy", one, FOps::Copy, {"destination=/b", "sources=/a"}},
        {[&](FOps *f) { return f->move({a}, b); }, "move", one, FOps::Move, {"destination=/b", "sources=/a"}},
        {[&](FOps *f) { return f->rename(a, b); }, "rename", entryA + ", " + entryB, FOps::Rename, {}},
        {[&](FOps *f) { return f->makeDir(a); }, "makeDir", entryA, FOps::MakeDir, {}},
        {[&](FOps *f) { return f->makeFile(a); }, "makeFile", entryA, FOps::MakeFile, {}},
        {[&](FOps *f) { return f->makeShortcut(a); }, "makeShortcut", entryA, FOps::MakeShortcut, {}},
        {[&](FOps *f) { return f->makeShortcuts({}, b); },
         "makeShortcuts",
         "a(s) {}, " + entryB,
         FOps::MakeShortcuts,
         {"destination=/b", "sources="}},
        {[&](FOps *f) { return f->makeTitledShortcut("u", "t", b); },
         "makeTitledShortcut",
         "\"u\", \"t\", " + entryB,
         FOps::MakeTitledShortcut,
         {"destination=/b", "title=t", "url=u"}},
        {[&](FOps *f) { return f->makeFromTemplate(a, "t"); },
         "makeFromTemplate",
         entryA + ", \"t\"",
         FOps::MakeFromTemplate,
         {"templatePath=t"}},
    };

    FOps *const fops = FOps::ptr();
    QVERIFY(fops->isAvailable());
    QCOMPARE(fakeCalls(), QStringList("capture()"));
    QSignalSpy finished(fops, &FOps::operationFinished);
    for (const Row &row : rows) {
        const qint64 before = QDateTime::currentSecsSinceEpoch();
        clearFakeCalls();
        const FOpId id = row.issue(fops);
        const QString start = row.method + QString::number(QCoreApplication::applicationPid());
        QVERIFY(id.stamp().startsWith(start));
        const qint64 second = id.stamp().mid(start.size()).toLongLong();
        QVERIFY(second >= before && second <= QDateTime::currentSecsSinceEpoch());
        QCOMPARE(finished.size(), 0); // never inside the call
        QVERIFY(finished.wait());
        const QVariantList result = finished.takeFirst();
        const QString stamped = row.method + "(\"" + id.stamp() + '"';
        QCOMPARE(fakeCalls(), QStringList(stamped + (row.arguments.isEmpty() ? ")" : ", " + row.arguments + ')')));
        QVERIFY(result.at(0).value<FOpId>() == id);
        QCOMPARE(result.at(1).toInt(), 7);
        QCOMPARE(result.at(2).value<EntryList>().value(0).path(), QStringLiteral("/"));
        QCOMPARE(result.at(3).value<FOps::OperationType>(), row.type);
        QCOMPARE(texts(result.at(4).toMap()), row.args);
        QCOMPARE(fops->operationProgress(id), 0); // though the service says 42
        QCOMPARE(fakeCalls().value(1), "operationProgress(\"" + id.stamp() + "\")");
    }
}

void FOpsTest::givesEqualIdentifiersOneRecord()
{
    FOps *const fops = FOps::ptr();
    QSignalSpy finished(fops, &FOps::operationFinished);
    FOpId first;
    FOpId second;
    do { // until both fall into one second
        finished.clear();
        first = fops->makeFromTemplate(fakeEntry("/a"), "first");
        second = fops->makeFromTemplate(fakeEntry("/b"), "second");
        QTRY_COMPARE(finished.size(), 2);
    } while (first != second);
    QCOMPARE(finished.at(0).at(4).toMap().value("templatePath"), QVariant("second"));
    QCOMPARE(finished.at(1).at(3).value<FOps::OperationType>(), FOps::Unknown);
    QVERIFY(finished.at(1).at(4).toMap().isEmpty());
}

void FOpsTest::believesOnlyTheService()
{
    FOps *const fops = FOps::ptr();
    QSignalSpy finished(fops, &FOps::operationFinished);
    QVERIFY(QDBusConnection::sessionBus().interface()->startService(service()).isValid());
    QDBusConnection forger = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "forger");
    const QString interface = busName(".FileManager.FileOperation");
    const QVariantList forged{"forged", 0, QVariant::fromValue(EntryList{fakeEntry("/forged")})};
    QDBusMessage everybody = QDBusMessage::createSignal("/", interface, "operationFinished");
    QDBusMessage us = QDBusMessage::createTargetedSignal(QDBusConnection::sessionBus().baseService(), "/", interface,
                                                         "operationFinished");
    for (QDBusMessage *message : {&everybody, &us}) {
        message->setArguments(forged);
        QVERIFY(forger.send(*message));
    }
    forger.interface()->isServiceRegistered(service()); // the bus has had the forged ones, too
    const FOpId id = fops->cleanTrash();
    QVERIFY(finished.wait());
    QVERIFY(finished.takeFirst().at(0).value<FOpId>() == id);

    // Nor while nobody has the name.
    QVERIFY(signalService(service(), SIGKILL));
    QVERIFY(forger.send(everybody) && !forger.interface()->isServiceRegistered(service()));
    const FOpId next = fops->cleanTrash();
    QVERIFY(finished.wait());
    QVERIFY(finished.takeFirst().at(0).value<FOpId>() == next);
    QDBusConnection::disconnectFromBus("forger");
}

void FOpsTest::survivesAFloodOfUnknownResults()
{
    FOps *const fops = FOps::ptr();
    QSignalSpy finished(fops, &FOps::operationFinished);
    setFakeBehaviour("flood");
    const FOpId id = fops->makeDir(fakeEntry("/a"));          // starts the service
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 10001, 30000); // those of a wrong structure do not count
    QCOMPARE(finished.at(9999).at(0).value<FOpId>().stamp(), QStringLiteral("unknown9999"));
    QCOMPARE(finished.at(9999).at(3).value<FOps::OperationType>(), FOps::Unknown);
    QVERIFY(finished.last().at(0).value<FOpId>() == id);
    QCOMPARE(finished.last().at(3).value<FOps::OperationType>(), FOps::MakeDir);
}

void FOpsTest::keepsTheRecordsOfAServiceThatDied()
{
    FOps *const fops = FOps::ptr();
    QSignalSpy finished(fops, &FOps::operationFinished);
    setFakeBehaviour("die");
    const FOpId lost = fops->makeFile(fakeEntry("/a"));
    QTRY_VERIFY(fakeCalls().size() == 1 && !isOnBus(service()) && !fops->isAvailable());
    setFakeBehaviour("");
    const FOpId id = fops->makeDir(fakeEntry("/b"));
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(finished.at(0).at(0).value<FOpId>() == id);
    QTRY_VERIFY(fops->isAvailable());
    fops->finished(lost.stamp(), 1, {});
    QCOMPARE(finished.last().at(3).value<FOps::OperationType>(), FOps::MakeFile);
}

void FOpsTest::doesNothingAfterTheApplicationQuit()
{
    FOps *const fops = FOps::ptr();
    QSignalSpy finished(fops, &FOps::operationFinished);
    const FOpId pending = fops->makeDir(fakeEntry("/a"));
    announceQuit();
    QVERIFY(!fops->isAvailable() && !fops->makeFile(fakeEntry("/b")).isNull());
    QCOMPARE(fops->operationProgress(pending), 0);
    QTRY_VERIFY(fakeCalls().join(' ').contains(pending.stamp()));
    signalService(service(), SIGKILL); // so its signal has come
    QCoreApplication::processEvents();
    QCOMPARE(finished.size(), 0);
}

QTEST_GUILESS_MAIN(FOpsTest)

#include "fopstest.moc"
