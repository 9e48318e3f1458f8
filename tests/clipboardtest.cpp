// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/clipboard.h>
#include <veskfm/clipboardprocessor.h>

#include "fakevfs.h"
#include "testtree.h"

#include <veskplatform/archivemountsmanagerproxy.h>

#include <QClipboard>

#include <QtTest>

#include <memory>

using namespace VeskFM;

Q_DECLARE_METATYPE(Clipboard::Operation)

namespace
{

using Formats = QMap<QString, QByteArray>;

const QString uriList = QStringLiteral("text/uri-list");
const QString cutMarker = QStringLiteral("application/x-kde-cutselection");
const QString copiedFiles = QStringLiteral("x-special/gnome-copied-files");

/// Data of another program: hands out its bytes as they are, where QMimeData itself would rewrite a URI list.
class ForeignData : public QMimeData
{
public:
    explicit ForeignData(const Formats &formats)
        : m_formats(formats)
    {
    }
    bool hasFormat(const QString &format) const override { return m_formats.contains(format); }
    QStringList formats() const override { return m_formats.keys(); }

protected:
    QVariant retrieveData(const QString &format, QVariant::Type) const override { return m_formats.value(format); }

private:
    const Formats m_formats;
};

/// Has every path: what ends with ".zip" is an archive, "virtual" has no local path. Logs its mounts.
class ArchiveVfs : public FakeVfs,
                   public ArchiveMountsManagerProxy
{
public:
    Entry entry(const QString &path) const override
    {
        auto *const data = new FakeEntryData(path, {});
        if (path.endsWith(QLatin1String(".zip")))
            data->traits = {EntryTrait::ArchiveMountPoint};
        if (!path.contains(QLatin1String("virtual")))
            data->local = path;
        return Entry(data);
    }
    Entry parent(const Entry &child) const override { return entry(parentDirPath(child.path())); }
    ArchiveMountsManagerProxy *archiveMountsManager() const override { return const_cast<ArchiveVfs *>(this); }
    QString mountPath(const QString &path) const override
    {
        const int end = path.indexOf(QLatin1String(".zip/"));
        return end < 0 ? QString() : path.left(end + 4);
    }
    void refMountPath(const QString &path) override { log += QLatin1Char('+') + path.section(QLatin1Char('/'), -1); }
    void unrefMountPath(const QString &path) override { log += QLatin1Char('-') + path.section(QLatin1Char('/'), -1); }
    QString take() { return std::exchange(log, QString()); }

    QString log;
};

} // namespace

class ClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        Clipboard::clear();
        delete Clipboard::ptr();
    }

    void writesExactBytes_data()
    {
        QTest::addColumn<Clipboard::Operation>("operation");
        QTest::addColumn<Formats>("written");
        const QByteArray first = "file:///a%20b/%C3%A4%23%25", second = "file:///c";
        const QByteArray list = first + "\r\n" + second + "\r\n", lines = '\n' + first + '\n' + second;
        const auto row = [](const char *name, Clipboard::Operation operation, const Formats &written) {
            QTest::newRow(name) << operation << written;
        };
        row("none", Clipboard::NoOperation, {{uriList, list}});
        row("drag", Clipboard::Drag, {{uriList, list}});
        row("copy", Clipboard::Copy, {{uriList, list}, {cutMarker, "0"}, {copiedFiles, "copy" + lines}});
        row("cut", Clipboard::Cut, {{uriList, list}, {cutMarker, "1"}, {copiedFiles, "cut" + lines}});
        row("cut nothing", Clipboard::Cut, {{cutMarker, "1"}, {copiedFiles, "cut\n"}});
    }

    void writesExactBytes()
    {
        QFETCH(Clipboard::Operation, operation);
        QFETCH(Formats, written);
        QList<QUrl> urls;
        if (written.contains(uriList))
            urls = {QUrl::fromLocalFile("/a b/ä#%"), QUrl::fromLocalFile("/c")};
        QMimeData data;
        GnomeProcessor().write(&data, operation, urls);
        DefaultProcessor().write(&data, operation, urls);
        Formats found;
        for (const QString &format : data.formats())
            found.insert(format, data.data(format));
        QCOMPARE(found, written);
    }

    void readsWhatOthersWrite_data()
    {
        QTest::addColumn<Formats>("formats");
        QTest::addColumn<QStringList>("paths"); // for a copy, a cut and a drop
        const QByteArray list = "file:///a\r\nfile:///b%20c\r\n", ended("file:///a\nfile:///b\0", 20);
        const auto row = [](const char *name, const Formats &formats, const QStringList &paths) {
            QTest::newRow(name) << formats << paths;
        };
        row("no marker means copy", {{uriList, list}}, {"/a /b c", "", "/a /b c"});
        row("marked as copy", {{uriList, list}, {cutMarker, "0"}}, {"/a /b c", "", "/a /b c"});
        row("marked as cut", {{uriList, list}, {cutMarker, "1"}}, {"", "/a /b c", "/a /b c"});
        row("NUL at the end", {{uriList, ended}}, {"/a /b", "", "/a /b"});
        row("blank lines", {{uriList, "\n  \r\n file:///a \n\n"}}, {"/a", "", "/a"});
        row("marker alone", {{cutMarker, "1"}}, {"", "", ""});
        row("copied files", {{copiedFiles, "copy\nfile:///x\nfile:///y"}}, {"/x /y", "", ""});
        row("copied files decide", {{copiedFiles, "cut\nfile:///x"}, {uriList, list}}, {"", "/x", "/a /b c"});
        row("any other word means cut", {{copiedFiles, "copy \nfile:///x\r\n"}}, {"", "/x", ""});
        row("no line at all", {{copiedFiles, "copy"}, {uriList, list}}, {"", "", "/a /b c"});
        row("empty copied files", {{copiedFiles, ""}, {uriList, list}}, {"/a /b c", "", "/a /b c"});
        row("nothing known", {{"text/plain", "file:///a"}}, {"", "", ""});
    }

    void readsWhatOthersWrite()
    {
        QFETCH(Formats, formats);
        const ForeignData data(formats);
        QStringList paths;
        for (const Clipboard::Operation operation : {Clipboard::Copy, Clipboard::Cut, Clipboard::Drag}) {
            QStringList list;
            const QList<QUrl> urls = Clipboard::ptr()->urlsFor(operation, &data);
            for (const QUrl &url : urls)
                list.append(url.toLocalFile());
            paths.append(list.join(QLatin1Char(' ')));
        }
        QTEST(paths, "paths");
    }

    void findsFormatsInNames()
    {
        const Clipboard *const clipboard = Clipboard::ptr();
        const ForeignData suffixed(
            {{uriList + ";charset=utf-8", "file:///a"}, {cutMarker, "0"}, {"X-SPECIAL/GNOME-COPIED-FILES", ""}});
        QCOMPARE(clipboard->actualMimeTypes(&suffixed), QStringList({uriList, cutMarker}));
        QCOMPARE(clipboard->urlsFor(Clipboard::Copy, &suffixed), QList<QUrl>());
    }

    void givesBackWhatItHolds()
    {
        TestTree tree({"a b.txt", "ä#%.txt", "dir/"});
        const EntryList entries{tree.entry("a b.txt"), tree.entry("dir"), tree.entry("ä#%.txt")};
        Clipboard *const clipboard = Clipboard::ptr();
        for (const auto operation : {Clipboard::Copy, Clipboard::Cut}) {
            clipboard->setEntries(entries, operation);
            QCOMPARE(clipboard->entries(operation), entries);
            QCOMPARE(clipboard->entries(operation == Clipboard::Cut ? Clipboard::Copy : Clipboard::Cut), EntryList());
        }
        const std::unique_ptr<QMimeData> drag(clipboard->dragMimeData(entries));
        QCOMPARE(drag->formats(), QStringList(uriList));
        QCOMPARE(clipboard->dropEntries(drag.get()), entries);
    }

    void keepsArchivesMounted()
    {
        ArchiveVfs vfs;
        Clipboard *const clipboard = Clipboard::ptr();
        const auto entries = [&vfs](std::initializer_list<const char *> paths) {
            EntryList list{Entry()};
            for (const char *path : paths)
                list.append(vfs.entry(QLatin1String("/archives/") + path));
            return list;
        };
        clipboard->setEntries(entries({"b.zip/x", "plain/x", "b.zip/y", "a.zip", "c.zip/virtual/virtual2"}),
                              Clipboard::Copy);
        QCOMPARE(vfs.take(), QStringLiteral("+a.zip+b.zip+c.zip"));
        QCOMPARE(clipboard->archiveMountPoints(),
                 std::set<QString>({"/archives/a.zip", "/archives/b.zip", "/archives/c.zip"}));

        clipboard->setEntries(entries({"b.zip/x"}), Clipboard::Cut);
        QCOMPARE(vfs.take(), QStringLiteral("+b.zip-c.zip-b.zip-a.zip")); // b.zip never without a reference
        clipboard->setEntries(entries({"plain"}), Clipboard::Copy);
        QCOMPARE(vfs.take(), QStringLiteral("-b.zip"));
        QVERIFY(clipboard->archiveMountPoints().empty());

        clipboard->setEntries(entries({"a.zip/x"}), Clipboard::Copy);
        Clipboard::clipboard()->setText("something else"); // as another program does
        Clipboard::clipboard()->setText("and again");
        QCOMPARE(vfs.take(), QStringLiteral("+a.zip-a.zip"));
        QVERIFY(clipboard->archiveMountPoints().empty());

        // Somebody who answers the change of the clipboard with contents of his own.
        QObject listener;
        connect(Clipboard::clipboard(), &QClipboard::dataChanged, &listener, [&] {
            disconnect(Clipboard::clipboard(), nullptr, &listener, nullptr);
            clipboard->setEntries(entries({"b.zip/x"}), Clipboard::Copy);
        });
        clipboard->setEntries(entries({"a.zip/x"}), Clipboard::Copy);
        QCOMPARE(vfs.take(), QStringLiteral("+a.zip+b.zip-a.zip"));
        delete clipboard; // the contents stay, and so does the mount
        QVERIFY(vfs.take().isEmpty());
        Clipboard::clear();
        QCOMPARE(vfs.take(), QStringLiteral("-b.zip"));
    }
};

QTEST_MAIN(ClipboardTest)
#include "clipboardtest.moc"
