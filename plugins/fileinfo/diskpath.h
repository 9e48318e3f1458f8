// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

namespace VeskFM
{

class Entry;

/// The exact bytes of the path of @p entry on the local disk, also for a name that is not valid UTF-8; empty when the
/// entry is not there, and for what lies in an archive: a file that it was extracted to has facts of its own. Thread: any.
QByteArray diskPath(const Entry &entry);
bool isOnDisk(const Entry &entry); ///< whether there is one; quick

} // namespace VeskFM
