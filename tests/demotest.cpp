// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// Runs the demo as a user would, with no display.
class DemoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsTheRows_data();
    void printsTheRows();
    void printsOddNamesOnOneLineEach();
    void savesAPicture();
    void helps();
    void refuses_data();
    void refuses();
};

namespace
{

struct Result
{
    int exitCode = -1;
    QStringList lines;
    QByteArray errors;
};

Result runBrowser(const QStringList &arguments)
{
    QProcess browser;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM")); // the program has to see by itself that there is no display
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    browser.setProcessEnvironment(environment);
    browser.start(QCoreApplication::applicationDirPath() + QStringLiteral("/vesk-browser"), arguments);
    Result result;
    if (!browser.waitForFinished(60000) || browser.exitStatus() != QProcess::NormalExit)
        return result;
    result.exitCode = browser.exitCode();
    result.lines = QString::fromUtf8(browser.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    result.errors = browser.readAllStandardError();
    return result;
}

void addFile(const QString &directory, const QByteArray &name, int size = 0)
{
    QFile file;
    const QByteArray path = directory.toUtf8() + '/' + name;
    FILE *stream = ::fopen(path.constData(), "w"); // QFile would change a name that is no valid text
    QVERIFY(stream);
    QVERIFY(file.open(stream, QIODevice::WriteOnly, QFile::AutoCloseHandle));
    file.write(QByteArray(size, 'x'));
}

QStringList firstWords(const QStringList &lines)
{
    QStringList words;
    for (const QString &line : lines)
        words += line.section(QStringLiteral("  "), 0, 0);
    return words;
}

} // namespace

void DemoTest::printsTheRows_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("numeric order, folders first")
        << QStringList() << QStringList({"docs", "a9.txt", "a10.txt", "b.png"});
    QTest::newRow("hidden") << QStringList("--hidden")
                            << QStringList({"docs", ".secret", "a9.txt", "a10.txt", "b.png"});
    QTest::newRow("descending") << QStringList({"--sort", "name,desc"})
                                << QStringList({"docs", "b.png", "a10.txt", "a9.txt"});
    QTest::newRow("by size") << QStringList({"--sort", "Size"}) << QStringList({"docs", "b.png", "a10.txt", "a9.txt"});
    QTest::newRow("wildcard") << QStringList({"--filter", "*.PNG"}) << QStringList({"b.png"});
    QTest::newRow("part of a name") << QStringList({"--filter", "o; 10"}) << QStringList({"docs", "a10.txt"});
}

void DemoTest::printsTheRows()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, names);
    QTemporaryDir dir;
    QDir(dir.path()).mkdir(QStringLiteral("docs"));
    addFile(dir.path(), "a10.txt", 20);
    addFile(dir.path(), "a9.txt", 30);
    addFile(dir.path(), "b.png", 10);
    addFile(dir.path(), ".secret");
    const Result result = runBrowser(QStringList({"--print", dir.path()}) + options);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(firstWords(result.lines), QStringList("Name") + names);
    QVERIFY(result.lines.first().contains(QLatin1String("Size")));
    for (const QString &line : result.lines.mid(1)) // the second column starts where its title does
        QCOMPARE(line.indexOf(QRegularExpression(QStringLiteral("(?<=  )\\S"))), result.lines.first().indexOf("Type"));
}

void DemoTest::printsOddNamesOnOneLineEach()
{
    QTemporaryDir dir;
    addFile(dir.path(), "1\nline");
    addFile(dir.path(), "2\x1b[31mred");
    addFile(dir.path(), "3\xff");
    addFile(dir.path(), "4\xe2\x80\xaegpj.exe");
    addFile(dir.path(), QByteArray(255, '5'));
    const Result result = runBrowser({"--print", dir.path()});
    QCOMPARE(firstWords(result.lines),
             QStringList({"Name", "1\\nline", "2\\x1b[31mred", "3\\xff", "4\\u202egpj.exe", QString(255, '5')}));
}

void DemoTest::savesAPicture()
{
    QTemporaryDir dir;
    QImage(640, 480, QImage::Format_RGB32).save(dir.filePath(QStringLiteral("black.png")));
    addFile(dir.path(), "broken.png", 100);
    QTemporaryDir target;
    const QString file = target.filePath(QStringLiteral("window.png"));
    const Result result = runBrowser({"--screenshot", file, dir.path()});
    QVERIFY2(result.exitCode == 0, result.errors.constData());
    QCOMPARE(QImage(file).size(), QSize(1000, 650));
    QCOMPARE(runBrowser({"--screenshot", target.filePath("none/window.png"), dir.path()}).exitCode, 1);
}

void DemoTest::helps()
{
    const Result result = runBrowser({"--help"});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.lines.join(QLatin1Char(' ')).contains(QLatin1String("--screenshot")));
}

void DemoTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("missing directory") << QStringList({"--print", "/no/such/dir"}) << QByteArray("/no/such/dir");
    QTest::newRow("missing, for a picture") << QStringList({"--screenshot", "x.png", "none"}) << QByteArray("none");
    QTest::newRow("a file") << QStringList({"--print", QCoreApplication::applicationFilePath()})
                            << QByteArray("not a directory");
    QTest::newRow("unknown column") << QStringList({"--print", "/", "--sort", "Colour"}) << QByteArray("Colour");
    QTest::newRow("unknown option") << QStringList({"--prnt"}) << QByteArray("prnt");
    QTest::newRow("no display for a window") << QStringList({"/"}) << QByteArray("display");
}

void DemoTest::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const Result result = runBrowser(arguments);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.lines.isEmpty());
    QVERIFY2(result.errors.contains("vesk-browser: ") && result.errors.contains(message), result.errors.constData());
}

QTEST_GUILESS_MAIN(DemoTest)
#include "demotest.moc"
