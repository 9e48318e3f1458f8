// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Whether an open file or directory is in a file system whose "files" take no room and may pretend to be terabytes or
/// never end.
bool isInKernelFileSystem(int descriptor);
