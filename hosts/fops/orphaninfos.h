// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Removes the info files of the user's trash whose items are not there. A program that was ended between the two steps
/// of trashing leaves one, and the name stays taken. Those of the last day stay: their items may be on their way.
void removeOrphanInfos();
