// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/trash.h>

#include <veskplatform/entrylist.h>
#include <veskplatform/standardpaths.h>
#include <veskplatform/vesktrash.h>
#include <veskplatform/vfs.h>

#include <QFile>

#include <algorithm>
#include <atomic>

namespace VeskFM
{

namespace
{

std::atomic<Trash *> instance{nullptr};

// Empty where the locale's encoding lacks a character: its "?" would name another file.
std::string localBytes(const QString &path)
{
    const QByteArray bytes = QFile::encodeName(path);
    return QFile::decodeName(bytes) == path ? bytes.toStdString() : std::string();
}

template <typename Action> void withNameInTrash(const QString &path, const Action &action)
{
    QString prefix = StandardPaths::trashDirPath();
    if (!prefix.endsWith(QLatin1Char('/')))
        prefix += QLatin1Char('/');
    if (path.startsWith(prefix) && path.indexOf(QLatin1Char('/'), prefix.size()) < 0)
        action(localBytes(path.mid(prefix.size())));
}

} // namespace

Trash *Trash::ptr()
{
    Trash *existing = instance.load();
    if (existing)
        return existing;
    Trash *fresh = new Trash; // stateless: when two threads meet here, one of the two is simply dropped
    if (instance.compare_exchange_strong(existing, fresh))
        return fresh;
    delete fresh;
    return existing;
}

Trash::~Trash()
{
    Trash *self = this;
    instance.compare_exchange_strong(self, nullptr);
}

bool Trash::registerFile(const QString &path, QString &trashedPath)
{
    const std::string trashed = VeskTrash::registerFile(localBytes(path));
    if (trashed.empty())
        return false;
    trashedPath = QString::fromStdString(trashed);
    return true;
}

bool Trash::unregisterFile(const QString &path)
{
    return VeskTrash::unregisterFile(localBytes(path));
}

QString Trash::registeredFilePath(const QString &path) const
{
    return QString::fromStdString(VeskTrash::getFilePathToRestore(localBytes(path)));
}

QDateTime Trash::deletionDate(const QString &path) const
{
    return QDateTime::fromSecsSinceEpoch(VeskTrash::getDeletionDate(localBytes(path)));
}

bool Trash::isEmpty() const
{
    return VeskTrash::isEmpty();
}

qulonglong Trash::size() const
{
    return VeskTrash::size();
}

bool Trash::hasSizeCache() const
{
    return VeskTrash::hasSizeCache();
}

QString Trash::actualIconName() const
{
    return isEmpty() ? QStringLiteral("user-trash") : QStringLiteral("user-trash-full");
}

bool Trash::isTrash(const Entry &entry) const
{
    return entry.localPath() == StandardPaths::trashDirPath();
}

bool Trash::isTrash(const QString &url) const
{
    return VFS::ptr()->localPath(url) == StandardPaths::trashDirPath();
}

bool Trash::hasEntries(const EntryList &entries) const
{
    return !entries.isEmpty() && std::all_of(entries.cbegin(), entries.cend(), [](const Entry &entry) {
        return !entry.isPlace() && VeskTrash::isFileInTrash(localBytes(entry.localPath()));
    });
}

bool Trash::hasEntries(const QStringList &urls) const
{
    // A bare prefix, as its callers know it: a neighbour whose name begins like the trash directory's passes, too.
    const QString prefix = StandardPaths::trashDirPath();
    return !urls.isEmpty() && std::all_of(urls.cbegin(), urls.cend(), [&prefix](const QString &url) {
        return VFS::ptr()->localPath(url).startsWith(prefix);
    });
}

void Trash::registerDirSize(const QString &path, qint64 size)
{
    withNameInTrash(path, [size](const std::string &name) { VeskTrash::registerDirSize(name, size); });
}

void Trash::unregisterDirSize(const QString &path)
{
    withNameInTrash(path, [](const std::string &name) { VeskTrash::unregisterDirSize(name); });
}

} // namespace VeskFM
