// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#define VESKFM_TRACE
#include <fixedplaces.h>
#include <veskfm/tracer.h>

#include <QtTest>

#include <thread>

using namespace VeskFM;

namespace
{

void traced()
{
    VESK_TRACE_SCOPE();
    VESK_TRACE_MARK();
    qDebug("inside");
    {
        VESK_TRACE_SCOPE();
        VESK_TRACE_VALUE(QStringLiteral("100% %s"));
        qDebug("deeper");
    }
}

/// What this program does as a child of itself, since the trace file is closed at exit only.
int runChild()
{
    VESK_TRACE_MARK(); // of a thread that no scope has made known
    traced();
    std::thread([] {
        Tracer::leave("f", "unbalanced", 1);
        Tracer::leave("f", "unbalanced", 2);
        traced();
    }).join();
    return 0;
}

} // namespace

class TracerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesOneIndentedLineForEachRecord();
};

void TracerTest::writesOneIndentedLineForEachRecord()
{
    const QString path = QStringLiteral(VESKFM_TRACE_FILE);
    if (!path.startsWith(QFileInfo(QCoreApplication::applicationDirPath()).path()))
        QSKIP("the trace file is not in the build tree");
    QVERIFY(Tracer::createLogDirectory());
    QFile log(path);
    QVERIFY(log.open(QIODevice::WriteOnly) && log.write("of a former run"));
    log.close();
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--child")});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.readAllStandardError(), QByteArray("debug: \tinside\ndebug: \t\tdeeper\n").repeated(2));

    QVERIFY(log.open(QIODevice::ReadOnly));
    QString text = QString::fromLocal8Bit(log.readAll());
    text.replace(QRegularExpression(QStringLiteral(" (/|[.][.])\\S*tracertest.cpp : (\\w+) [(]line: \\d+ [)]")),
                 QStringLiteral(" \\2"));
    QCOMPARE(text.split(QLatin1Char('\n')),
             QStringList({"-1: 0: [ NOOP ], runChild", " 0: 1: [ IN ], traced", " 0: 1: [ NOOP ], traced",
                          "  0: 2: [ IN ], traced", "  0: 2: VALUE: 100% %s, traced", "  0: 2: [ OUT ], traced",
                          " 0: 1: [ OUT ], traced", "1: 0: [ OUT ], f : unbalanced (line: 1 )",
                          "1: -1: [ OUT ], f : unbalanced (line: 2 )", "1: -1: [ IN ], traced",
                          "1: -1: [ NOOP ], traced", "1: 0: [ IN ], traced", "1: 0: VALUE: 100% %s, traced",
                          "1: 0: [ OUT ], traced", "1: -1: [ OUT ], traced", ""}));
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], "--child") == 0)
        return runChild();
    TracerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tracertest.moc"
