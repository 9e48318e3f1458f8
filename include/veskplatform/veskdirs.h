// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <string>

/// A fixed directory of the desktop environment, in the local 8-bit encoding.
/// @param kind 1 temporary files, 4 start menu, 17 toolbar, 25 autostart; any other gives an empty text
/// Thread: any.
VESKPLATFORM_EXPORT std::string GetVeskDir(int kind);

/// The organisation name of the desktop environment's settings: local 8-bit, NUL-terminated, never freed. Thread: any.
VESKPLATFORM_EXPORT const char *GetOrganization();

/// The kind of the running session, which the session sets as a number in the environment variable VESK_SESSION; 7 and 8
/// are kiosk sessions, 0 stands for none or an unknown one. Thread: any.
VESKPLATFORM_EXPORT int whatVeskSession();
