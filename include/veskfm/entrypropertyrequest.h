// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QList>
#include <QMetaType>
#include <QVector>

namespace VeskFM
{

class EntryPropertySet;
class PropertyDataHolder;

/// One entry whose expensive data is to be computed, or has been. A plain value: copying it takes no reference.
struct EntryPropertyRequest
{
    QVector<EntryPropertySet *> propertySets; ///< borrowed from the holder
    PropertyDataHolder *holder = nullptr;     ///< the enumerator holds a reference until the request is announced
    Entry entry;
    int invalidations = -1; ///< of the holder so far; when there are more at the end, what was computed is outdated
};

using EntryPropertyRequestList = QList<EntryPropertyRequest>;

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::EntryPropertyRequest)
Q_DECLARE_METATYPE(VeskFM::EntryPropertyRequestList)
