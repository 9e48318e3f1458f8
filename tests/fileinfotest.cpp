// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/entrypropertyset.h>
#include <veskfm/entryviewparameters.h>
#include <veskfm/propsplugin.h>
#include <veskfm/propspluginwidget.h>

#include <QCheckBox>
#include <QLabel>
#include <QtConcurrentRun>
#include <QtTest>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

using namespace VeskFM;

namespace
{

constexpr int sortKeyRole = 256;
constexpr int badEntryRole = 257;
enum Column { Size, Modified, Owner, Permissions };

unsigned int modeOf(const TestTree &tree, const char *name)
{
    struct stat found = {};
    return lstat(tree.bytes(name).constData(), &found) == 0 ? found.st_mode & 07777 : 0;
}

} // namespace

class FileInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void knowsTheSizeAtOnceAndTheRestRefined();
    void tellsBadEntries();
    void survivesRefinementOnThePool();
    void addsUpASelection();
    void showsAndChangesPermissions();
    void changesSeveralFilesAndTellsErrors();

private:
    std::unique_ptr<EntryPropertySet> newSet()
    {
        return std::unique_ptr<EntryPropertySet>(m_plugin->createPropertySet());
    }
    std::unique_ptr<PropsPluginWidget> newPage(const EntryList &entries)
    {
        return std::unique_ptr<PropsPluginWidget>(m_plugin->createPropsWidget(entries, nullptr));
    }

    PropsPlugin *m_plugin = nullptr; // the loader's
};

void FileInfoTest::initTestCase()
{
    QPluginLoader loader(QCoreApplication::applicationDirPath() + "/../plugin-dir/fileinfo.so");
    QVERIFY2(loader.instance(), qPrintable(loader.errorString()));
    m_plugin = qobject_cast<PropsPlugin *>(loader.instance());
    QVERIFY(m_plugin);
}

void FileInfoTest::knowsTheSizeAtOnceAndTheRestRefined()
{
    TestTree tree;
    const Entry entry = tree.add("a", QByteArray(2048, 'x'));
    const struct timespec times[2] = {{1000000000, 0}, {1000000000, 500000000}};
    QCOMPARE(utimensat(AT_FDCWD, tree.bytes("a").constData(), times, 0), 0);
    QCOMPARE(chmod(tree.bytes("a").constData(), 04750), 0);
    const auto set = newSet();
    set->prepare(entry);
    QCOMPARE(set->value(entry, Size, sortKeyRole), QVariant(qlonglong(2048)));
    QCOMPARE(set->value(entry, Size, Qt::DisplayRole), "2.00 KB");
    EntryViewParameters::ptr()->setShowFileSizeInBytes(true);
    set->updatePresentation(entry, false);
    QCOMPARE(set->value(entry, Size, Qt::DisplayRole), "2048 B");
    EntryViewParameters::ptr()->setShowFileSizeInBytes(false);
    for (int column : {Modified, Owner, Permissions})
        QCOMPARE(set->value(entry, column, Qt::DisplayRole).toString(), QString());
    set->refineData(entry);
    QCOMPARE(set->value(entry, Modified, sortKeyRole).toDateTime().toMSecsSinceEpoch(), 1000000000500);
    QCOMPARE(set->value(entry, Owner, Qt::DisplayRole).toString(), QString(getpwuid(getuid())->pw_name));
    QCOMPARE(set->value(entry, Permissions, Qt::DisplayRole), "-rwsr-x---");
    set->prepare(tree.entry()); // a directory: nothing of the file may stay
    QCOMPARE(set->value(tree.entry(), Size, Qt::DisplayRole).toString(), QString());
    QCOMPARE(set->value(tree.entry(), Permissions, sortKeyRole).toString(), QString());
}

void FileInfoTest::tellsBadEntries()
{
    TestTree tree({"a"});
    const Entry entry = tree.entry("a");
    const Entry dead = tree.link("dead", "nowhere");
    const auto set = newSet();
    set->prepare(dead);
    set->refineData(dead);
    QCOMPARE(set->value(dead, Size, badEntryRole), false); // the link itself can be read
    set->prepare(entry);
    QCOMPARE(set->value(entry, Size, badEntryRole), false);
    tree.remove("a");
    set->refineData(entry);
    QCOMPARE(set->value(entry, Size, badEntryRole), true);
}

void FileInfoTest::survivesRefinementOnThePool()
{
    TestTree tree({"a"});
    const Entry entry = tree.entry("a");
    const auto set = newSet();
    set->prepare(entry);
    for (int round = 0; round < 200; ++round) {
        QFuture<void> worker = QtConcurrent::run([&] { set->refineData(entry); });
        while (!worker.isFinished()) {
            set->value(entry, Permissions, sortKeyRole);
            if (round % 4 == 0)
                set->prepare(entry);
        }
        worker.waitForFinished();
    }
    set->refineData(entry);
    QCOMPARE(set->value(entry, Permissions, Qt::DisplayRole), "-rw-r--r--");
}

void FileInfoTest::addsUpASelection()
{
    TestTree tree;
    tree.add("d/a", QByteArray(1000, 'x'));
    tree.add("d/e/b", QByteArray(20, 'x'));
    tree.add("d/e/\xff", QByteArray(3, 'x'));
    QCOMPARE(::link(tree.bytes("d/a").constData(), tree.bytes("d/e/again").constData()), 0);
    tree.link("d/e/up", "../../d");
    tree.add("big", QByteArray(1 << 20, 'x'));
    tree.link("d/l", "../big"); // 6 bytes, not a megabyte
    bool running = true;
    QCOMPARE(m_plugin->textDigest({tree.entry("d"), tree.entry("d/e"), tree.entry("d/a")}, &running),
             "1.01 KB in 5 file(s)"); // each file once
    running = false;
    QCOMPARE(m_plugin->textDigest({tree.entry("d")}, &running), QString());
}

void FileInfoTest::showsAndChangesPermissions()
{
    TestTree tree({"a"});
    QCOMPARE(chmod(tree.bytes("a").constData(), 02750), 0);
    const auto page = newPage({tree.entry("a")});
    const auto box = [&page](const char *name) { return page->findChild<QCheckBox *>(name); };
    QCOMPARE(page->findChild<QLabel *>("owner")->text(), QString(getpwuid(getuid())->pw_name));
    QVERIFY(box("group-execute")->isChecked() && !box("group-write")->isChecked() && !box("others-read")->isChecked());
    box("others-read")->click();
    box("user-execute")->click();
    QCOMPARE(modeOf(tree, "a"), 02750u); // nothing before apply()
    page->apply();
    QCOMPARE(modeOf(tree, "a"), 02654u); // the set-group-id bit stays
    QCOMPARE(page->findChild<QLabel *>("permissions")->text(), "-rw-r-sr--");
}

void FileInfoTest::changesSeveralFilesAndTellsErrors()
{
    TestTree tree({"a", "b", "c", "<b>gone", "target"});
    QCOMPARE(chmod(tree.bytes("a").constData(), 0640), 0);
    QCOMPARE(chmod(tree.bytes("b").constData(), 0604), 0);
    const Entry link = tree.link("link", "target");
    QVERIFY(!newPage({link})->findChild<QCheckBox *>("user-read")->isEnabled());
    const auto page = newPage({tree.entry("<b>gone"), tree.entry("a"), tree.entry("b"), tree.entry("c"), link});
    QCOMPARE(page->findChild<QCheckBox *>("group-read")->checkState(), Qt::PartiallyChecked);
    page->findChild<QCheckBox *>("user-execute")->setChecked(true);
    page->findChild<QCheckBox *>("others-read")->setCheckState(Qt::Unchecked);
    tree.remove("<b>gone");
    tree.remove("c");
    tree.link("c", "target"); // put there between the look and the change
    page->apply();
    QCOMPARE(modeOf(tree, "a"), 0740u); // what was mixed stays
    QCOMPARE(modeOf(tree, "b"), 0700u);
    QCOMPARE(modeOf(tree, "target"), 0644u);
    const QLabel *errors = page->findChild<QLabel *>("errors");
    QVERIFY(!errors->isHidden() && errors->textFormat() == Qt::PlainText);
    QVERIFY2(errors->text().contains("<b>gone: No such file"), qPrintable(errors->text()));
}

QTEST_MAIN(FileInfoTest)
#include "fileinfotest.moc"
