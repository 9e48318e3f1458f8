// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "entrypath.h"

#include <QDBusMetaType>
#include <QStringList>

QDBusArgument &operator<<(QDBusArgument &argument, const EntryPath &entry)
{
    argument.beginStructure();
    argument << entry.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, EntryPath &entry)
{
    argument.beginStructure();
    argument >> entry.path;
    argument.endStructure();
    return argument;
}

void registerEntryPathTypes()
{
    qRegisterMetaType<EntryPath>("EntryPath");
    qRegisterMetaType<EntryPathList>("EntryPathList");
    qDBusRegisterMetaType<EntryPath>();
    qDBusRegisterMetaType<EntryPathList>();
}

QStringList pathsOf(const EntryPathList &entries)
{
    QStringList paths;
    for (const EntryPath &entry : entries)
        paths.append(entry.path);
    return paths;
}

EntryPathList entriesOf(const QStringList &paths)
{
    EntryPathList entries;
    for (const QString &path : paths)
        entries.append({path});
    return entries;
}
