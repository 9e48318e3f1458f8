// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

/// The entry that would be called @p name in @p directory, whether something is there or not: what the services are told
/// to make. Null where the disk has no such directory.
VeskFM::Entry newEntry(const VeskFM::Entry &directory, const QString &name);
