// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace VeskFM
{

/// The type and the permissions of a file as `ls -l` writes them, for example "-rw-r--r--".
/// @param mode the st_mode of stat(2)
QString permissionText(unsigned int mode);

/// The login name of a user, or the number where the system knows none. Answers are kept, since the question may go to
/// a server. Thread: any.
QString userName(unsigned int uid);
QString groupName(unsigned int gid); ///< likewise for a group

} // namespace VeskFM
