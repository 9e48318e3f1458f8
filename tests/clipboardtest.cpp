// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/clipboard.h>
#include <veskfm/clipboardprocessor.h>

#include "testtree.h"

#include <veskplatform/archivemountsmanagerproxy.h>
#include <veskplatform/favoriteplace.h>

#include <QClipboard>
#include <QMap>
#include <QMimeData>
#include <QTest>

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

/// A node below /archives: what contains ".zip" lies in an archive, "virtual" has no local path.
class ArchiveNode : public EntryData
{
public:
    explicit ArchiveNode(const QString &path)
        : m_path(path)
    {
    }
    QString path() const override { return m_path; }
    int type() const override { return is(EntryTrait::ArchiveMountPoint) ? Entry::Archive : Entry::File; }
    QString localPath() const override { return m_path.contains(QLatin1String("virtual")) ? QString() : m_path; }
    bool is(EntryTrait trait) const override
    {
        return trait == EntryTrait::ArchiveMountPoint && m_path.endsWith(QLatin1String(".zip"));
    }

private:
    const QString m_path;
};

class MountLog : public ArchiveMountsManagerProxy
{
public:
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

class ArchiveVfs : public VFS
{
public:
    Entry entry(const QString &path) const override { return Entry(new ArchiveNode(path)); }
    Entry parent(const Entry &child) const override
    {
        return child.path() == QLatin1String("/") ? Entry() : entry(parentDirPath(child.path()));
    }
    QList<QUrl> urlsFromEntries(const EntryList &entries) const override
    {
        QList<QUrl> urls;
        for (const Entry &each : entries)
            urls.append(QUrl::fromLocalFile(each.path()));
        return urls;
    }
    EntryList entriesFromUrls(const QList<QUrl> &) const override { return {}; }
    ArchiveMountsManagerProxy *archiveMountsManager() const override { return &mounts; }

    // What a clipboard never asks.
    Entry rootEntry() const override { return {}; }
    Entry homeEntry() const override { return {}; }
    Entry favoritesEntry() const override { return {}; }
    Entry placesEntry() const override { return {}; }
    Entry storageDevicesEntry() const override { return {}; }
    Entry networkEntry() const override { return {}; }
    Entry networkResourcesEntry() const override { return {}; }
    Entry sibling(const Entry &, const QString &) const override { return {}; }
    EntryList childs(const Entry &, EntryChildFilters, QAtomicInt *) const override { return {}; }
    EntryList pathEntryList(const Entry &) const override { return {}; }
    EntryList pathEntryList(const Entry &, const Entry &) const override { return {}; }
    bool isEntryExists(const Entry &) const override { return true; }
    QString localPath(const QString &path) const override { return path; }
    QUrl placeUrl(const Entry &) const override { return {}; }
    bool mayContainContainers(const Entry &) const override { return false; }
    bool containsContainers(const Entry &) const override { return false; }
    bool isOnSlowFileSystem(const QString &, const QString &) const override { return false; }
    bool isOnNonHomeNetworkFileSystem(const Entry &) const override { return false; }
    Entry symLinkTargetEntry(const Entry &) const override { return {}; }
    StoragePlace storagePlace(const Entry &) const override { return {}; }
    FavoritePlace favoritePlace(const Entry &) const override { return {}; }
    VFSPlaceBase *placeBase() const override { return nullptr; }
    EntryWatcher *entryWatcher() const override { return nullptr; }

    mutable MountLog mounts;
};

} // namespace

class ClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void writesExactBytes_data();
    void writesExactBytes();
    void readsWhatOthersWrite_data();
    void readsWhatOthersWrite();
    void findsFormatsInNames();
    void givesBackWhatItHolds();
    void keepsArchivesMounted();
};

void ClipboardTest::cleanup()
{
    Clipboard::clear();
    delete Clipboard::ptr();
    VFS::install(nullptr);
}

void ClipboardTest::writesExactBytes_data()
{
    QTest::addColumn<Clipboard::Operation>("operation");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QByteArray>("marker");
    QTest::addColumn<QByteArray>("copied");
    const QByteArray first = "file:///a%20b/%C3%A4%23%25";
    const QByteArray second = "file:///c";
    const QByteArray list = first + "\r\n" + second + "\r\n";
    QTest::newRow("none") << Clipboard::NoOperation << list << QByteArray() << QByteArray();
    QTest::newRow("drag") << Clipboard::Drag << list << QByteArray() << QByteArray();
    QTest::newRow("copy") << Clipboard::Copy << list << QByteArray("0") << "copy\n" + first + '\n' + second;
    QTest::newRow("cut") << Clipboard::Cut << list << QByteArray("1") << "cut\n" + first + '\n' + second;
    QTest::newRow("cut nothing") << Clipboard::Cut << QByteArray() << QByteArray("1") << QByteArray("cut\n");
}

void ClipboardTest::writesExactBytes()
{
    QFETCH(Clipboard::Operation, operation);
    QFETCH(QByteArray, list);
    QFETCH(QByteArray, marker);
    QFETCH(QByteArray, copied);
    QList<QUrl> urls;
    if (!list.isEmpty())
        urls = {QUrl::fromLocalFile("/a b/ä#%"), QUrl::fromLocalFile("/c")};
    QMimeData data;
    GnomeProcessor().write(&data, operation, urls);
    DefaultProcessor().write(&data, operation, urls);
    const Formats expected{{uriList, list}, {cutMarker, marker}, {copiedFiles, copied}};
    for (auto format = expected.cbegin(); format != expected.cend(); ++format) {
        QCOMPARE(data.hasFormat(format.key()), !format->isEmpty());
        QCOMPARE(data.data(format.key()), *format);
    }
}

void ClipboardTest::readsWhatOthersWrite_data()
{
    QTest::addColumn<Formats>("formats");
    QTest::addColumn<QString>("copied"); // the paths for each operation
    QTest::addColumn<QString>("cut");
    QTest::addColumn<QString>("dropped");
    const QByteArray list = "file:///a\r\nfile:///b%20c\r\n";
    QTest::newRow("no marker means copy") << Formats{{uriList, list}} << "/a /b c"
                                          << ""
                                          << "/a /b c";
    QTest::newRow("marked as copy") << Formats{{uriList, list}, {cutMarker, "0"}} << "/a /b c"
                                    << ""
                                    << "/a /b c";
    QTest::newRow("marked as cut") << Formats{{uriList, list}, {cutMarker, "1"}} << ""
                                   << "/a /b c"
                                   << "/a /b c";
    QTest::newRow("NUL at the end") << Formats{{uriList, QByteArray("file:///a\nfile:///b\0", 20)}} << "/a /b"
                                    << ""
                                    << "/a /b";
    QTest::newRow("blank lines") << Formats{{uriList, "\n  \r\n file:///a \n\n"}} << "/a"
                                 << ""
                                 << "/a";
    QTest::newRow("marker alone") << Formats{{cutMarker, "1"}} << ""
                                  << ""
                                  << "";
    QTest::newRow("copied files") << Formats{{copiedFiles, "copy\nfile:///x\nfile:///y"}} << "/x /y"
                                  << ""
                                  << "";
    QTest::newRow("copied files decide") << Formats{{copiedFiles, "cut\nfile:///x"}, {uriList, list}} << ""
                                         << "/x"
                                         << "/a /b c";
    QTest::newRow("any other word means cut") << Formats{{copiedFiles, "copy \nfile:///x\r\n"}} << ""
                                              << "/x"
                                              << "";
    QTest::newRow("no line at all") << Formats{{copiedFiles, "copy"}, {uriList, list}} << ""
                                    << ""
                                    << "/a /b c";
    QTest::newRow("empty copied files") << Formats{{copiedFiles, ""}, {uriList, list}} << "/a /b c"
                                        << ""
                                        << "/a /b c";
    QTest::newRow("nothing known") << Formats{{"text/plain", "file:///a"}} << ""
                                   << ""
                                   << "";
}

void ClipboardTest::readsWhatOthersWrite()
{
    QFETCH(Formats, formats);
    const ForeignData data(formats);
    QFETCH(QString, copied);
    QFETCH(QString, cut);
    QFETCH(QString, dropped);
    const auto paths = [&data](Clipboard::Operation operation) {
        QStringList list;
        const QList<QUrl> urls = Clipboard::ptr()->urlsFor(operation, &data);
        for (const QUrl &url : urls)
            list.append(url.toLocalFile());
        return list.join(QLatin1Char(' '));
    };
    QCOMPARE(paths(Clipboard::Copy), copied);
    QCOMPARE(paths(Clipboard::Cut), cut);
    QCOMPARE(paths(Clipboard::Drag), dropped);
    QCOMPARE(paths(Clipboard::NoOperation), dropped);
}

void ClipboardTest::findsFormatsInNames()
{
    const Clipboard *const clipboard = Clipboard::ptr();
    QCOMPARE(clipboard->actualMimeTypes(nullptr), QStringList());
    const ForeignData suffixed(
        {{uriList + ";charset=utf-8", "file:///a"}, {cutMarker, "0"}, {"X-SPECIAL/GNOME-COPIED-FILES", ""}});
    QCOMPARE(clipboard->actualMimeTypes(&suffixed), QStringList({uriList, cutMarker}));
    QCOMPARE(clipboard->urlsFor(Clipboard::Copy, &suffixed), QList<QUrl>());
    QCOMPARE(clipboard->urlsFor(Clipboard::Copy, nullptr), QList<QUrl>());
}

void ClipboardTest::givesBackWhatItHolds()
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
    QCOMPARE(Clipboard::compatibleEntry(entries.first()), entries.first());
    QVERIFY(Clipboard::compatibleEntry(Entry()).isNull());
    Clipboard::clear();
    QVERIFY(Clipboard::clipboardMimeData(Clipboard::clipboard())->formats().isEmpty());
    QVERIFY(!Clipboard::clipboardMimeData(nullptr));
}

void ClipboardTest::keepsArchivesMounted()
{
    ArchiveVfs vfs;
    VFS::install(&vfs);
    MountLog &mounts = vfs.mounts;
    Clipboard *const clipboard = Clipboard::ptr();
    const auto entries = [&vfs](std::initializer_list<const char *> paths) {
        EntryList list{Entry()};
        for (const char *path : paths)
            list.append(vfs.entry(QLatin1String("/archives/") + path));
        return list;
    };
    clipboard->setEntries(entries({"b.zip/x", "plain/x", "b.zip/y", "a.zip", "c.zip/virtual/virtual2"}),
                          Clipboard::Copy);
    QCOMPARE(mounts.take(), QStringLiteral("+a.zip+b.zip+c.zip"));
    QCOMPARE(clipboard->archiveMountPoints(),
             std::set<QString>({"/archives/a.zip", "/archives/b.zip", "/archives/c.zip"}));

    clipboard->setEntries(entries({"b.zip/x"}), Clipboard::Cut);
    QCOMPARE(mounts.take(), QStringLiteral("+b.zip-c.zip-b.zip-a.zip")); // b.zip never without a reference
    clipboard->setEntries(entries({"plain"}), Clipboard::Copy);
    QCOMPARE(mounts.take(), QStringLiteral("-b.zip"));
    QVERIFY(clipboard->archiveMountPoints().empty());

    clipboard->setEntries(entries({"a.zip/x"}), Clipboard::Copy);
    Clipboard::clipboard()->setText("something else"); // as another program does
    Clipboard::clipboard()->setText("and again");
    QCOMPARE(mounts.take(), QStringLiteral("+a.zip-a.zip"));
    QVERIFY(clipboard->archiveMountPoints().empty());

    // Somebody who answers the change of the clipboard with contents of his own.
    QObject listener;
    connect(Clipboard::clipboard(), &QClipboard::dataChanged, &listener, [&] {
        listener.disconnect(Clipboard::clipboard(), nullptr, &listener, nullptr);
        disconnect(Clipboard::clipboard(), nullptr, &listener, nullptr);
        clipboard->setEntries(entries({"b.zip/x"}), Clipboard::Copy);
    });
    clipboard->setEntries(entries({"a.zip/x"}), Clipboard::Copy);
    QCOMPARE(mounts.take(), QStringLiteral("+a.zip+b.zip-a.zip"));
    delete clipboard; // the contents stay, and so does the mount
    QVERIFY(mounts.take().isEmpty());
    Clipboard::clear();
    QCOMPARE(mounts.take(), QStringLiteral("-b.zip"));
}

QTEST_MAIN(ClipboardTest)
#include "clipboardtest.moc"
