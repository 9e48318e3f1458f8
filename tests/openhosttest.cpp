// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/mimeapps.h>
#include <veskfm/open.h>
#include <veskplatform/vfs.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QtTest>

#include <csignal>

using namespace VeskFM;

/// The real service behind opening and associations, started by the bus, with applications that note how they were
/// started.
class OpenHostTest : public QObject
{
    Q_OBJECT

private:
    QString application(const QString &id)
    {
        const QString script = m_tree.path(id + ".sh");
        m_tree.add(id.toUtf8() + ".sh",
                   "#!/bin/sh\nout='" + m_tree.path(id).toUtf8()
                       + "'\n{ pwd; echo \"$DESKTOP_STARTUP_ID,$XDG_ACTIVATION_TOKEN\"\n"
                         "for a; do printf '%s\\n' \"$a\"; done; } >\"$out.part\"\nmv \"$out.part\" \"$out\"\n");
        QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner);
        const QString path =
            QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation) + '/' + id + ".desktop";
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write("[Desktop Entry]\nType=Application\nName=" + id.toUtf8() + "\nExec=" + script.toUtf8()
                   + " --as \"two words\" %F\nMimeType=text/plain;text/x-c;\n");
        return path;
    }

    QByteArray startOf(const QString &id)
    {
        QFile file(m_tree.path(id));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    int runTool(const QByteArrayList &arguments)
    {
        QProcess tool;
        tool.setProgram(QCoreApplication::applicationDirPath() + "/vesk-open");
        QStringList list;
        for (const QByteArray &argument : arguments)
            list.append(QFile::decodeName(argument));
        tool.setArguments(list);
        tool.start();
        return tool.waitForFinished() && tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1;
    }

    TestTree m_tree;
    QString m_viewer;
    QString m_editor;

private Q_SLOTS:
    void initTestCase()
    {
        m_viewer = application("viewer");
        m_editor = application("editor");
        MimeApps::ptr()->setAppsForMime("text/plain", {AppInfo::appInfo(m_viewer), AppInfo::appInfo(m_editor)});
    }

    void keepsAssociationsOverARestart()
    {
        MimeApps &apps = *MimeApps::ptr();
        QCOMPARE(apps.defaultMimeTypeApplication("text/plain").desktopSourceFilePath(), m_viewer);
        apps.setDefaultMimeTypeApplication("text/plain", AppInfo::appInfo(m_editor));
        QVERIFY(apps.setDefaultApplication(AppInfo::appInfo(m_editor)));
        QVERIFY(!apps.setDefaultApplication(AppInfo()));
        apps.setDefaultWebBrowserExec("/bin/true --new \"a b\"");

        const QDBusConnectionInterface *const bus = QDBusConnection::sessionBus().interface();
        const uint pid = bus->servicePid(apps.serviceName());
        QVERIFY(pid > 1);
        kill(pid_t(pid), SIGKILL);
        QTRY_VERIFY(!bus->isServiceRegistered(apps.serviceName()).value());

        QTRY_COMPARE(apps.defaultMimeTypeApplication("text/plain").desktopSourceFilePath(), m_editor);
        QCOMPARE(apps.defaultMimeTypeApplication("text/x-c").name(), QString("editor"));
        QVERIFY(apps.defaultWebBrowserExec().startsWith("/bin/true --new \"a b\""));
        QCOMPARE(apps.mimeTypeApplications("text/plain").first().name(), QString("editor"));
        QVERIFY(apps.mimeTypeApplications("text/plain").size() >= 2);
        QCOMPARE(apps.defaultMimeTypeApplication("no/such"), AppInfo());
        QVERIFY(apps.defaultMailSenderExec().isEmpty());
    }

    void opensWithContext()
    {
        const QByteArrayList names = {"-e $x 'q\" %F.txt", "line\nend.txt", "bad\xff.txt"};
        EntryList entries;
        QByteArray expected;
        for (const QByteArray &name : names) {
            m_tree.add(name, "text");
            const QByteArray url = "file://" + m_tree.bytes(name).toPercentEncoding("/");
            entries += VFS::ptr()->entriesFromUrls({QUrl::fromEncoded(url)});
            expected += m_tree.bytes(name) + '\n';
        }
        m_tree.add("work/");
        Open::ptr()->open(
            entries,
            {{"workingDir", m_tree.path("work")}, {"desktop-startup-id", "id_1"}, {"xdg-activation-token", "token"}});
        QTRY_VERIFY(!startOf("editor").isEmpty());
        QCOMPARE(startOf("editor"), m_tree.path("work").toUtf8() + "\nid_1,token\n--as\ntwo words\n" + expected);
    }

    void tellsWhatCanBeOpened()
    {
        const Entry text = m_tree.add("plain.txt", "text");
        const Entry program = m_tree.add("program.xyz",
                                         QByteArray("\x7f"
                                                    "ELF\0\1",
                                                    6));
        QVERIFY(Open::ptr()->canOpen(text));
        QVERIFY(!Open::ptr()->canOpen(program));
        QVERIFY(!Open::ptr()->canOpen(Entry()));
        QCOMPARE(runTool({"--canOpen", QFile::encodeName(text.path())}), 0);
        QCOMPARE(runTool({"--canOpen", QFile::encodeName(program.path())}), 1);
        QCOMPARE(runTool({"-e", "/no/such/file"}), 3);
        QCOMPARE(runTool({"--nonsense"}), 2);
        QFile::remove(m_tree.path("editor"));
        QCOMPARE(runTool({QFile::encodeName(text.path())}), 0);
        QTRY_VERIFY(startOf("editor").endsWith("plain.txt\n"));
    }
};

QTEST_MAIN(OpenHostTest)

#include "openhosttest.moc"
