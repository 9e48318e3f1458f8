// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "opentarget.h"

#include <veskfm/corepaths.h>
#include <veskplatform/veskuidesktopentry.h>
#include <veskplatform/vfs.h>

#include <QFile>
#include <QUrl>

#include <algorithm>

using namespace VeskFM;

namespace
{

const QString directoryType = QStringLiteral("inode/directory");

QUrl urlOf(const Entry &entry)
{
    return VFS::ptr()->urlsFromEntries(EntryList(entry)).value(0);
}

QString typeOf(const Entry &entry)
{
    if (entry.isDir() || entry.isDirPlace())
        return directoryType;
    const QString localPath = entry.localPath();
    return localPath.isEmpty() ? mimeTypeForFile(entry.path(), false) : mimeTypeForFile(localPath, true);
}

/// Where a desktop entry of the type "Link" leads; empty for everything else.
QUrl linkTarget(const Entry &entry)
{
    if (!entry.isFile() || entry.localPath().isEmpty() || !entry.fileName().endsWith(QLatin1String(".desktop")))
        return {};
    const VeskUIDesktopEntry file(entry.localPath());
    if (file.getType() != QLatin1String("Link"))
        return {};
    const QString address = file.getUrl();
    return address.startsWith(QLatin1Char('/')) ? QUrl::fromLocalFile(address) : QUrl(address);
}

OpenTarget openTarget(const Entry &entry)
{
    const QUrl link = linkTarget(entry);
    if (link.isEmpty())
        return {entry.fileName(), typeOf(entry), urlOf(entry).toEncoded()};
    if (!link.isLocalFile())
        return {entry.fileName(), QLatin1String("x-scheme-handler/") + link.scheme(), link.toEncoded()};
    const Entry target = VFS::ptr()->entriesFromUrls({link}).value(0);
    if (target.isNull())
        return {};
    return {entry.fileName(), typeOf(target), urlOf(target).toEncoded()}; // no further: links could lead in a circle
}

bool isOpenable(const OpenTarget &target)
{
    return !target.uri.isEmpty() && !target.type.isEmpty() && !target.type.endsWith(QLatin1Char('/'));
}

} // namespace

OpenTargetList openTargets(const EntryList &entries)
{
    OpenTargetList targets;
    for (const Entry &entry : entries) {
        if (entry.isNull() || !VFS::ptr()->isEntryExists(entry))
            continue;
        const OpenTarget target = openTarget(entry);
        if (isOpenable(target))
            targets.append(target);
    }
    return targets;
}

QList<OpenTargetList> groupedByType(const OpenTargetList &targets)
{
    QList<OpenTargetList> groups;
    for (const OpenTarget &target : targets) {
        const auto group = std::find_if(groups.begin(), groups.end(), [&target](const OpenTargetList &other) {
            return other.first().type == target.type;
        });
        if (group != groups.end())
            group->append(target);
        else
            groups.append({target});
    }
    return groups;
}
