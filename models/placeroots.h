// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QString>

namespace VeskFM
{

/// The groups of places below VFS::rootEntry(), in display order. A VFS may lack some.
EntryList placeGroups();

/// The places of a group, in display order. Blocks while the VFS looks them up.
EntryList placesOfGroup(const Entry &group);

/// The name of a group or place in Settings::hiddenTreeItems(), see PlacesModel; empty for anything else.
QString placeRootName(const Entry &entry);

} // namespace VeskFM
