// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "result.h"

struct stat;

/// Gives a copied file or directory the original's owner, extended attributes, access control lists, mode and times. What
/// the user may not set or the file system cannot hold is left out; a set-id bit goes with its owner.
/// Errors: what did fit in the original and does not here.
Result copyMetadata(int from, const struct stat &facts, int to);

/// The owner and times alone, of what is not opened to be copied: links, pipes and devices. With their modes, except of
/// links, which have none.
Result copyMetadata(const struct stat &facts, int toParent, const char *toName);

/// Takes the access control lists off that a new node got from its directory.
void dropInheritedAcl(int fd);
