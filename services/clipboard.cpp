// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/clipboard.h>

#include <veskfm/clipboardprocessor.h>
#include <veskplatform/archivemountsmanagerproxy.h>
#include <veskplatform/vfs.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHash>
#include <QMimeData>

#include <utility>

namespace VeskFM
{

namespace
{

using PathSet = std::set<QString>;

Clipboard *instance = nullptr;

// The archive mounts that entries lie in. Neighbours share the answer for their parent.
class ArchiveMountFinder
{
public:
    QString mountOf(const Entry &entry)
    {
        if (entry.isNull())
            return {};
        if (entry.isArchiveMountPoint())
            return entry.archiveMountPointOrLocalPath();
        const QString localPath = entry.localPath();
        const QString mount = localPath.isEmpty() ? QString() : m_vfs->archiveMountsManager()->mountPath(localPath);
        return mount.isEmpty() ? mountOfParent(entry) : mount;
    }

private:
    QString mountOfParent(const Entry &entry)
    {
        const QString parentPath = VFS::parentDirPath(entry.path());
        const auto known = m_mounts.constFind(parentPath);
        if (known != m_mounts.constEnd())
            return *known;
        m_mounts.insert(parentPath, QString()); // ends the walk should a VFS name a node its own ancestor
        const QString mount = mountOf(m_vfs->parent(entry));
        m_mounts.insert(parentPath, mount);
        return mount;
    }

    VFS *const m_vfs = VFS::ptr();
    QHash<QString, QString> m_mounts; // by the path of the parent
};

PathSet archiveMountsOf(const EntryList &entries)
{
    ArchiveMountFinder finder;
    PathSet mounts;
    for (const Entry &entry : entries) {
        const QString mount = finder.mountOf(entry);
        if (!mount.isEmpty())
            mounts.insert(mount);
    }
    return mounts;
}

void takeReferences(const PathSet &mounts)
{
    for (const QString &mount : mounts)
        VFS::ptr()->archiveMountsManager()->refMountPath(mount);
}

// Leaves @p mounts empty before the first call, so that no reference is dropped twice whatever that call leads to.
void dropReferences(PathSet *mounts)
{
    const PathSet taken = std::exchange(*mounts, {});
    for (auto mount = taken.rbegin(); mount != taken.rend(); ++mount)
        VFS::ptr()->archiveMountsManager()->unrefMountPath(*mount);
}

} // namespace

Clipboard *Clipboard::ptr()
{
    return instance ? instance : new Clipboard;
}

Clipboard::Clipboard()
    : m_archiveMounts(std::make_shared<PathSet>())
{
    if (!instance)
        instance = this;
    static GnomeProcessor gnomeProcessor; // stateless: all instances may share them
    static DefaultProcessor defaultProcessor;
    registerProcessor(&gnomeProcessor); // first: it tells a cut from a copy in its own data
    registerProcessor(&defaultProcessor);
}

Clipboard::~Clipboard()
{
    if (instance == this)
        instance = nullptr;
}

QClipboard *Clipboard::clipboard()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) ? QGuiApplication::clipboard() : nullptr;
}

const QMimeData *Clipboard::clipboardMimeData(const QClipboard *clipboard)
{
    return clipboard ? clipboard->mimeData(QClipboard::Clipboard) : nullptr;
}

void Clipboard::clear()
{
    if (QClipboard *const target = clipboard())
        target->setMimeData(new QMimeData, QClipboard::Clipboard);
}

void Clipboard::registerProcessor(ClipboardProcessor *processor)
{
    if (!processor)
        return;
    m_processors.append(processor);
    const QStringList mimeTypes = processor->mimeTypes();
    for (const QString &mimeType : mimeTypes) {
        if (!m_supportedMimeTypes.contains(mimeType))
            m_supportedMimeTypes.append(mimeType);
    }
}

void Clipboard::setEntries(const EntryList &entries, Operation operation)
{
    QClipboard *const target = clipboard();
    if (!target)
        return;
    auto *data = new QMimeData;
    const QList<QUrl> urls = VFS::ptr()->urlsFromEntries(entries);
    const auto mounts = std::make_shared<PathSet>(archiveMountsOf(entries));
    takeReferences(*mounts); // before the old ones are dropped: a mount that both use stays mounted
    for (const ClipboardProcessor *processor : qAsConst(m_processors))
        processor->write(data, operation, urls);

    const auto former = m_archiveMounts;
    target->setMimeData(data, QClipboard::Clipboard);
    dropReferences(former.get());    // where the clipboard tells of its change only later
    if (m_archiveMounts != former) { // a listener has answered the change with contents of its own
        dropReferences(mounts.get());
        return;
    }
    m_archiveMounts = mounts;
    if (mounts->empty())
        return;
    auto *context = new QObject(target);
    QObject::connect(target, &QClipboard::dataChanged, context, [context, mounts] {
        dropReferences(mounts.get());
        delete context; // ends the connection; the running functor is kept until it returns
    });
}

EntryList Clipboard::entries(Operation operation) const
{
    return VFS::ptr()->entriesFromUrls(urlsFor(operation, clipboardMimeData(clipboard())));
}

QMimeData *Clipboard::dragMimeData(const EntryList &entries) const
{
    auto *data = new QMimeData;
    const QList<QUrl> urls = VFS::ptr()->urlsFromEntries(entries);
    for (const ClipboardProcessor *processor : m_processors)
        processor->write(data, Drag, urls);
    return data;
}

EntryList Clipboard::dropEntries(const QMimeData *data) const
{
    return VFS::ptr()->entriesFromUrls(urlsFor(Drag, data));
}

QList<QUrl> Clipboard::urlsFor(Operation operation, const QMimeData *data) const
{
    if (actualMimeTypes(data).isEmpty())
        return {};
    QList<QUrl> urls;
    bool handled = false;
    for (int i = 0; i < m_processors.size() && !handled; ++i)
        urls = m_processors.at(i)->read(data, operation, &handled);
    return urls;
}

QStringList Clipboard::actualMimeTypes(const QMimeData *data) const
{
    if (!data)
        return {};
    // By substring, on purpose: programs add suffixes such as a character set to the names of their formats.
    const QString present = data->formats().join(QLatin1Char(';'));
    QStringList actual;
    for (const QString &mimeType : m_supportedMimeTypes) {
        if (present.contains(mimeType))
            actual.append(mimeType);
    }
    return actual;
}

std::set<QString> Clipboard::archiveMountPoints() const
{
    return *m_archiveMounts;
}

Entry Clipboard::compatibleEntry(const Entry &entry)
{
    VFS *const vfs = VFS::ptr();
    return vfs->entriesFromUrls(vfs->urlsFromEntries(EntryList(entry))).value(0);
}

} // namespace VeskFM
