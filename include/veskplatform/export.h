// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

/// Marks what libveskplatform exports; everything else is hidden.
#ifdef VESKPLATFORM_LIBRARY
#define VESKPLATFORM_EXPORT Q_DECL_EXPORT
#else
#define VESKPLATFORM_EXPORT Q_DECL_IMPORT
#endif
