// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakevfs.h"
#include "testtree.h"

#include <veskfm/entrymatchvalidator.h>
#include <veskfm/modelfilter.h>
#include <veskfm/propertyenumerator.h>

#include <QTest>

using namespace VeskFM;

namespace
{

/// Takes down that it is asked and deleted. Only "no" refuses.
struct RecordingValidator : public EntryMatchValidator
{
    RecordingValidator(const QString &itsName, QStringList *itsLog)
        : name(itsName)
        , log(itsLog)
    {
    }
    ~RecordingValidator() override { log->append(QLatin1Char('~') + name); }
    bool match(const Entry &) const override
    {
        log->append(name);
        return name != "no";
    }

    const QString name;
    QStringList *const log;
};

} // namespace

class ModelFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decides_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<QStringList>("patterns");
        QTest::addColumn<bool>("filesOnly");
        // f file, x executable file, h hidden file, d directory, H hidden directory
        QTest::addColumn<QString>("accepted");

        const QStringList every = {"*"};
        QTest::newRow("by default all but hidden ones") << 4 << every << true << "fxd";
        QTest::newRow("hidden ones too") << 12 << every << true << "fxhdH";
        QTest::newRow("directories only, hidden or not") << 9 << every << true << "dH";
        QTest::newRow("executable files and any directory") << 2 << every << true << "xd";
        QTest::newRow("names in any case, of files only") << 4 << QStringList{"*.txt"} << true << "fd";
        QTest::newRow("names of directories too") << 4 << QStringList{"*.txt"} << false << "f";
        QTest::newRow("any of several patterns") << 4 << QStringList{"*.txt", "D?C[rs]"} << false << "fd";
        QTest::newRow("the whole name") << 4 << QStringList{"a", "txt", "*.t"} << true << "d";
        QTest::newRow("every name among others") << 4 << QStringList{"*.txt", "*"} << false << "fxd";
        QTest::newRow("no pattern refuses files") << 4 << QStringList() << true << "d";
        QTest::newRow("no pattern refuses everything") << 4 << QStringList() << false << "";
        QTest::newRow("a broken pattern matches nothing") << 4 << QStringList{"[a"} << true << "d";
    }

    void decides()
    {
        QFETCH(int, flags);
        QFETCH(QStringList, patterns);
        QFETCH(bool, filesOnly);

        ModelFilter filter;
        filter.setEntryFilters(ModelFilter::EntryFilters(flags));
        filter.setNameFilters(patterns);
        filter.setNameFiltersForFilesOnly(filesOnly);
        const QList<QPair<char, Entry>> candidates = {
            {'f', fakeEntry("/a.TXT", {EntryTrait::File})},
            {'x', fakeEntry("/run.sh", {EntryTrait::File, EntryTrait::Executable})},
            {'h', fakeEntry("/.a.sh", {EntryTrait::File, EntryTrait::Hidden, EntryTrait::Executable})},
            {'d', fakeEntry("/docs", {EntryTrait::Dir})},
            {'H', fakeEntry("/.docs", {EntryTrait::Dir, EntryTrait::Hidden})}};
        QString accepted;
        for (const auto &candidate : candidates) {
            if (filter.isAllowedEntry(candidate.second))
                accepted.append(QLatin1Char(candidate.first));
        }
        QTEST(accepted, "accepted");
    }

    void looksIntoDesktopFilesAndAtDisplayedNames()
    {
        TestTree tree;
        const QByteArray application = "[Desktop Entry]\nType=Application\nName=Program\nExec=true\n";
        const Entry shown = tree.add("shown.desktop", application);
        const Entry notShown = tree.add("notshown.desktop", application + "NoDisplay=true\n");
        ModelFilter filter;
        QVERIFY(!filter.isAllowedEntry(notShown));
        QVERIFY(filter.isAllowedEntry(shown) && filter.isAllowedEntry(tree.add("broken.desktop", "no such thing")));
        filter.setShowHiddenEntries(true);
        QVERIFY(filter.isAllowedEntry(notShown));

        PropertyEnumerator enumerator({});
        filter.setNameFilters({"Program"});
        QVERIFY(!filter.isAllowedEntry(shown));
        filter.setPropertyEnumerator(&enumerator); // which knows how it is displayed
        QVERIFY(filter.isAllowedEntry(shown));
    }

    void reportsChangesOnce()
    {
        ModelFilter filter;
        filter.setEntryFilters({}); // ignored
        filter.setEntryFilters(ModelFilter::AllEntries);
        filter.setNameFilters({"*"});
        filter.setNameFiltersForFilesOnly(false); // makes no difference to the star
        QVERIFY(!filter.flushChanges());
        filter.setShowHiddenEntries(true);
        filter.setShowHiddenEntries(false); // there and back is a change
        QVERIFY(filter.flushChanges());
        QVERIFY(!filter.flushChanges());
        filter.setNameFilters({"*", "*"});
        QVERIFY(filter.flushChanges());
        filter.setNameFiltersForFilesOnly(true);
        QVERIFY(filter.flushChanges());
        filter.setValidators({});
        QVERIFY(filter.flushChanges());
    }

    void asksValidatorsInOrderAndOwnsThem()
    {
        const Entry file = fakeEntry("/f", {EntryTrait::File});
        QStringList log;
        {
            ModelFilter filter;
            auto *const kept = new RecordingValidator("kept", &log);
            filter.setValidators({new RecordingValidator("old", &log), kept});
            QVERIFY(filter.isAllowedEntry(file));
            filter.setValidators({kept, new RecordingValidator("no", &log), new RecordingValidator("late", &log)});
            QVERIFY(!filter.isAllowedEntry(file));
            QCOMPARE(log, QStringList({"old", "kept", "~old", "kept", "no"}));
            log.clear();
        }
        log.sort();
        QCOMPARE(log, QStringList({"~kept", "~late", "~no"}));
    }
};

QTEST_MAIN(ModelFilterTest)
#include "modelfiltertest.moc"
