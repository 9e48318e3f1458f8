// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fileoperationadaptor.h"

#include "copyoperation.h"
#include "fopsservice.h"
#include "makeoperation.h"
#include "removeoperation.h"
#include "trashoperation.h"

#include <memory>
#include <utility>

FileOperationAdaptor::FileOperationAdaptor(FopsService *service)
    : QDBusAbstractAdaptor(service)
    , m_service(service)
{
    connect(service, &FopsService::finished, this,
            [this](const QString &stamp, Result result, const QStringList &madePaths) {
                Q_EMIT operationFinished(stamp, int(result), entriesOf(madePaths));
            });
}

template <typename Kind, typename... Arguments> void FileOperationAdaptor::start(Arguments &&...arguments)
{
    m_service->start(std::make_shared<Kind>(std::forward<Arguments>(arguments)...));
}

void FileOperationAdaptor::remove(const QString &stamp, const EntryPathList &entries, bool goOn)
{
    start<RemoveOperation>(stamp, pathsOf(entries), goOn);
}

void FileOperationAdaptor::trash(const QString &stamp, const EntryPathList &entries, bool goOn)
{
    start<TrashOperation>(stamp, pathsOf(entries), goOn);
}

void FileOperationAdaptor::restore(const QString &stamp, const EntryPathList &entries)
{
    start<RestoreOperation>(stamp, pathsOf(entries));
}

void FileOperationAdaptor::cleanTrash(const QString &stamp)
{
    start<CleanTrashOperation>(stamp);
}

void FileOperationAdaptor::copy(const QString &stamp, const EntryPathList &sources, const EntryPath &destination)
{
    start<CopyOperation>(CopyOperation::Copy, stamp, pathsOf(sources), destination.path);
}

void FileOperationAdaptor::move(const QString &stamp, const EntryPathList &sources, const EntryPath &destination)
{
    start<CopyOperation>(CopyOperation::Move, stamp, pathsOf(sources), destination.path);
}

void FileOperationAdaptor::rename(const QString &stamp, const EntryPath &from, const EntryPath &to)
{
    start<RenameOperation>(stamp, from.path, to.path);
}

void FileOperationAdaptor::makeDir(const QString &stamp, const EntryPath &entry)
{
    start<MakeOperation>(MakeOperation::Directory, stamp, entry.path);
}

void FileOperationAdaptor::makeFile(const QString &stamp, const EntryPath &entry)
{
    start<MakeOperation>(MakeOperation::EmptyFile, stamp, entry.path);
}

void FileOperationAdaptor::makeShortcut(const QString &stamp, const EntryPath &entry)
{
    start<ShortcutOperation>(stamp, QStringList(entry.path), QString());
}

void FileOperationAdaptor::makeShortcuts(const QString &stamp, const EntryPathList &sources,
                                         const EntryPath &destination)
{
    start<ShortcutOperation>(stamp, pathsOf(sources), destination.path);
}

void FileOperationAdaptor::makeTitledShortcut(const QString &stamp, const QString &url, const QString &title,
                                              const EntryPath &destination)
{
    start<TitledShortcutOperation>(stamp, url, title, destination.path);
}

void FileOperationAdaptor::makeFromTemplate(const QString &stamp, const EntryPath &entry, const QString &templatePath)
{
    start<MakeOperation>(MakeOperation::FromTemplate, stamp, entry.path, templatePath);
}

int FileOperationAdaptor::operationProgress(const QString &stamp)
{
    return m_service->percent(stamp);
}
