// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "copyoperation.h"

#include "part.h"
#include "treecopier.h"
#include "treemover.h"
#include "treeremover.h"

#include <veskfm/pathanalyzer.h>
#include <veskplatform/vfs.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>

using namespace VeskFM;

namespace
{

Result resultOfAnalysis(PathAnalyzer::Error error)
{
    switch (error) {
    case PathAnalyzer::NoError:
        return Result::Success;
    case PathAnalyzer::NoSources:
    case PathAnalyzer::NoDestination:
        return Result::NotFound;
    case PathAnalyzer::DirAndFileEntries:
    case PathAnalyzer::EntriesAndFileEntry:
        return Result::Exists;
    case PathAnalyzer::Cancelled:
        return Result::Cancelled;
    }
    return Result::Other;
}

/// 0 where nothing is.
dev_t deviceOf(const QByteArray &path)
{
    struct stat facts = {};
    return lstat(path.constData(), &facts) == 0 ? facts.st_dev : 0;
}

} // namespace

CopyOperation::CopyOperation(Kind kind, const QString &stamp, const QStringList &sources, const QString &destination)
    : Operation(stamp, destination)
    , m_kind(kind)
    , m_sources(sources)
    , m_destination(destination)
{
}

void CopyOperation::run()
{
    ArchiveSources sources(&progress());
    EntryList present;
    for (const QString &path : m_sources) {
        const Entry source = sources.find(path);
        if (progress().isCancelled())
            note(Result::Cancelled);
        else if (m_kind == Move && ArchiveMount::isInArchive(source))
            note(Result::NotSupported); // there it would have to go
        else if (note(source.isNull() ? Result::NotFound : Result::Success))
            present.append(source);
    }
    if (present.isEmpty()) {
        note(m_sources.isEmpty() ? Result::NotFound : Result::Success);
        return;
    }
    if (!note(leadsIntoArchive(diskBytes(m_destination)) ? Result::NotSupported : Result::Success))
        return;
    PathAnalyzer analyzer(present, entryOfPath(m_destination));
    if (!analyzer.resolve()) {
        note(resultOfAnalysis(analyzer.error()));
        return;
    }
    setTotal(&analyzer);
    DiskPlace target;
    const QList<PathAnalyzerPair> pairs = analyzer.pairs();
    for (const PathAnalyzerPair &pair : pairs) {
        if (progress().isCancelled())
            note(Result::Cancelled);
        if (isHopeless())
            return;
        note(transfer(pair, &sources, &target));
        if (!m_countsBytes)
            progress().add(Progress::unitsPerNode);
    }
}

/// Renames are not worth a walk over what they move: each counts as one.
void CopyOperation::setTotal(PathAnalyzer *analyzer)
{
    if (m_kind == Move) {
        const QList<PathAnalyzerPair> pairs = analyzer->pairs();
        m_countsBytes = std::any_of(pairs.cbegin(), pairs.cend(), [](const PathAnalyzerPair &pair) {
            const QByteArray parent = diskBytes(VFS::parentDirPath(pair.targetPath()));
            struct stat facts = {};
            return stat(parent.constData(), &facts) == 0 && deviceOf(diskBytes(pair.source().path())) != facts.st_dev;
        });
    }
    if (m_countsBytes && analyzer->count(progress().cancelFlag()))
        progress().setTotal((analyzer->totalFiles() + analyzer->totalDirs()) * Progress::unitsPerNode
                            + analyzer->totalBytes());
    else
        progress().setTotal(analyzer->pairs().size() * Progress::unitsPerNode);
}

Result CopyOperation::transfer(const PathAnalyzerPair &pair, ArchiveSources *sources, DiskPlace *target)
{
    if (pair.conflict() == PathAnalyzerPair::IntoItself)
        return Result::IntoItself;
    QString sourcePath;
    DiskPlace source;
    Result result = sources->locate(pair.source(), &sourcePath);
    if (result == Result::Success)
        result = DiskPlace::open(diskBytes(sourcePath), &source);
    if (result == Result::Success)
        result = openTarget(diskBytes(pair.targetPath()), target);
    if (result != Result::Success)
        return result;

    const bool isInPlace = pair.conflict() == PathAnalyzerPair::SameEntry;
    const bool isDirectory = pair.source().isDir() && !pair.source().isSymLink();
    if (isInPlace && m_kind == Move) {
        addMade(source.fullPath()); // where it already is
        return Result::Success;
    }
    const FreeName name =
        isInPlace ? FreeName::forCopyOf(target->name, isDirectory) : FreeName::like(target->name, isDirectory);
    const mode_t addedMode = ArchiveMount::isInMount(sourcePath) ? S_IWUSR : 0; // there everything is read-only
    result = m_kind == Copy
        ? copy(source, *target, name, addedMode, &target->name)
        : TreeMover(&progress())
              .move(source.directory.get(), source.name, target->directory.get(), name, &target->name);
    if (result == Result::Success)
        addMade(target->fullPath());
    return result;
}

Result CopyOperation::copy(const DiskPlace &source, const DiskPlace &target, const FreeName &name, mode_t addedMode,
                           QByteArray *taken)
{
    const QByteArray part = Part::freshName();
    TreeCopier copier(&progress());
    copier.setAddedMode(addedMode);
    Result result = copier.copy(source.directory.get(), source.name, target.directory.get(), part);
    if (result != Result::Success)
        return result;
    result = renameToFreeName(target.directory.get(), part, target.directory.get(), name, taken);
    if (result != Result::Success)
        TreeRemover(nullptr, TreeRemover::OwnAnyway).remove(target.directory.get(), part.constData());
    return result;
}

RenameOperation::RenameOperation(const QString &stamp, const QString &from, const QString &to)
    : Operation(stamp, to)
    , m_from(from)
    , m_to(to)
{
}

void RenameOperation::run()
{
    DiskPlace from;
    DiskPlace to;
    if (!note(DiskPlace::open(diskBytes(m_from), &from)) || !note(openTarget(diskBytes(m_to), &to)))
        return;
    if (from.fullPath() != to.fullPath()
        && !note(TreeMover(&progress())
                     .move(from.directory.get(), from.name, to.directory.get(), FreeName::exactly(to.name), &to.name)))
        return;
    addMade(to.fullPath());
}
