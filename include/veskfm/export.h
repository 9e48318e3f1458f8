// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

/// Marks what libveskfmcore exports; everything else is hidden.
#ifdef VESKFMCORE_LIBRARY
#define VESKFM_EXPORT Q_DECL_EXPORT
#else
#define VESKFM_EXPORT Q_DECL_IMPORT
#endif
