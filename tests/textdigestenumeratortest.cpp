// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "recordingplugin.h"

#include <veskfm/textdigestenumerator.h>

#include <QTest>

#include <functional>
#include <stdexcept>

using namespace VeskFM;

namespace
{

class DigestPlugin : public RecordingPlugin
{
public:
    explicit DigestPlugin(std::function<QString(bool *running)> digest)
        : RecordingPlugin(0)
        , m_digest(std::move(digest))
    {
    }
    bool hasTextDigest() override { return true; }
    QString textDigest(const EntryList &, bool *running) override { return m_digest(running); }

private:
    const std::function<QString(bool *)> m_digest;
};

} // namespace

class TextDigestEnumeratorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksThePluginsThatHaveDigests()
    {
        RecordingPlugin without(0);
        DigestPlugin plain([](bool *running) { return *running ? QStringLiteral("3 files") : QString(); });
        DigestPlugin throwing([](bool *) -> QString { throw std::runtime_error("disk gone"); });
        DigestPlugin stopping([](bool *running) {
            *running = false;
            return QStringLiteral("a part");
        });
        TextDigestEnumerator enumerator({&without, &plain, &throwing, &stopping});
        QCOMPARE(enumerator.count(), 0);
        QCOMPARE(enumerator.text(0), QString()); // not started

        bool running = true;
        enumerator.start({}, &running);
        QCOMPARE(enumerator.count(), 3);
        QCOMPARE(enumerator.text(0), QStringLiteral("3 files"));
        QTest::ignoreMessage(QtWarningMsg, "The text digest of \"recording\" failed: disk gone");
        QCOMPARE(enumerator.text(1), QString());
        QCOMPARE(enumerator.text(-1), QString());
        QCOMPARE(enumerator.text(3), QString());
        QCOMPARE(enumerator.text(2), QString()); // stopped meanwhile
        QCOMPARE(enumerator.text(0), QString()); // and since
        enumerator.start({}, nullptr);
        QCOMPARE(enumerator.text(0), QStringLiteral("3 files"));
    }
};

QTEST_GUILESS_MAIN(TextDigestEnumeratorTest)
#include "textdigestenumeratortest.moc"
