// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/mimerelatedsettings.h>
#include <veskfm/settings.h>

#include <QDir>
#include <QFile>
#include <QTest>

using namespace VeskFM;

class MimeRelatedSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAndWritesTheCommonFile();
};

void MimeRelatedSettingsTest::readsAndWritesTheCommonFile()
{
    MimeRelatedSettings settings;
    QVERIFY(QDir().mkpath(QFileInfo(settings.fileName()).path()));
    const auto read = [&settings] {
        QFile file(settings.fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const auto write = [&settings](const QByteArray &content) {
        QFile file(settings.fileName());
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    QCOMPARE(settings.group(), QStringLiteral("mimeAppsService"));
    QCOMPARE(settings.preferredApplicationPath(), QStringLiteral("/usr/bin"));
    QVERIFY(!settings.applicationDialogSize().isValid());

    Settings::ptr()->setServiceLifeTime(4711);
    settings.setPreferredApplicationPath("/opt/bin");
    settings.setApplicationDialogSize(QSize(640, 480));
    QCOMPARE(settings.preferredApplicationPath(), QStringLiteral("/usr/bin")); // another key
    QCOMPARE(settings.applicationDialogSize(), QSize(640, 480));
    QVERIFY(read().contains("serviceLifeTime=4711"));
    QVERIFY(
        read().contains("[mimeAppsService]\napplicationDialogSize=@Size(640 480)\napplicationPreferredPath=/opt/bin"));

    // By an administrator, meanwhile.
    QVERIFY(write("[mimeAppsService]\npreferredApplicationPath=/srv/programs\n"));
    QCOMPARE(settings.preferredApplicationPath(), QStringLiteral("/srv/programs"));
    QVERIFY(!settings.applicationDialogSize().isValid());

    const QByteArray broken = "[mimeAppsService\npreferredApplicationPath=/srv\n";
    QVERIFY(write(broken));
    settings.setApplicationDialogSize(QSize(1, 1));
    QCOMPARE(settings.preferredApplicationPath(), QStringLiteral("/usr/bin"));
    QCOMPARE(read(), broken);
}

QTEST_GUILESS_MAIN(MimeRelatedSettingsTest)

#include "mimerelatedsettingstest.moc"
