// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <QImage>
#include <QtTest>

/// Runs the demo as a user would, with no display.
class DemoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsTheRows();
    void printsOddNamesOnOneLineEach();
    void savesAPicture();
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

QStringList firstWords(const QStringList &lines)
{
    QStringList words;
    for (const QString &line : lines)
        words += line.section(QStringLiteral("  "), 0, 0);
    return words;
}

} // namespace

void DemoTest::printsTheRows()
{
    TestTree tree({"docs/", ".secret"});
    tree.add("a10.txt", QByteArray(20, 'x'));
    tree.add("a9.txt", QByteArray(30, 'x'));
    tree.add("b.png", QByteArray(10, 'x'));
    const auto names = [&tree](const QStringList &options) {
        const Result result = runBrowser(QStringList({"--print", tree.path()}) + options);
        return result.exitCode == 0 ? firstWords(result.lines).mid(1).join(' ') : result.errors;
    };
    QCOMPARE(names({}), "docs a9.txt a10.txt b.png");
    QCOMPARE(names({"--hidden"}), "docs .secret a9.txt a10.txt b.png");
    QCOMPARE(names({"--sort", "name,desc"}), "docs b.png a10.txt a9.txt");
    QCOMPARE(names({"--sort", "Size"}), "docs b.png a10.txt a9.txt");
    QCOMPARE(names({"--filter", "*.PNG"}), "b.png");
    QCOMPARE(names({"--filter", "o; 10"}), "docs a10.txt"); // parts of names
    const QStringList lines = runBrowser({"--print", tree.path()}).lines;
    QVERIFY(lines.first().contains(QLatin1String("Size")));
    for (const QString &line : lines) // the second column starts where its title does
        QCOMPARE(line.indexOf(QRegularExpression(QStringLiteral("(?<=  )\\S"))), lines.first().indexOf("Type"));
}

void DemoTest::printsOddNamesOnOneLineEach()
{
    TestTree tree({"1\nline", "2\x1b[31mred", "3\xff", "4\xe2\x80\xaegpj.exe"});
    tree.add(QByteArray(255, '5'));
    const Result result = runBrowser({"--print", tree.path()});
    QCOMPARE(firstWords(result.lines),
             QStringList({"Name", "1\\nline", "2\\x1b[31mred", "3\\xff", "4\\u202egpj.exe", QString(255, '5')}));
}

void DemoTest::savesAPicture()
{
    TestTree tree({"dir/broken.png"});
    QVERIFY(QImage(640, 480, QImage::Format_RGB32).save(tree.path("dir/black.png")));
    const QString file = tree.path("window.png");
    const Result result = runBrowser({"--screenshot", file, tree.path("dir")});
    QVERIFY2(result.exitCode == 0, result.errors.constData());
    QCOMPARE(QImage(file).size(), QSize(1100, 700));
    QCOMPARE(runBrowser({"--screenshot", tree.path("none/window.png"), tree.path("dir")}).exitCode, 1);
}

void DemoTest::refuses()
{
    const auto complaint = [](const QStringList &arguments) {
        const Result result = runBrowser(arguments);
        return result.exitCode == 1 && result.lines.isEmpty() ? result.errors : QByteArray("not refused");
    };
    QVERIFY(complaint({"--print", "/no/such/dir"}).contains("/no/such/dir"));
    QVERIFY(complaint({"--screenshot", "x.png", "none"}).contains("none"));
    QVERIFY(complaint({"--print", QCoreApplication::applicationFilePath()}).contains("not a directory"));
    QVERIFY(complaint({"--print", "/", "--sort", "Colour"}).contains("Colour"));
    QVERIFY(complaint({"--prnt"}).contains("prnt"));
    QVERIFY(complaint({"/"}).contains("display")); // which a window needs
}

QTEST_GUILESS_MAIN(DemoTest)
#include "demotest.moc"
