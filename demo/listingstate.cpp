// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "listingstate.h"

#include <veskfm/model.h>
#include <veskfm/modelitem.h>
#include <veskplatform/archivemount.h>
#include <veskplatform/archiveproblem.h>

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <cstring>

#include <dirent.h>
#include <unistd.h>

using namespace VeskFM;

int entryCount(const Model &model)
{
    const int rows = model.rowCount();
    const QModelIndex first = model.index(0, 0);
    const bool hasDotDot = first.isValid() && static_cast<const ModelItem *>(first.internalPointer())->isDotDotDir();
    return hasDotDot ? rows - 1 : rows;
}

bool isListing(const Model &model)
{
    return model.data(QModelIndex(), Model::ListingRole).toBool();
}

QString accessProblem(const Entry &directory)
{
    if (!ArchiveMount::archiveOf(directory).isNull())
        return archiveProblem(directory);
    const QByteArray path = QFile::encodeName(directory.localPath());
    if (path.isEmpty()) // a place, or a name that the local encoding cannot express
        return {};
    DIR *stream = ::opendir(path.constData());
    const bool readable = stream && ::access(path.constData(), X_OK) == 0; // without x no entry can be looked at
    const int error = readable ? 0 : errno;
    if (stream)
        ::closedir(stream);
    return error ? QString::fromLocal8Bit(std::strerror(error)) : QString();
}

QString emptyListingReason(const Model &model)
{
    const QString problem = accessProblem(model.actualRootEntry());
    if (!problem.isEmpty() && !ArchiveMount::archiveOf(model.actualRootEntry()).isNull())
        return problem; // names the archive
    if (!problem.isEmpty())
        return QCoreApplication::translate("ListingState", "This folder cannot be read: %1").arg(problem);
    if (model.nameFilters() != QStringList(QStringLiteral("*")))
        return QCoreApplication::translate("ListingState", "No name here matches the filter");
    if (!model.showHiddenEntries())
        return QCoreApplication::translate("ListingState", "Nothing to show here, hidden files aside");
    return QCoreApplication::translate("ListingState", "This folder is empty");
}
