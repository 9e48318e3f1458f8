// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "recordingplugin.h"
#include "testtree.h"

#include "fixedplaces.h"

#include <veskfm/corepluginsmanager.h>
#include <veskfm/entrydescribethread.h>

#include <QtTest>

#include <stdexcept>

using namespace VeskFM;

namespace
{

class DigestPlugin : public RecordingPlugin
{
public:
    DigestPlugin()
        : RecordingPlugin(0)
    {
    }
    bool hasTextDigest() override { return true; }
    QString textDigest(const EntryList &, bool *running) override { return digest(running); }

    std::function<QString(bool *)> digest = [](bool *) { return QStringLiteral("5 words"); };
};

DigestPlugin first;
DigestPlugin second;

} // namespace

// Stands in front of the library's: these are the plug-ins that there are.
QList<PropsPlugin *> CorePluginsManager::propsPlugins() const
{
    return {&first, &second};
}

class EntryDescribeThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_thread = std::make_unique<EntryDescribeThread>();
        m_updates = std::make_unique<QSignalSpy>(m_thread.get(), &EntryDescribeThread::descriptionUpdated);
        m_finished = std::make_unique<QSignalSpy>(m_thread.get(), &EntryDescribeThread::finished);
        for (QTimer *timer : m_thread->findChildren<QTimer *>())
            (timer->isSingleShot() ? m_relaxation : m_animation) = timer;
        first.digest = [](bool *) { return QStringLiteral("2 lines"); };
    }

    void saysAtOnceWhatIsKnown_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("relaxationMs");
        const QStringList several{"dir", "file", "file", "file", "file"};
        const auto row = [](const char *name, const QStringList &names, const char *language, const char *text,
                            int relaxationMs) { QTest::newRow(name) << names << language << text << relaxationMs; };
        row("a file", {"file"}, "", "file (2.00 KB)", 0);
        row("a directory", {"dir"}, "", "dir", 1000);
        row("a directory among files", several, "en", "5 entries", 1000);
        row("Russian, many", several, "ru", "5 записей", 1000);
        row("Russian, few", {"file", "file"}, "ru", "2 записи", 0);
        row("nothing, in no language", {}, "", "0 entry(s)", 0);
    }

    void saysAtOnceWhatIsKnown()
    {
        QFETCH(QStringList, names);
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(language.isEmpty() || translator.load("libveskfmcore_" + language, VESKFM_TRANSLATIONS_DIR));
        QCoreApplication::installTranslator(&translator);
        EntryList entries;
        for (const QString &name : qAsConst(names))
            entries.append(m_tree.entry(name));
        m_thread->describe(entries);
        QTEST(lastText(), "text");
        QVERIFY(!m_thread->isRunning() && m_relaxation->isActive() && m_animation->isActive());
        QTEST(m_relaxation->interval(), "relaxationMs");
    }

    void growsByTheDigests()
    {
        m_thread->describe(EntryList(m_file));
        QVERIFY(m_finished->wait());
        QCOMPARE(lastText(), "file (2.00 KB), 2 lines, 5 words");
        QVERIFY(!m_animation->isActive());

        QSemaphore goOn;
        first.digest = [&](bool *) -> QString {
            goOn.acquire();
            throw std::runtime_error("disk gone");
        };
        QTest::ignoreMessage(QtWarningMsg, "The text digest of \"recording\" failed: disk gone");
        m_thread->describe(EntryList(m_tree.entry("dir")));
        m_thread->relaxationTimeout(); // a second later
        QTRY_COMPARE(lastText(), "dir, ..");
        goOn.release();
        QVERIFY(m_finished->wait());
        QCOMPARE(lastText(), "dir, 5 words");
    }

    void stopsADigest()
    {
        beginEndlessDigest();
        m_thread->stop();
        QVERIFY(!m_thread->isRunning());
        QVERIFY(m_finished->wait());
        QCOMPARE(lastText(), "file (2.00 KB)"); // no part of a digest, and none begun any more
        m_thread->describe(EntryList(m_tree.entry("dir")));
        m_thread->stop(); // before the digests began
        QTRY_VERIFY(!m_animation->isActive() && !m_relaxation->isActive());
        QCOMPARE(lastText(), "dir");
        QCOMPARE(m_finished->count(), 1);
        beginEndlessDigest();
        m_thread.reset();
    }

    void forgetsWhatWasReplaced()
    {
        beginEndlessDigest();
        m_thread->stop();
        QSemaphore goOn;
        first.digest = [&](bool *) { return goOn.acquire(), QString(); };
        m_thread->describe(EntryList(m_tree.entry("dir"))); // the end of the former is not heard of yet
        m_thread->relaxationTimeout();
        QVERIFY(!m_finished->wait(50));
        QVERIFY(m_animation->isActive());
        goOn.release();
        QVERIFY(m_finished->wait());
        QCOMPARE(lastText(), "dir, 5 words");
    }

private:
    QString lastText() const { return m_updates->last().first().toString(); }
    void beginEndlessDigest()
    {
        QSemaphore begun;
        first.digest = [&begun](bool *running) {
            begun.release();
            while (__atomic_load_n(running, __ATOMIC_ACQUIRE))
                QThread::yieldCurrentThread();
            return QStringLiteral("a part");
        };
        m_thread->describe(EntryList(m_file));
        m_thread->relaxationTimeout();
        begun.acquire();
    }

    TestTree m_tree{"dir/"};
    const Entry m_file = m_tree.add("file", QByteArray(2048, 'x'));
    std::unique_ptr<EntryDescribeThread> m_thread;
    std::unique_ptr<QSignalSpy> m_updates;
    std::unique_ptr<QSignalSpy> m_finished;
    QTimer *m_relaxation = nullptr;
    QTimer *m_animation = nullptr;
};

QTEST_MAIN(EntryDescribeThreadTest)

#include "entrydescribethreadtest.moc"
