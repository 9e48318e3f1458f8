// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskplatform/veskuidesktopentry.h>

#include <QtTest>

#include <sys/stat.h>

class VeskUIDesktopEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsValues();
    void prefersTheUsersLanguage();
    void knowsWhereItBelongs();
    void readsOnlyDesktopEntries();

private:
    QString write(const QByteArray &content, const QByteArray &name = "x.desktop")
    {
        return tree.add(name, content).path();
    }

    TestTree tree;
};

void VeskUIDesktopEntryTest::readsValues()
{
    const QByteArray content =
        "# comment\n[Desktop Entry]\nType=Link\nName= Padded \nGenericName=Generic\nComment=Two\\nlines\n"
        "Exec=run \"a\\\\\\\\b\"\\s%U $HOME\nTryExec=run\nIcon=an-icon\nURL=https://example.org/?a=b\n"
        "Terminal=true\nX-Vesk-OriginFile=/a/b.desktop\nnonsense\n\n[Desktop Action A]\nName=Other\n";
    VeskUIDesktopEntry entry(write(content));
    QVERIFY(entry.isValid() && entry.getTerminal());
    QCOMPARE(entry.getType() + entry.getBestAvailableName() + entry.getBestAvailableGenericName(), "LinkPaddedGeneric");
    QCOMPARE(entry.getBestAvailableComment(), "Two\nlines");
    QCOMPARE(entry.getExec(), "run \"a\\\\b\" %U $HOME");
    QCOMPARE(entry.getTryExec() + entry.getBestAvailableIcon(), "runan-icon");
    QCOMPARE(entry.getUrl(), "https://example.org/?a=b");
    QCOMPARE(entry.getValue("X-Vesk-OriginFile") + entry.getValue("X-Missing"), "/a/b.desktop");
    write("[Desktop Entry]\nType=Application\nName=New\n");
    QCOMPARE(entry.getBestAvailableName(), QStringLiteral("Padded")); // until it is loaded again
    QVERIFY(entry.load());
    QCOMPARE(entry.getBestAvailableName() + entry.getExec(), QStringLiteral("New"));
    QVERIFY(QFile::remove(entry.getFilePath()));
    QVERIFY(!entry.load() && entry.getBestAvailableName().isEmpty());
}

void VeskUIDesktopEntryTest::prefersTheUsersLanguage()
{
    const QString path =
        write("[Desktop Entry]\nName[de]=Deutsch\nName=Plain\nName[de_AT]=Österreich\nName[fr]=Français\n");
    const QLocale former;
    QStringList names;
    for (const char *language : {"de_AT", "de_CH", "it"}) {
        QLocale::setDefault(QLocale(language));
        names += VeskUIDesktopEntry(path).getBestAvailableName();
    }
    QLocale::setDefault(former);
    QCOMPARE(names, QStringList({"Österreich", "Deutsch", "Plain"}));
}

void VeskUIDesktopEntryTest::knowsWhereItBelongs()
{
    const auto belongs = [this](const QByteArray &lines, const QByteArray &desktops = {}) {
        qputenv("XDG_CURRENT_DESKTOP", desktops);
        const VeskUIDesktopEntry entry(write("[Desktop Entry]\nType=Application\nName=X\n" + lines + '\n'));
        return QString(entry.isDisplayable() ? "displayable " : "") + (entry.isSuitable() ? "suitable" : "");
    };
    QCOMPARE(belongs("", "A:B"), "displayable suitable");
    QCOMPARE(belongs("NoDisplay=true"), "suitable");
    QCOMPARE(belongs("Hidden=true"), "suitable");
    QCOMPARE(belongs("OnlyShowIn=C;B;", "A:B"), "displayable suitable");
    QCOMPARE(belongs("OnlyShowIn=C;D", "A:B"), "");
    QCOMPARE(belongs("OnlyShowIn=C;"), ""); // nobody says which desktop it is
    QCOMPARE(belongs("NotShowIn=B;", "A:B"), "");
    QCOMPARE(belongs("NotShowIn=B;\nOnlyShowIn=A;", "A:B"), "displayable suitable"); // the first named decides
    QCOMPARE(belongs("TryExec=sh"), "displayable suitable");
    QCOMPARE(belongs("TryExec=/no/such/program"), "displayable ");
}

void VeskUIDesktopEntryTest::readsOnlyDesktopEntries()
{
    const QByteArray good = "[Desktop Entry]\nName=X\n";
    const QString huge = write(good, "huge.desktop");
    QFile::resize(huge, 100 << 20);
    mkfifo(tree.bytes("fifo.desktop").constData(), 0600);
    for (const QString &path : {tree.path("fifo.desktop"), huge, QString("/dev/zero"), tree.path(), tree.path("none"),
                                QString(), write("", "empty"), write("[Desktop Action X]\nName=X\n", "group"),
                                write(good + QByteArray("x\n").repeated(500000), "junk"),
                                write(good + "X=" + QByteArray("\\q").repeated(500000), "escapes")}) {
        const VeskUIDesktopEntry entry(path);
        QVERIFY2(!entry.isValid() && entry.getBestAvailableName().isEmpty(), qPrintable(path));
    }
    write(good, "target");
    QCOMPARE(VeskUIDesktopEntry(tree.link("link.desktop", "target").path()).getBestAvailableName(), "X");
    QCOMPARE(VeskUIDesktopEntry(write("[Desktop Entry]\r\nName=X\r\n")).getBestAvailableName(), "X");
}

QTEST_GUILESS_MAIN(VeskUIDesktopEntryTest)
#include "veskuidesktopentrytest.moc"
