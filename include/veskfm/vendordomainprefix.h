// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// Reverse-domain prefix of all bus names, bus interfaces and plug-in ids. A macro, since Q_CLASSINFO and interface ids
/// need a string literal; the build may set another (CMake variable of the same name).
#ifndef VESKFM_VENDOR_DOMAIN_PREFIX
#define VESKFM_VENDOR_DOMAIN_PREFIX "org.tessaro"
#endif

namespace VeskFM
{

inline constexpr char VendorDomainPrefix[] = VESKFM_VENDOR_DOMAIN_PREFIX;

} // namespace VeskFM
