// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace VeskFM
{
class Entry;
class Model;
} // namespace VeskFM

/// Number of rows that show an entry of the directory, without the ".." row.
int entryCount(const VeskFM::Model &model);

/// Whether the answer to the last rebuild is still due.
bool isListing(const VeskFM::Model &model);

/// What keeps this process from reading the directory or archive, for the user; empty when nothing does.
/// Looks at the disk: ask only when a listing came back empty.
QString accessProblem(const VeskFM::Entry &directory);

/// Why the model shows no entry: not readable, filtered, or just empty. Looks at the disk.
QString emptyListingReason(const VeskFM::Model &model);
