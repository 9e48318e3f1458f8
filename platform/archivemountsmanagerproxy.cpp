// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/archivemountsmanagerproxy.h>

namespace VeskFM
{

ArchiveMountsManagerProxy::~ArchiveMountsManagerProxy() = default;

} // namespace VeskFM
