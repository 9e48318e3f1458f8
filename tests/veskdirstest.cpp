// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/standardpaths.h>
#include <veskplatform/veskdirs.h>

#include <QTest>

/// Fixed places and the session, as the environment gives them.
class VeskDirsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheEnvironment();
};

void VeskDirsTest::followsTheEnvironment()
{
    const auto answers = [](const char *variable, const char *value) {
        for (const char *name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "TMPDIR", "VESK_SESSION"})
            qunsetenv(name);
        qputenv("HOME", "/h/");
        qputenv(variable, value);
        QStringList given;
        for (const int kind : {1, 4, 17, 25})
            given.append(QString::fromStdString(GetVeskDir(kind)));
        given << VeskFM::StandardPaths::trashDirPath() << QString::number(whatVeskSession());
        return given.join(QLatin1Char(' '));
    };
    const QString standard("/tmp /h/.local/share/applications /h/.local/share/vesk/toolbar /h/.config/autostart "
                           "/h/.local/share/Trash/files 0");
    QCOMPARE(answers("VESK_SESSION", "8x"), standard); // no number
    QCOMPARE(answers("VESK_SESSION", "8"), QString(standard).replace(" 0", " 8"));
    QCOMPARE(answers("XDG_DATA_HOME", "data"), standard); // relative paths are ignored
    QCOMPARE(answers("XDG_DATA_HOME", "/d//"), QString(standard).replace("/h/.local/share", "/d"));
    QCOMPARE(answers("TMPDIR", "/t/"), QString(standard).replace("/tmp", "/t"));
}

QTEST_APPLESS_MAIN(VeskDirsTest)
#include "veskdirstest.moc"
