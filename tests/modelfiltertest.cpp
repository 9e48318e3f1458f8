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

/// Takes down whom it is asked about, and that it is deleted.
class RecordingValidator : public EntryMatchValidator
{
public:
    RecordingValidator(const QString &name, bool answer, QStringList *log)
        : m_name(name)
        , m_answer(answer)
        , m_log(log)
    {
    }
    ~RecordingValidator() override { m_log->append(QLatin1Char('~') + m_name); }
    bool match(const Entry &) const override
    {
        m_log->append(m_name);
        return m_answer;
    }

private:
    const QString m_name;
    const bool m_answer;
    QStringList *const m_log;
};

Entry fake(const QString &name, std::initializer_list<EntryTrait> traits)
{
    return Entry(new FakeEntryData(QStringLiteral("/") + name, traits));
}

} // namespace

class ModelFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decides_data();
    void decides();
    void looksIntoDesktopFilesAndAtDisplayedNames();
    void reportsChangesOnce();
    void asksValidatorsInOrderAndOwnsThem();
};

using Filters = ModelFilter::EntryFilters;

void ModelFilterTest::decides_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<bool>("filesOnly");
    QTest::addColumn<QString>("accepted"); // f file, x executable file, h hidden file, d directory, H hidden directory

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

void ModelFilterTest::decides()
{
    QFETCH(int, flags);
    QFETCH(QStringList, patterns);
    QFETCH(bool, filesOnly);

    ModelFilter filter;
    filter.setEntryFilters(Filters(flags));
    filter.setNameFilters(patterns);
    filter.setNameFiltersForFilesOnly(filesOnly);
    const QList<QPair<char, Entry>> candidates = {
        {'f', fake("a.TXT", {EntryTrait::File})},
        {'x', fake("run.sh", {EntryTrait::File, EntryTrait::Executable})},
        {'h', fake(".a.sh", {EntryTrait::File, EntryTrait::Hidden, EntryTrait::Executable})},
        {'d', fake("docs", {EntryTrait::Dir})},
        {'H', fake(".docs", {EntryTrait::Dir, EntryTrait::Hidden})}};
    QString accepted;
    for (const auto &candidate : candidates) {
        if (filter.isAllowedEntry(candidate.second))
            accepted.append(QLatin1Char(candidate.first));
    }
    QTEST(accepted, "accepted");
}

void ModelFilterTest::looksIntoDesktopFilesAndAtDisplayedNames()
{
    TestTree tree;
    const QByteArray application = "[Desktop Entry]\nType=Application\nName=Program\nExec=true\n";
    const Entry shown = tree.add("shown.desktop", application);
    const Entry notShown = tree.add("notshown.desktop", application + "NoDisplay=true\n");
    const Entry broken = tree.add("broken.desktop", "no such thing");
    const Entry otherCase = tree.add("notshown.DESKTOP", application + "NoDisplay=true\n");

    ModelFilter filter;
    QVERIFY(filter.isAllowedEntry(shown));
    QVERIFY(!filter.isAllowedEntry(notShown));
    QVERIFY(filter.isAllowedEntry(broken));
    QVERIFY(filter.isAllowedEntry(otherCase));
    filter.setShowHiddenEntries(true);
    QVERIFY(filter.isAllowedEntry(notShown));

    PropertyEnumerator enumerator({});
    filter.setNameFilters({"Program"});
    QVERIFY(!filter.isAllowedEntry(shown));
    filter.setPropertyEnumerator(&enumerator); // which knows how it is displayed
    QVERIFY(filter.isAllowedEntry(shown));
}

void ModelFilterTest::reportsChangesOnce()
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
    filter.setEntryFilters(ModelFilter::DirsOnly);
    QVERIFY(filter.flushChanges());
    filter.setValidators({});
    QVERIFY(filter.flushChanges());
}

void ModelFilterTest::asksValidatorsInOrderAndOwnsThem()
{
    const Entry file = fake("f", {EntryTrait::File});
    QStringList log;
    {
        ModelFilter filter;
        auto *const kept = new RecordingValidator("kept", true, &log);
        filter.setValidators({new RecordingValidator("old", true, &log), kept});
        QVERIFY(filter.isAllowedEntry(file));
        filter.setValidators(
            {kept, new RecordingValidator("no", false, &log), new RecordingValidator("late", true, &log)});
        QVERIFY(!filter.isAllowedEntry(file));
        QCOMPARE(log, QStringList({"old", "kept", "~old", "kept", "no"}));
        filter.setEntryFilters(ModelFilter::DirsOnly);
        QVERIFY(!filter.isAllowedEntry(file)); // refused before anybody is asked
        log.clear();
    }
    log.sort();
    QCOMPARE(log, QStringList({"~kept", "~late", "~no"}));
}

QTEST_MAIN(ModelFilterTest)
#include "modelfiltertest.moc"
