// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/corepaths.h>

#include <QtTest>

#include <sys/stat.h>

using namespace VeskFM;

class CorePathsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freeNames();
    void mimeTypes();
    void locatesLevelByLevel();
    void resolvesVariables();
    void shortensPaths();
    void listsTemplates();
};

void CorePathsTest::freeNames()
{
    TestTree tree({"report.txt", "report (2).txt", "New/", "photo.jpg", "archive.tar.gz", "Docs.d/", "README"});
    tree.link("New (2)", "nowhere");
    const auto unique = [&tree](const char *base, const char *extension) {
        return uniqueFileName(tree.path(), QLatin1String(base), QLatin1String(extension));
    };
    QCOMPARE(unique("report", "txt"), QStringLiteral("report (3).txt"));
    QCOMPARE(unique("report", "md"), QStringLiteral("report.md"));
    QCOMPARE(unique("New", ""), QStringLiteral("New (3)")); // taken by a directory and by a broken link
    const auto copyOf = [&tree](const char *name) {
        const auto [directory, copy] = pathForCopy(tree.path(QLatin1String(name)));
        return directory == tree.path() ? copy : QString();
    };
    QCOMPARE(copyOf("photo.jpg"), QStringLiteral("photo - copy.jpg"));
    QCOMPARE(copyOf("archive.tar.gz"), QStringLiteral("archive - copy.tar.gz"));
    QCOMPARE(copyOf("Docs.d/"), QStringLiteral("Docs.d - copy"));
    QCOMPARE(copyOf("README"), QStringLiteral("README - copy"));
    tree.add("photo - copy.jpg");
    QCOMPARE(copyOf("photo.jpg"), QStringLiteral("photo - copy (2).jpg"));
}

void CorePathsTest::mimeTypes()
{
    TestTree tree({"dir/"});
    tree.write("picture", "\x89PNG\r\n\x1a\n");
    tree.link("link.txt", "picture");
    const auto type = [&tree](const char *name, bool full) {
        return mimeTypeForFile(tree.path(QLatin1String(name)), full);
    };
    QCOMPARE(type("missing.png", false), QStringLiteral("image/png"));
    QCOMPARE(type("dir", false), QStringLiteral("application/octet-stream")); // the name alone, no look at the disk
    QCOMPARE(type("dir", true), QStringLiteral("inode/directory"));
    QCOMPARE(type("picture", true), QStringLiteral("image/png"));
    QCOMPARE(type("link.txt", false), QStringLiteral("text/plain"));
    QCOMPARE(type("link.txt", true), QStringLiteral("image/png")); // of its target

    QCOMPARE(mkfifo(tree.bytes("fifo").constData(), 0600), 0); // to open it would block
    tree.link("to fifo", "fifo");
    tree.link("to link", "to fifo");
    tree.link("to proc", "/proc/cpuinfo");
    tree.link("loop", "loop");
    QCOMPARE(type("to link", true), QStringLiteral("inode/fifo"));
    for (const QString &path :
         {QString("/proc/cpuinfo"), QString("/tallowfs/log-1"), tree.path("to proc"), tree.path("loop")})
        QCOMPARE(mimeTypeForFile(path, true), QStringLiteral("application/octet-stream"));
}

void CorePathsTest::locatesLevelByLevel()
{
    TestTree tree({"a/b/c/wanted", "z/.hidden/wanted", "z/wanted/", "first/", "second/other"});
    const QString name = QStringLiteral("wanted");
    QCOMPARE(locateFile(name, {tree.path()}, 1), QString()); // a directory of that name does not count
    QCOMPARE(locateFile(name, {tree.path()}, 2), tree.path(QStringLiteral("z/.hidden/wanted")));
    tree.remove("z");
    QCOMPARE(locateFile(name, {tree.path()}, 3), tree.path(QStringLiteral("a/b/c/wanted")));
    QCOMPARE(locateFile(name, {tree.path()}, -1), QString());
    QCOMPARE(locateFile(QStringLiteral("other"),
                        {tree.path(QStringLiteral("first")), tree.path(QStringLiteral("second"))}, 0),
             tree.path(QStringLiteral("second/other")));
}

void CorePathsTest::resolvesVariables()
{
    qputenv("DIR", "/home/user");
    QCOMPARE(resolveEnvironmentVariables("$DIR/Documents"), "/home/user/Documents");
    QCOMPARE(resolveEnvironmentVariables("/data/$UNSET/x"), "/data/$UNSET/x");
    QCOMPARE(resolveEnvironmentVariables("/data/$DIR/x/"), "/data/home/user/x");
    QCOMPARE(resolveEnvironmentVariables("a//b"), "a/b");
    QCOMPARE(resolveEnvironmentVariables("$D$IR/x"), "/home/user/x"); // stray signs do not count
    QCOMPARE(resolveEnvironmentVariables("smb://$DIR//x"), "smb://$DIR//x");
    QCOMPARE(resolveEnvironmentVariables("/") + resolveEnvironmentVariables(""), "/");
}

void CorePathsTest::shortensPaths()
{
    const QString fifty(50, QLatin1Char('x'));
    QCOMPARE(shortedPathView(fifty), fifty);
    QCOMPARE(shortedPathView("/home/user/Documents/Projects/2024/report-final-version-2.pdf"),
             "/home/user/.../report- ... on-2.pdf");
    QCOMPARE(shortedPathView("/home/user/" + fifty), "/home/user/.../xxxxxxx ... xxxxxxxx");
    QCOMPARE(shortedPathView("/" + fifty), "/xxxxxxx ... xxxxxxxx/...");
}

void CorePathsTest::listsTemplates()
{
    TestTree tree({"Templates/"});
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QVERIFY(QDir().mkpath(config));
    QFile userDirs(config + QLatin1String("/user-dirs.dirs"));
    QVERIFY(userDirs.open(QIODevice::WriteOnly));
    userDirs.write("# XDG_TEMPLATES_DIR=\"/\"\nXDG_TEMPLATES_DIR=\"" + tree.bytes("Templates") + "\"\n");
    userDirs.close();
    const auto add = [&tree](const QByteArray &name, const QByteArray &more, int age) {
        const QByteArray path = "Templates/" + name;
        tree.write(path, "[Desktop Entry]\nType=Link\nIcon=i\nURL=.source/text\nName=" + name + '\n' + more);
        QFile file(tree.path(QString::fromUtf8(path)));
        file.open(QIODevice::ReadWrite);
        file.setFileTime(QDateTime::currentDateTime().addDays(-age), QFileDevice::FileModificationTime);
    };
    add("new.desktop", "", 1);
    add("old.desktop", "TryExec=sh\n", 3);
    add("no program.desktop", "TryExec=does-not-exist-here\n", 2);
    add("upper.DESKTOP", "", 2);
    tree.write("Templates/damaged.desktop", "nothing");
    const QList<NewFileTemplate> templates = newFileTemplates();
    QCOMPARE(templates.size(), 2);
    QCOMPARE(templates[0].name, QStringLiteral("old.desktop"));
    QCOMPARE(templates[1],
             (NewFileTemplate{tree.path(QStringLiteral("Templates/new.desktop")), QStringLiteral("new.desktop"),
                              QStringLiteral("i"), tree.path(QStringLiteral("Templates/.source/text"))}));
}

QTEST_GUILESS_MAIN(CorePathsTest)
#include "corepathstest.moc"
