// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/archiveproblem.h>

namespace VeskFM
{

QString archiveProblem(const Entry &)
{
    return {}; // no archive is listed or mounted yet
}

} // namespace VeskFM
