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
    void followsTheEnvironment_data();
    void followsTheEnvironment();
};

void VeskDirsTest::followsTheEnvironment_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("answers"); // temporary, menu, toolbar, autostart, trash, session
    const char *const standard = "/tmp /h/.local/share/applications /h/.local/share/vesk/toolbar /h/.config/autostart "
                                 "/h/.local/share/Trash/files 0";
    QTest::newRow("defaults") << QByteArray("NONE") << QByteArray() << standard;
    QTest::newRow("relative paths are ignored") << QByteArray("XDG_DATA_HOME") << QByteArray("data") << standard;
    QTest::newRow("trailing slashes") << QByteArray("XDG_DATA_HOME") << QByteArray("/d//")
                                      << "/tmp /d/applications /d/vesk/toolbar /h/.config/autostart /d/Trash/files 0";
    QTest::newRow("temporary files") << QByteArray("TMPDIR") << QByteArray("/t/")
                                     << QString(standard).replace("/tmp", "/t");
    QTest::newRow("session") << QByteArray("VESK_SESSION") << QByteArray("8") << QString(standard).replace(" 0", " 8");
    QTest::newRow("no number") << QByteArray("VESK_SESSION") << QByteArray("8x") << standard;
}

void VeskDirsTest::followsTheEnvironment()
{
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, value);
    QFETCH(QString, answers);
    qputenv("HOME", "/h/");
    for (const char *name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "TMPDIR", "VESK_SESSION"})
        qunsetenv(name);
    qputenv(variable.constData(), value);
    QStringList given;
    for (const int kind : {1, 4, 17, 25})
        given.append(QString::fromStdString(GetVeskDir(kind)));
    given << VeskFM::StandardPaths::trashDirPath() << QString::number(whatVeskSession());
    QCOMPARE(given.join(QLatin1Char(' ')), answers);
    QCOMPARE(GetVeskDir(2), std::string());
}

QTEST_APPLESS_MAIN(VeskDirsTest)
#include "veskdirstest.moc"
