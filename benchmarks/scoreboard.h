// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Prints one line of JSON for a generated directory of @p size entries: median, least and greatest of five runs of
/// every measure. Returns whether all of them went well.
bool printScore(int size);
