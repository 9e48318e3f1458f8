// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "removeoperation.h"

#include "directoryreader.h"
#include "orphaninfos.h"
#include "treeremover.h"

#include <veskplatform/standardpaths.h>
#include <veskplatform/vesktrash.h>

#include <QFile>
#include <QList>

#include <cerrno>

using namespace VeskFM;

RemoveOperation::RemoveOperation(const QString &stamp, const QStringList &entries, bool goesOn)
    : Operation(stamp, entries.value(0))
    , m_entries(entries)
    , m_goesOn(goesOn)
{
}

void RemoveOperation::run()
{
    note(m_entries.isEmpty() ? Result::NotFound : Result::Success);
    progress().setTotal(m_entries.size() * Progress::unitsPerNode);
    for (const QString &entry : m_entries) {
        DiskPlace place;
        Result result = DiskPlace::open(diskBytes(entry), &place);
        if (result == Result::Success)
            result = TreeRemover(&progress()).remove(place.directory.get(), place.name.constData());
        if (result == Result::Success)
            VeskTrash::unregisterFile(place.fullPath().toStdString()); // does nothing outside the trash
        progress().add(Progress::unitsPerNode);
        if (!note(result) && (!m_goesOn || isHopeless()))
            return;
    }
}

CleanTrashOperation::CleanTrashOperation(const QString &stamp)
    : Operation(stamp, StandardPaths::trashDirPath())
{
}

void CleanTrashOperation::run()
{
    const QByteArray path = QFile::encodeName(StandardPaths::trashDirPath());
    DiskPlace trash;
    const Result opened = DiskPlace::openDirectory(path, &trash);
    if (opened == Result::NotFound) // nothing was ever trashed
        return;
    if (!note(opened))
        return;
    QList<QByteArray> names;
    DirectoryReader reader(trash.directory.get());
    while (const dirent *const node = reader.next())
        names.append(node->d_name);
    note(resultOfError(reader.error()));

    progress().setTotal(names.size() * Progress::unitsPerNode);
    TreeRemover remover(&progress(), TreeRemover::OwnAnyway);
    for (const QByteArray &name : qAsConst(names)) {
        if (note(remover.remove(trash.directory.get(), name.constData())))
            VeskTrash::unregisterFile((path + '/' + name).toStdString());
        if (isHopeless())
            return;
        progress().add(Progress::unitsPerNode);
    }
    removeOrphanInfos();
}
