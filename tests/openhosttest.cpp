// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakes.h"
#include "testapplication.h"

#include <veskfm/mimeapps.h>
#include <veskfm/open.h>
#include <veskplatform/vfs.h>

#include <QDBusConnection>
#include <QtTest>

#include <csignal>

using namespace VeskFM;

namespace
{

/// Runs vesk-open, with the tree's programs before those of the system. Returns the exit code.
int runTool(const TestTree &tree, const QList<QByteArray> &arguments)
{
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", tree.path("bin") + ':' + environment.value("PATH"));
    environment.insert("DESKTOP_STARTUP_ID", "tool-id");
    tool.setProcessEnvironment(environment);
    tool.setWorkingDirectory(tree.path());
    QStringList list;
    for (const QByteArray &argument : arguments)
        list.append(QFile::decodeName(argument));
    tool.start(QCoreApplication::applicationDirPath() + "/vesk-open", list);
    return tool.waitForFinished() && tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1;
}

void makeDefault(const TestApplication &app, const char *type)
{
    MimeApps::ptr()->setDefaultMimeTypeApplication(type, AppInfo::appInfo(app.desktopFile()));
}

/// As a file manager names what is no text on the disk.
Entry oddEntry(const TestTree &tree, const QString &escaped)
{
    return VFS::ptr()->entry(tree.path(escaped));
}

QStringList names(const AppInfoList &apps)
{
    QStringList list;
    for (const AppInfo &app : apps)
        list.append(app.name());
    return list;
}

} // namespace

/// Takes files as an application does that the bus starts.
class BusApplication : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public Q_SLOTS:
    void Open(const QStringList &uris, const QVariantMap &data)
    {
        Q_EMIT opened(uris, data.value("desktop-startup-id").toString());
    }

Q_SIGNALS:
    void opened(const QStringList &uris, const QString &id);
};

/// The real service behind opening and associations, started by the bus, and the tool beside it.
class OpenHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsAssociationsOverARestart();
    void setsAllApplicationsOfAType();
    void givesACommandOneDesktopEntry();
    void opensWithContext();
    void expandsCommands_data();
    void expandsCommands();
    void startsTerminalProgramsInATerminal();
    void startsApplicationsOverTheBus();
    void followsLinks_data();
    void followsLinks();
    void tellsWhatCanBeOpened();
    void toolTellsByItsExitCode_data();
    void toolTellsByItsExitCode();
    void answersWhenItsDisplayIsGone(); // last: the bus keeps such a display

private:
    TestTree m_tree;
    // Made before the service starts, which hears of new ones a moment later only.
    TestApplication m_viewer{&m_tree, "viewer"};
    TestApplication m_editor{&m_tree, "editor", "Exec=@ --as \"two words\" %F\nMimeType=text/plain;test/declared;\n"};
    TestApplication m_pager{&m_tree, "pager", "Exec=@ \"two words\" %k 5%% %F\nTerminal=true\n"};
    TestApplication m_player{&m_tree, "org.test.Player", "Exec=@ %F\nDBusActivatable=true\nStartupNotify=true\n"};
    TestApplication m_follower{&m_tree, "follower", "Exec=@ %U\nMimeType=x-scheme-handler/test;\n"};
};

void OpenHostTest::keepsAssociationsOverARestart()
{
    MimeApps &apps = *MimeApps::ptr();
    QCOMPARE(apps.defaultMimeTypeApplication("test/declared"),
             AppInfo::appInfo(m_editor.desktopFile())); // as it declares
    apps.setDefaultMimeTypeApplication("text/plain", AppInfo::appInfo(m_viewer.desktopFile()));
    QCOMPARE(apps.defaultMimeTypeApplication("text/plain").name(), QString("viewer"));
    QVERIFY(apps.setDefaultApplication(AppInfo::appInfo(m_editor.desktopFile())));
    QVERIFY(!apps.setDefaultApplication(AppInfo()));
    apps.setDefaultMailClientExec("/bin/true --new \"a b\"");

    QVERIFY(signalService(apps.serviceName(), SIGKILL));
    QTRY_COMPARE(apps.defaultMimeTypeApplication("text/plain").name(), QString("editor"));
    QVERIFY(apps.defaultMailClientExec().startsWith("/bin/true --new \"a b\""));
    QCOMPARE(apps.defaultMailSenderExec(), apps.defaultMailClientExec());
    apps.setDefaultMailClientExec({});
    QVERIFY(!apps.defaultMailClientExec().contains("--new"));
    QCOMPARE(apps.defaultMimeTypeApplication("no/such"), AppInfo());
    QVERIFY(names(apps.allRegisteredApplications()).contains("viewer"));
}

void OpenHostTest::setsAllApplicationsOfAType()
{
    MimeApps &apps = *MimeApps::ptr();
    const QString type = "test/declared";
    const AppInfo viewer = AppInfo::appInfo(m_viewer.desktopFile());
    const AppInfo editor = AppInfo::appInfo(m_editor.desktopFile());
    apps.setAppsForMime(type, {viewer, editor});
    QCOMPARE(names(apps.mimeTypeApplications(type)), QStringList({"viewer", "editor"}));
    apps.setAppsForMime(type, {viewer});
    QCOMPARE(names(apps.mimeTypeApplications(type)), QStringList("viewer"));
    apps.setAppsForMime(type, {});
    QCOMPARE(apps.mimeTypeApplications(type), AppInfoList());
    QCOMPARE(apps.defaultMimeTypeApplication(type), AppInfo());
    apps.setAppsForMime("bad]type\n[x", {viewer}); // would break the list
    QCOMPARE(apps.defaultMimeTypeApplication("text/plain"), editor);
}

void OpenHostTest::givesACommandOneDesktopEntry()
{
    MimeApps &apps = *MimeApps::ptr();
    const QDir directory(QFileInfo(m_viewer.desktopFile()).path());
    for (int i = 0; i < 3; ++i)
        apps.setDefaultWebBrowserExec("/bin/true --browse");
    QCOMPARE(directory.entryList({"userapp-*"}).filter("true").size(), 2); // the other one is the mail client's
    QCOMPARE(apps.defaultMimeTypeApplication("x-scheme-handler/https").exec(), apps.defaultWebBrowserExec());
    apps.setDefaultWebBrowserExec("/no/such/program");
    QVERIFY(apps.defaultWebBrowserExec().startsWith("/bin/true --browse"));
}

void OpenHostTest::opensWithContext()
{
    QByteArray arguments;
    for (const QByteArray name : {"-e $x 'q\" %F.txt", "line\nend.txt", "bad\xff.txt"}) {
        m_tree.add(name, "text");
        arguments += '<' + m_tree.bytes(name) + ">\n";
    }
    const EntryList entries = {m_tree.entry("-e $x 'q\" %F.txt"), m_tree.entry("line\nend.txt"),
                               oddEntry(m_tree, "bad\U0010ffff.txt")};
    m_tree.add("work\xff/");
    Open::ptr()->open(entries,
                      {{"workingDir", oddEntry(m_tree, "work\U0010ffff").path()},
                       {"desktop-startup-id", "id_1"},
                       {"xdg-activation-token", "token"}});
    QCOMPARE(m_editor.takeStart(), m_tree.bytes("work\xff") + "\nid_1,token\n<--as>\n<two words>\n" + arguments);

    Open::ptr()->open(EntryList(entries.first()), {{"workingDir", "/no/such/directory"}});
    QVERIFY(m_editor.takeStart().startsWith(QDir::homePath().toUtf8() + "\n,\n"));
}

void OpenHostTest::expandsCommands_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QByteArray>("arguments"); // DIR for the tree
    const QByteArray both = "<DIR/a b.png>\n<DIR/c.png>\n";
    QTest::newRow("all files") << QByteArray("Exec=@ %F\n") << both;
    const QByteArray each = "<-x>\n<DIR/a b.png>\nDIR\ntool-id,\n<-x>\n<DIR/c.png>\n";
    QTest::newRow("a process for each file") << QByteArray("Exec=@ -x %f\n") << each;
    QTest::newRow("no code for files") << QByteArray("Exec=@ -x\n") << each;
    QTest::newRow("paths for local addresses") << QByteArray("Exec=@ %U\n") << both;
    QTest::newRow("the other codes") << QByteArray("Icon=icon\nExec=@ %i %c 100%% %F\n")
                                     << "<--icon>\n<icon>\n<painter>\n<100%>\n" + both;
    QTest::newRow("quotes and what a shell would see")
        << QByteArray("Exec=@ \"two  words\" \"\\\\$HOME `id`\" ; %F\n") << "<two  words>\n<$HOME `id`>\n<;>\n" + both;
    QTest::newRow("a directory of its own") << QByteArray("Exec=@ %F\nPath=/\n") << both;
}

void OpenHostTest::expandsCommands()
{
    QFETCH(QByteArray, keys);
    QFETCH(QByteArray, arguments);
    m_tree.add("a b.png");
    m_tree.add("c.png");
    TestApplication painter(&m_tree, "painter", keys);
    makeDefault(painter, "image/png");
    QCOMPARE(runTool(m_tree, {"a b.png", "c.png"}), 0);
    const QByteArray directory = keys.contains("Path=/") ? QByteArray("/") : m_tree.bytes();
    const QByteArray head = directory + "\ntool-id,\n";
    const QByteArray expected = head + arguments.replace("DIR", m_tree.bytes());
    const auto starts = [&head](const QByteArray &text) { // two processes may come in either order
        QStringList list = QString::fromUtf8(text).split(QString::fromUtf8(head));
        list.sort();
        return list;
    };
    QTRY_COMPARE(painter.starts().count('\n'), expected.count('\n'));
    QCOMPARE(starts(painter.takeStart()), starts(expected));
    QFile::remove(painter.desktopFile());
}

void OpenHostTest::startsTerminalProgramsInATerminal()
{
    TestApplication::addProgram(&m_tree, "bin/xterm");
    makeDefault(m_pager, "application/json");
    m_tree.add("data.json", "{}");
    QCOMPARE(runTool(m_tree, {"data.json"}), 0);
    QTRY_COMPARE(TestApplication::starts(m_tree, "bin/xterm"),
                 m_tree.bytes() + "\ntool-id,\n<-e>\n<" + m_tree.bytes("pager") + ">\n<two words>\n<"
                     + m_pager.desktopFile().toUtf8() + ">\n<5%>\n<" + m_tree.bytes("data.json") + ">\n");
}

void OpenHostTest::startsApplicationsOverTheBus()
{
    BusApplication application;
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.registerObject("/org/test/Player", &application, QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService("org.test.Player"));
    makeDefault(m_player, "audio/mpeg");
    const Entry song = m_tree.add("song.mp3");
    QSignalSpy opened(&application, &BusApplication::opened);
    Open::ptr()->open(EntryList(song), {{"xdg-activation-token", "token"}});
    QVERIFY(opened.wait());
    QCOMPARE(opened.first(), QVariantList({QStringList("file://" + song.path()), "token"}));
    QCOMPARE(runTool(m_tree, {"song.mp3"}), 0);
    QVERIFY(opened.size() == 2 || opened.wait());
}

void OpenHostTest::followsLinks_data()
{
    QTest::addColumn<QByteArray>("address");  // DIR for the tree
    QTest::addColumn<QByteArray>("argument"); // empty: it is not opened
    QTest::newRow("file") << QByteArray("file://DIR/link%20target.txt") << QByteArray("DIR/link target.txt");
    QTest::newRow("path") << QByteArray("DIR/link target.txt") << QByteArray("DIR/link target.txt");
    QTest::newRow("address") << QByteArray("test:x?a=b%20c") << QByteArray("test:x?a=b%20c");
    QTest::newRow("nothing there") << QByteArray("file://DIR/none") << QByteArray();
    QTest::newRow("itself") << QByteArray("file://DIR/shortcut.desktop") << QByteArray("DIR/shortcut.desktop");
    QTest::newRow("unknown scheme") << QByteArray("nobody:x") << QByteArray();
    QTest::newRow("no address") << QByteArray("") << QByteArray("DIR/shortcut.desktop");
}

void OpenHostTest::followsLinks()
{
    QFETCH(QByteArray, address);
    QFETCH(QByteArray, argument);
    makeDefault(m_editor, "application/x-desktop");
    m_tree.add("link target.txt", "text");
    m_tree.add("shortcut.desktop", "[Desktop Entry]\nType=Link\nURL=" + address.replace("DIR", m_tree.bytes()) + '\n');
    QCOMPARE(Open::ptr()->canOpen(m_tree.entry("shortcut.desktop")), !argument.isEmpty());
    if (argument.isEmpty())
        return;
    QCOMPARE(runTool(m_tree, {"-e", "shortcut.desktop"}), 0);
    TestApplication &opener = address.startsWith("test:") ? m_follower : m_editor;
    QVERIFY(opener.takeStart().endsWith('<' + argument.replace("DIR", m_tree.bytes()) + ">\n"));
}

void OpenHostTest::tellsWhatCanBeOpened()
{
    QVERIFY(Open::ptr()->canOpen(m_tree.add("plain.txt", "text")));
    m_tree.add("\xff.txt", "text");
    QVERIFY(Open::ptr()->canOpen(oddEntry(m_tree, "\U0010ffff.txt")));
    QVERIFY(!Open::ptr()->canOpen(m_tree.add("program.xyz", QByteArray("\x7f\105LF\0\1", 6))));
    QVERIFY(!Open::ptr()->canOpen(Entry()));
}

void OpenHostTest::toolTellsByItsExitCode_data()
{
    QTest::addColumn<QList<QByteArray>>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("opened");
    using List = QList<QByteArray>;
    QTest::newRow("can") << List{"--canOpen", "-plain.txt"} << 0 << 0;
    QTest::newRow("cannot") << List{"--canOpen", "program.xyz"} << 1 << 0;
    QTest::newRow("no file") << List{"--canOpen", "none.txt"} << 3 << 0;
    QTest::newRow("bare path") << List{"./-plain.txt"} << 0 << 1;
    QTest::newRow("path like an option") << List{"-e", "--", "-plain.txt"} << 0 << 1;
    QTest::newRow("path of a file manager") << List{m_tree.bytes() + "/\xf4\x8f\xbf\xbf.txt"} << 0 << 1;
    QTest::newRow("one is not there") << List{"none.txt", "./-plain.txt"} << 3 << 1;
    QTest::newRow("no application") << List{"program.xyz"} << 1 << 0;
    QTest::newRow("empty path") << List{"-e", ""} << 3 << 0;
    QTest::newRow("unknown option") << List{"--nonsense", "x"} << 2 << 0;
    QTest::newRow("no path") << List{"-o"} << 2 << 0;
    QTest::newRow("help") << List{"--help"} << 0 << 0;
}

void OpenHostTest::toolTellsByItsExitCode()
{
    QFETCH(QList<QByteArray>, arguments);
    QFETCH(int, opened);
    m_tree.add("-plain.txt", "text");
    m_tree.add("\xff.txt", "text");
    m_tree.add("program.xyz", QByteArray("\x7f\105LF\0\1", 6));
    QTEST(runTool(m_tree, arguments), "code");
    if (opened)
        QCOMPARE(m_editor.takeStart().count("<--as>"), opened);
    QCOMPARE(m_editor.starts(), QByteArray());
}

void OpenHostTest::answersWhenItsDisplayIsGone()
{
    const Entry text = m_tree.add("plain.txt", "text");
    QVERIFY(signalService(Open::ptr()->serviceName(), SIGKILL));
    setActivationEnvironment({{"DISPLAY", ":4711"}, {"QT_QPA_PLATFORM", ""}});
    QTRY_VERIFY(Open::ptr()->canOpen(text));
    Open::ptr()->open(EntryList(text), {{"dialog", true}}); // refused
    QVERIFY(Open::ptr()->canOpen(text) && isOnBus(Open::ptr()->serviceName()));
}

QTEST_MAIN(OpenHostTest)

#include "openhosttest.moc"
