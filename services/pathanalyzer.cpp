// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/pathanalyzer.h>

#include <veskplatform/vfs.h>

#include <QAtomicInt>
#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace VeskFM
{

namespace
{

bool isRealDir(const Entry &entry)
{
    return entry.isDir() && !entry.isSymLink();
}

/// A place is known by its own path; what lies below it, by that of its directory.
QString diskPath(const Entry &entry)
{
    return entry.isPlace() ? entry.localPath() : entry.path();
}

QString joined(const QString &directory, const QString &name)
{
    return directory.endsWith(QLatin1Char('/')) ? directory + name : directory + QLatin1Char('/') + name;
}

bool isSameOrBelow(const QString &path, const QString &directory)
{
    return path == directory
        || (path.startsWith(directory)
            && (directory.endsWith(QLatin1Char('/')) || path.at(directory.size()) == QLatin1Char('/')));
}

/// Where a directory really is, with all links on the way resolved; as it is where that cannot be told.
QString resolvedPath(const QString &path)
{
    const QString local = VFS::ptr()->localPath(path);
    const QString resolved = local.isEmpty() ? QString() : QFileInfo(local).canonicalFilePath();
    return resolved.isEmpty() ? path : resolved;
}

PathAnalyzerPair::Conflict conflict(const Entry &source, const QString &target, const QString &parent,
                                    const QString &resolvedParent, const QSet<QString> &taken)
{
    if (source.path() == target)
        return PathAnalyzerPair::SameEntry;
    if (isRealDir(source)
        && (isSameOrBelow(parent, source.path()) || isSameOrBelow(resolvedParent, resolvedPath(source.path()))))
        return PathAnalyzerPair::IntoItself;
    if (taken.contains(target))
        return PathAnalyzerPair::SameTarget;
    return VFS::ptr()->entry(target).isNull() ? PathAnalyzerPair::NoConflict : PathAnalyzerPair::TargetExists;
}

bool isSet(QAtomicInt *cancel)
{
    return cancel && cancel->loadRelaxed() != 0;
}

} // namespace

PathAnalyzer::PathAnalyzer(const EntryList &sources, const Entry &destination)
    : m_sources(sources)
    , m_destination(destination)
{
}

bool PathAnalyzer::analyze(QAtomicInt *cancel)
{
    return resolve() && count(cancel);
}

bool PathAnalyzer::resolve()
{
    m_pairs.clear();
    m_error = NoError;
    if (m_sources.isEmpty()
        || std::any_of(m_sources.cbegin(), m_sources.cend(), [](const Entry &entry) { return entry.isNull(); })) {
        m_error = NoSources;
        return false;
    }
    const QString directory = targetDirectory();
    if (m_error != NoError)
        return false;
    const bool isRenaming = directory.isEmpty();
    const QString parent = isRenaming ? VFS::parentDirPath(diskPath(m_destination)) : directory;
    const QString resolvedParent = resolvedPath(parent);
    QSet<QString> taken;
    for (const Entry &source : m_sources) {
        const QString target = isRenaming ? diskPath(m_destination) : joined(directory, source.fileName());
        m_pairs.append(PathAnalyzerPair(source, target, conflict(source, target, parent, resolvedParent, taken)));
        taken.insert(target);
    }
    return true;
}

/// The directory that takes all sources; empty when the destination is the new name of the only one, or not valid.
QString PathAnalyzer::targetDirectory()
{
    const QString path = diskPath(m_destination);
    if (path.isEmpty()) {
        m_error = NoDestination;
        return {};
    }
    const Entry present = VFS::ptr()->entry(path); // the given one may be older than what is there now
    if (present.isDir())
        return path;
    if (m_sources.size() > 1)
        m_error = EntriesAndFileEntry;
    else if (!present.isNull() && isRealDir(m_sources.first()))
        m_error = DirAndFileEntries;
    else if (present.isNull() && !VFS::ptr()->entry(VFS::parentDirPath(path)).isDir())
        m_error = NoDestination;
    return {};
}

bool PathAnalyzer::count(QAtomicInt *cancel)
{
    m_totalFiles = m_totalDirs = m_totalBytes = 0;
    for (const Entry &source : m_sources) {
        if (!countEntry(source, cancel)) {
            m_error = Cancelled;
            return false;
        }
    }
    return true;
}

bool PathAnalyzer::countEntry(const Entry &entry, QAtomicInt *cancel)
{
    // Not the listing for walks, which leaves every size to be asked for by a path of its own.
    constexpr VFS::EntryChildFilters filters(VFS::ArchivesAsFiles);
    EntryList pending(entry); // a list instead of recursion: trees may be deep
    while (!pending.isEmpty()) {
        if (isSet(cancel))
            return false;
        const Entry next = pending.takeLast();
        if (isRealDir(next)) {
            ++m_totalDirs;
            pending.append(VFS::ptr()->childs(next, filters, cancel));
        } else {
            ++m_totalFiles;
            m_totalBytes += next.isSymLink() ? 0 : qMax<qint64>(0, next.fileSize());
        }
    }
    return !isSet(cancel); // a listing that was stopped is not whole
}

QList<PathAnalyzerPair> PathAnalyzer::conflicts() const
{
    QList<PathAnalyzerPair> found;
    std::copy_if(m_pairs.cbegin(), m_pairs.cend(), std::back_inserter(found),
                 [](const PathAnalyzerPair &pair) { return pair.conflict() != PathAnalyzerPair::NoConflict; });
    return found;
}

QString PathAnalyzer::errorString() const
{
    const char *text = nullptr;
    switch (m_error) {
    case NoError:
        return {};
    case NoSources:
        text = QT_TRANSLATE_NOOP("PathAnalyzer", "Nothing is selected");
        break;
    case NoDestination:
        text = QT_TRANSLATE_NOOP("PathAnalyzer", "Nothing can be put there");
        break;
    case DirAndFileEntries:
        text = QT_TRANSLATE_NOOP("PathAnalyzer", "Can't make operation over pair of dir and file entries");
        break;
    case EntriesAndFileEntry:
        text = QT_TRANSLATE_NOOP("PathAnalyzer", "Can't make operation over entries and file entry");
        break;
    case Cancelled:
        text = QT_TRANSLATE_NOOP("PathAnalyzer", "The operation was cancelled");
        break;
    }
    return QCoreApplication::translate("PathAnalyzer", text);
}

} // namespace VeskFM
