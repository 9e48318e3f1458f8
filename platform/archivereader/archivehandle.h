// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "../archiveerror.h"

#include <archive.h>

#include <memory>

namespace VeskFM
{

struct ArchiveFreer
{
    void operator()(archive *handle) const { archive_read_free(handle); }
};

/// An archive that is being read.
using ArchiveHandle = std::unique_ptr<archive, ArchiveFreer>;

/// Why the last call on the handle failed.
ArchiveError errorOf(archive *handle);

} // namespace VeskFM
