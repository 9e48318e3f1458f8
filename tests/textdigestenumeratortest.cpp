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
    using RecordingPlugin::RecordingPlugin;
    bool hasTextDigest() override { return true; }
    QString textDigest(const EntryList &, bool *running) override { return digest(running); }

    std::function<QString(bool *running)> digest;
};

} // namespace

class TextDigestEnumeratorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksThePluginsThatHaveDigests()
    {
        RecordingPlugin without(0);
        DigestPlugin plain(0), throwing(0), stopping(0);
        plain.digest = [](bool *running) { return *running ? "3 files" : ""; };
        throwing.digest = [](bool *) -> QString { throw std::runtime_error("disk gone"); };
        stopping.digest = [](bool *running) {
            *running = false;
            return "a part";
        };
        TextDigestEnumerator enumerator({&without, &plain, &throwing, &stopping});
        QCOMPARE(enumerator.text(0), QString()); // not started

        bool running = true;
        enumerator.start({}, &running);
        QCOMPARE(enumerator.count(), 3);
        QCOMPARE(enumerator.text(0), QStringLiteral("3 files"));
        QTest::ignoreMessage(QtWarningMsg, "The text digest of \"recording\" failed: disk gone");
        QCOMPARE(enumerator.text(1), QString());
        QCOMPARE(enumerator.text(-1) + enumerator.text(3), QString());
        QCOMPARE(enumerator.text(2), QString()); // stopped meanwhile
        QCOMPARE(enumerator.text(0), QString()); // and since
        enumerator.start({}, nullptr);
        QCOMPARE(enumerator.text(0), QStringLiteral("3 files"));
    }
};

QTEST_GUILESS_MAIN(TextDigestEnumeratorTest)
#include "textdigestenumeratortest.moc"
