// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskuidesktopentry.h>

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>
#include <QtConcurrent>

#include <sys/stat.h>

class VeskUIDesktopEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsValues();
    void prefersTheUsersLanguage_data();
    void prefersTheUsersLanguage();
    void knowsWhereItBelongs_data();
    void knowsWhereItBelongs();
    void readsOnlyDesktopEntries_data();
    void readsOnlyDesktopEntries();
    void copiesAreIndependentOnThreads();

private:
    QString write(const QByteArray &content, const QString &name = QStringLiteral("x.desktop"));

    QTemporaryDir dir;
};

QString VeskUIDesktopEntryTest::write(const QByteArray &content, const QString &name)
{
    QFile file(dir.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

void VeskUIDesktopEntryTest::readsValues()
{
    const QByteArray content =
        "# comment\n[Desktop Entry]\nType=Link\nName= Padded \nGenericName=Generic\nComment=Two\\nlines\n"
        "Exec=run \"a\\\\\\\\b\"\\s%U $HOME\nTryExec=run\nIcon=an-icon\nURL=https://example.org/?a=b\n"
        "Terminal=true\nX-Vesk-OriginFile=/a/b.desktop\nnonsense\n\n[Desktop Action A]\nName=Other\n";
    VeskUIDesktopEntry entry(write(content));
    QVERIFY(entry.isValid() && entry.getTerminal());
    QCOMPARE(entry.getFilePath(), dir.filePath(QStringLiteral("x.desktop")));
    const QStringList texts{entry.getType(),
                            entry.getBestAvailableName(),
                            entry.getBestAvailableGenericName(),
                            entry.getBestAvailableComment(),
                            entry.getExec(),
                            entry.getTryExec(),
                            entry.getBestAvailableIcon(),
                            entry.getUrl(),
                            entry.getValue(QStringLiteral("X-Vesk-OriginFile")),
                            entry.getValue(QStringLiteral("X-Missing"))};
    QCOMPARE(texts,
             QStringList({"Link", "Padded", "Generic", "Two\nlines", "run \"a\\\\b\" %U $HOME", "run", "an-icon",
                          "https://example.org/?a=b", "/a/b.desktop", ""}));

    const VeskUIDesktopEntry copy = entry;
    write("[Desktop Entry]\nType=Application\nName=New\n");
    QCOMPARE(entry.getBestAvailableName(), QStringLiteral("Padded")); // until it is loaded again
    QVERIFY(entry.load());
    QCOMPARE(entry.getBestAvailableName(), QStringLiteral("New"));
    QCOMPARE(entry.getExec(), QString());
    QCOMPARE(copy.getBestAvailableName(), QStringLiteral("Padded"));
    QVERIFY(QFile::remove(entry.getFilePath()));
    QVERIFY(!entry.load());
    QCOMPARE(entry.getBestAvailableName(), QString());
}

void VeskUIDesktopEntryTest::prefersTheUsersLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    QTest::newRow("country") << "de_AT"
                             << "Österreich";
    QTest::newRow("language alone") << "de_CH"
                                    << "Deutsch";
    QTest::newRow("none of them") << "it"
                                  << "Plain";
}

void VeskUIDesktopEntryTest::prefersTheUsersLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    const QByteArray content =
        "[Desktop Entry]\nName[de]=Deutsch\nName=Plain\nName[de_AT]=Österreich\nName[fr]=Français\n";
    const QLocale former;
    QLocale::setDefault(QLocale(language));
    const VeskUIDesktopEntry entry(write(content));
    QLocale::setDefault(former);
    QCOMPARE(entry.getBestAvailableName(), name);
}

void VeskUIDesktopEntryTest::knowsWhereItBelongs_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QByteArray>("desktops");
    QTest::addColumn<bool>("displayable");
    QTest::addColumn<bool>("suitable");
    QTest::newRow("anywhere") << QByteArray() << QByteArray("A:B") << true << true;
    QTest::newRow("not in menus") << QByteArray("NoDisplay=true") << QByteArray() << false << true;
    QTest::newRow("deleted") << QByteArray("Hidden=true") << QByteArray() << false << true;
    QTest::newRow("only elsewhere") << QByteArray("OnlyShowIn=C;D") << QByteArray("A:B") << false << false;
    QTest::newRow("only here") << QByteArray("OnlyShowIn=C;B;") << QByteArray("A:B") << true << true;
    QTest::newRow("only somewhere, desktop unknown") << QByteArray("OnlyShowIn=C;") << QByteArray() << false << false;
    QTest::newRow("not here") << QByteArray("NotShowIn=B;") << QByteArray("A:B") << false << false;
    QTest::newRow("first named decides") << QByteArray("NotShowIn=B;\nOnlyShowIn=A;") << QByteArray("A:B") << true
                                         << true;
    QTest::newRow("program is there") << QByteArray("TryExec=sh") << QByteArray() << true << true;
    QTest::newRow("program is missing") << QByteArray("TryExec=/no/such/program") << QByteArray() << true << false;
}

void VeskUIDesktopEntryTest::knowsWhereItBelongs()
{
    QFETCH(QByteArray, lines);
    QFETCH(QByteArray, desktops);
    QFETCH(bool, displayable);
    QFETCH(bool, suitable);
    qputenv("XDG_CURRENT_DESKTOP", desktops);
    const VeskUIDesktopEntry entry(write("[Desktop Entry]\nType=Application\nName=X\n" + lines + '\n'));
    QCOMPARE(entry.isDisplayable(), displayable);
    QCOMPARE(entry.isSuitable(), suitable);
}

void VeskUIDesktopEntryTest::readsOnlyDesktopEntries_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("valid");
    const QByteArray good = "[Desktop Entry]\nName=X\n";
    const QString fifo = dir.filePath(QStringLiteral("fifo.desktop"));
    mkfifo(QFile::encodeName(fifo).constData(), 0600);
    const QString huge = write(good, QStringLiteral("huge.desktop"));
    QFile::resize(huge, 100 << 20);
    const QString link = dir.filePath(QStringLiteral("link.desktop"));
    QFile::link(write(good, QStringLiteral("target")), link);
    QTest::newRow("FIFO") << fifo << false;
    QTest::newRow("100 MB") << huge << false;
    QTest::newRow("device") << QStringLiteral("/dev/zero") << false;
    QTest::newRow("directory") << dir.path() << false;
    QTest::newRow("missing") << dir.filePath(QStringLiteral("none")) << false;
    QTest::newRow("no path") << QString() << false;
    QTest::newRow("empty") << write("", QStringLiteral("empty")) << false;
    QTest::newRow("no main group") << write("[Desktop Action X]\nName=X\n", QStringLiteral("group")) << false;
    QTest::newRow("a megabyte of nonsense")
        << write(good + QByteArray("x\n").repeated(500000), QStringLiteral("junk")) << false;
    QTest::newRow("nothing but escapes") << write(good + "X=" + QByteArray("\\q").repeated(500000),
                                                  QStringLiteral("esc"))
                                         << false;
    QTest::newRow("link to a good one") << link << true;
    QTest::newRow("CR LF") << write("[Desktop Entry]\r\nName=X\r\n", QStringLiteral("crlf")) << true;
}

void VeskUIDesktopEntryTest::readsOnlyDesktopEntries()
{
    QFETCH(QString, path);
    QFETCH(bool, valid);
    const VeskUIDesktopEntry entry(path);
    QCOMPARE(entry.isValid(), valid);
    QCOMPARE(entry.getBestAvailableName(), valid ? QStringLiteral("X") : QString());
}

void VeskUIDesktopEntryTest::copiesAreIndependentOnThreads()
{
    const VeskUIDesktopEntry shared(write("[Desktop Entry]\nName=X\nExec=run\n"));
    QVector<VeskUIDesktopEntry> copies(64, shared);
    const auto reload = [](VeskUIDesktopEntry &entry) {
        for (int i = 0; i < 20; ++i)
            entry.load();
    };
    QtConcurrent::blockingMap(copies, reload);
    for (const VeskUIDesktopEntry &copy : qAsConst(copies))
        QCOMPARE(copy.getExec() + shared.getExec(), QStringLiteral("runrun"));
}

QTEST_GUILESS_MAIN(VeskUIDesktopEntryTest)
#include "veskuidesktopentrytest.moc"
