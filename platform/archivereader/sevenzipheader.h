// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

namespace VeskFM
{

/// Whether the 7z archive, or only its list of names, is encrypted. The framework's class does not tell: it takes what is
/// encrypted for empty files.
bool isEncryptedSevenZip(int descriptor, qint64 size);

} // namespace VeskFM
