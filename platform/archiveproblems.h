// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "archiveerror.h"

#include <QString>

namespace VeskFM
{

/// Keeps what archiveProblem() tells. Thread: any.
namespace ArchiveProblems
{
/// The text for the user.
/// @param systemError errno, for ArchiveError::Unreadable
QString text(const QString &archive, ArchiveError error, int systemError = 0);
void set(const QString &archive, const QString &text); ///< an empty text takes it back
} // namespace ArchiveProblems

} // namespace VeskFM
