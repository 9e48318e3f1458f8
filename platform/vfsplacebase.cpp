// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/vfsplacebase.h>

namespace VeskFM
{

VFSPlaceBase::~VFSPlaceBase() = default;

} // namespace VeskFM
