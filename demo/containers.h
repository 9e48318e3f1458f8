// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

/// Whether a pane can show the inside of @p entry: a directory, a place or an archive.
bool canBeShown(const VeskFM::Entry &entry);

/// What a pane shows of @p entry: for a place that stands for a directory of the disk that directory, so that its path and
/// the way up are those of the disk. The trash stays a place. Null when the directory is not there.
VeskFM::Entry directoryToShow(const VeskFM::Entry &entry);

/// Where "up" leads from @p directory; null at the top of the disk, of an archive on it never.
VeskFM::Entry parentToShow(const VeskFM::Entry &directory);

/// Whether something can be put into @p container, as far as can be told without trying: not into an archive, nor into a
/// place that only leads to others.
bool canTakeFiles(const VeskFM::Entry &container);

VeskFM::Entry trashPlace();

/// A name for titles and lists: of a place its label, of the root its path.
QString shownName(const VeskFM::Entry &entry);
