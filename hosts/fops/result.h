// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// How an operation ended; the values go over the bus, where the interface's description explains them.
enum class Result {
    Success = 0,
    Cancelled = 1,
    NotFound = 2,
    AccessDenied = 3,
    Exists = 4,
    NoSpace = 5,
    IntoItself = 6,
    NotSupported = 7,
    Other = 8,
    Changed = 9
};

/// The result that an errno stands for.
Result resultOfError(int error);
