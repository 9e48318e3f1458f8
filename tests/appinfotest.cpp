// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/appinfo.h>

#include <QtTest>

using namespace VeskFM;

class AppInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesByTheCommand();
    void readsDesktopEntries();
    void findsTheOriginOfACopy();

private:
    /// Writes a desktop entry below the user's applications directory. Returns its path.
    static QString install(const QString &name, const QByteArray &more);
};

QString AppInfoTest::install(const QString &name, const QByteArray &more)
{
    const QString path =
        QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation) + QLatin1Char('/') + name;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write("[Desktop Entry]\nType=Application\n" + more);
    return path;
}

void AppInfoTest::namesByTheCommand()
{
    QCOMPARE(AppInfo::nameByExec(QStringLiteral("foo --new")), QStringLiteral("foo"));
    QCOMPARE(AppInfo::nameByExec(QStringLiteral("editor /home/user/a.png b")), QStringLiteral("a.png"));
    QCOMPARE(AppInfo::nameByExec(QStringLiteral("run /")), QString());
    AppInfo info;
    info.setExec(QStringLiteral("/usr/bin/foo %U"));
    QCOMPARE(info.name(), QStringLiteral("foo"));
    info.setExec(QStringLiteral("bar"));
    QCOMPARE(info.name(), QStringLiteral("foo")); // it has a name now
}

void AppInfoTest::readsDesktopEntries()
{
    const QByteArray entry =
        "Name=Editor\nGenericName=Text Editor\nExec=/opt/edit %f\nIcon=no-theme-has-this\nTerminal=true\n";
    const QString path = install(QStringLiteral("one/two/editor.desktop"), entry);
    install(QStringLiteral("one/two/three/deep.desktop"), entry);
    const AppInfo info = AppInfo::appInfo(QStringLiteral("editor.desktop"));
    QCOMPARE(info, AppInfo::appInfo(path));
    QCOMPARE(info.name(), QStringLiteral("Editor"));
    QCOMPARE(info.comment(), QStringLiteral("Text Editor")); // there is no better one
    QCOMPARE(info.desktopSourceFilePath(), path);
    QCOMPARE(info.icon(), QStringLiteral("system-run")); // no theme has the named one
    QVERIFY(info.source() == AppInfo::DesktopEntryFile && info.terminal());
    QVERIFY(AppInfo::appInfo(QStringLiteral("deep.desktop")).isNull()); // more than two levels down
    QVERIFY(AppInfo::appInfo(QString()).isNull());
    QVERIFY(info.isFromStandardDirs());
    AppInfo beside;
    beside.setSource(AppInfo::DesktopEntryFile, path.section("/one", 0, 0) + "-2/x.desktop");
    QVERIFY(!beside.isFromStandardDirs());
    beside.setSource(AppInfo::DesktopEntryFile, path.section("/one", 0, 0) + "/../x.desktop");
    QVERIFY(!beside.isFromStandardDirs());
}

void AppInfoTest::findsTheOriginOfACopy()
{
    const QString origin = install(QStringLiteral("origin.desktop"), "Name=Origin\nExec=a\n");
    const auto originOf = [](const QByteArray &key) {
        TestTree tree;
        tree.write("copy.desktop",
                   "[Desktop Entry]\nType=Application\nName=Copy\nExec=b\nX-Vesk-OriginFile=" + key + '\n');
        return AppInfo::appInfoForOriginFile(tree.path(QStringLiteral("copy.desktop"))).name();
    };
    QCOMPARE(originOf(origin.toUtf8()), QStringLiteral("Origin"));
    QCOMPARE(originOf(QFileInfo(origin).path().toUtf8() + "/sub/origin.desktop"),
             QStringLiteral("Copy")); // no plain id
    QCOMPARE(originOf("/elsewhere/origin.desktop"), QStringLiteral("Copy"));
    QCOMPARE(originOf(""), QStringLiteral("Copy"));
}

QTEST_MAIN(AppInfoTest)
#include "appinfotest.moc"
