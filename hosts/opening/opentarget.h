// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QByteArray>
#include <QList>
#include <QString>

/// What there is to open behind an entry: the entry itself, or what a desktop entry of the type "Link" leads to. A
/// plain value.
struct OpenTarget
{
    QString name;   ///< of the entry, for display
    QString type;   ///< a MIME type; "x-scheme-handler/..." for the address of something that is no local file
    QByteArray uri; ///< percent-encoded, with the exact bytes of a file name
};
using OpenTargetList = QList<OpenTarget>;

/// Looks at the disk, which takes as long as the disk takes. Entries that cannot be opened at all are left out. Any
/// thread.
OpenTargetList openTargets(const VeskFM::EntryList &entries);
/// The targets by their types, in the order in which the types come first.
QList<OpenTargetList> groupedByType(const OpenTargetList &targets);
