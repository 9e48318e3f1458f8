// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <fixedplaces.h>
#include <veskfm/core.h>

#include <QtTest>

#include <csignal>

#include <unistd.h>

using namespace VeskFM;

namespace
{

void say(const char *text)
{
    (void)!write(STDOUT_FILENO, text, strlen(text));
}

/// What this program does as a child of itself, where a signal or a fatal message ends it.
int runChild(const QString &mode)
{
    if (mode == QLatin1String("messages")) {
        qDebug("100%% %s", "%s %n");
        qInfo("never");
        Core::setDebugOutputEnabled(false);
        qDebug("dropped");
        qWarning("two\nlines");
        qCritical("c");
        qFatal("f");
    }
    Core::addHaltHandler([](Core::HaltReason reason) {
        say(reason == Core::Crashed ? "crashed " : "terminated ");
        Core::addHaltHandler([](Core::HaltReason) { say("late "); });
    });
    Core::addHaltHandler([](Core::HaltReason) { say("second "); });
    Core::installHaltSignalHandler();
    raise(mode.toInt());
    return 0; // not reached: the default action ends the process
}

struct ChildResult
{
    int signal = 0;
    QByteArray output, errors;
};

ChildResult runInChild(const QString &mode)
{
    // Through a shell, which keeps core images from being written.
    QProcess child;
    child.start("/bin/sh",
                {"-c", "ulimit -c 0; exec \"$0\" --child $1", QCoreApplication::applicationFilePath(), mode});
    child.waitForFinished();
    return {child.exitStatus() == QProcess::CrashExit ? child.exitCode() : 0, child.readAllStandardOutput(),
            child.readAllStandardError()};
}

/// Makes a program that writes what it was started with, and then, as a sign that it is done, renames that to @p result.
void makeReporter(const QString &path, const QString &result)
{
    QFile script(path);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write(QStringLiteral("#!/bin/sh\necho \"$*|$(pwd)|${DISPLAY-unset}|${GIVEN-unset}\" > '%1.part'\n"
                                "mv '%1.part' '%1'\n")
                     .arg(result)
                     .toLocal8Bit());
    script.setPermissions(script.permissions() | QFile::ExeOwner);
}

} // namespace

class CoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registersItsValueTypesWhenLoaded();
    void sizeTexts();
    void startsCommandLines();
    void startsOnTheRootDisplay();
    void printsMessagesWithTheirLevel();
    void runsHaltHandlersAndThenTheDefaultAction();
};

void CoreTest::registersItsValueTypesWhenLoaded()
{
    for (const char *name : {"VeskFM::FOpId", "VeskFM::FavoritePlace", "VeskFM::StoragePlace", "VeskFM::AppInfoList",
                             "VeskFM::EntryPropertyRequest", "EntryPropertyRequestList", "VeskFM::ProcessInfoList"})
        QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name); // before anybody else had a reason to
}

void CoreTest::sizeTexts()
{
    QCOMPARE(Core::dataSizeAsString(-(1LL << 40)), "-1099511627776 B");
    QCOMPARE(Core::dataSizeAsString(1023), "1023 B");
    QCOMPARE(Core::dataSizeAsString(1024), "1.00 KB");
    QCOMPARE(Core::dataSizeAsString(1048575), "1024.00 KB"); // the unit before rounding
    QCOMPARE(Core::dataSizeAsString(3LL << 29), "1.50 GB");
    QCOMPARE(Core::dataSizeAsString(std::numeric_limits<qlonglong>::max()), "8388608.00 TB");
}

void CoreTest::startsCommandLines()
{
    TestTree tree({"work/"});
    const QString result = tree.path("result");
    makeReporter(tree.path("run it"), result);
    QVERIFY(Core::startProcess(QStringLiteral("\"%1\"  one \"two three\"").arg(tree.path("run it"))));
    QTRY_VERIFY(contentOf(result).startsWith("one two three|"));
    QVERIFY(!Core::startProcess("   ") && !Core::startProcess(tree.path("missing")));

    qputenv("DISPLAY", "");
    QProcessEnvironment variables;
    variables.insert("GIVEN", "yes");
    variables.insert("DISPLAY", ":3");
    QVERIFY(Core::startProcess("/bin/sh", {tree.path("run it"), "a b"}, tree.path("work"), variables));
    QVERIFY(qgetenv("GIVEN").isNull());
    QVERIFY(qEnvironmentVariableIsSet("DISPLAY") && qEnvironmentVariableIsEmpty("DISPLAY")); // empty is not unset
    QTRY_COMPARE(contentOf(result).trimmed(), "a b|" + tree.bytes("work") + "|:3|yes");
    qunsetenv("DISPLAY");
}

void CoreTest::startsOnTheRootDisplay()
{
    const QString tool = QStringLiteral(VESKFM_ROOT_DISPLAY_TOOL);
    if (!tool.startsWith(QFileInfo(QCoreApplication::applicationDirPath()).path()))
        QSKIP("the root-display tool is not in the build tree");
    TestTree tree;
    const QString result = tree.path("result");
    makeReporter(tool, result);
    qputenv("ROOT_DISPLAY", ":5");
    qputenv("DISPLAY", ":0");

    QVERIFY(Core::startProcess("xterm \"a  b\""));
    QTRY_VERIFY(contentOf(result).startsWith("xterm a  b|") && contentOf(result).contains("|:5|"));
    QProcessEnvironment variables;
    variables.insert("DISPLAY", ":7");
    QVERIFY(Core::startProcess("xterm", {"-e"}, tree.path(), variables));
    QCOMPARE(qgetenv("DISPLAY"), QByteArray(":0"));
    QTRY_COMPARE(contentOf(result).trimmed(), "xterm -e|" + tree.bytes() + "|:5|unset");
    qunsetenv("DISPLAY");
    QFile::remove(tool);
    QVERIFY(!Core::startProcess("xterm")); // nor does a failure leave a trace in the environment
    QVERIFY(!qEnvironmentVariableIsSet("DISPLAY"));
    qunsetenv("ROOT_DISPLAY");
}

void CoreTest::printsMessagesWithTheirLevel()
{
    const ChildResult child = runInChild(QStringLiteral("messages"));
    QCOMPARE(child.errors, QByteArray("debug: 100% %s %n\nwarning: two\nlines\ncritical: c\nfatal: f\n"));
    QCOMPARE(child.signal, SIGABRT);
}

void CoreTest::runsHaltHandlersAndThenTheDefaultAction()
{
    for (const int signal : {SIGINT, SIGTERM, SIGSEGV}) {
        const ChildResult child = runInChild(QString::number(signal));
        QCOMPARE(child.output, QByteArray(signal == SIGSEGV ? "crashed" : "terminated") + " second late ");
        QCOMPARE(child.signal, signal);
    }
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--child") == 0)
        return runChild(QString::fromLocal8Bit(argv[2]));
    QCoreApplication application(argc, argv);
    CoreTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "coretest.moc"
