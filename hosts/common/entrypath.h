// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>

/// An entry as the bus carries it, "(s)": its VFS path, of something that may not exist yet or any more. Unlike an entry
/// it takes no look at the disk, which could keep the event loop waiting.
struct EntryPath
{
    QString path;
};
using EntryPathList = QList<EntryPath>;

Q_DECLARE_METATYPE(EntryPath)

QDBusArgument &operator<<(QDBusArgument &argument, const EntryPath &entry);
const QDBusArgument &operator>>(const QDBusArgument &argument, EntryPath &entry);

/// Once, before the bus sees an object.
void registerEntryPathTypes();

QStringList pathsOf(const EntryPathList &entries);
EntryPathList entriesOf(const QStringList &paths);
