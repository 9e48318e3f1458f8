// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

// For programs that the bus may start without a display.

void chooseHostPlatform();  ///< one that needs no display where there is none; before the application object is made
void chooseHostIconTheme(); ///< an installed one where nobody chose; after it
