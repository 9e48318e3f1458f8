# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# Places that are compiled into the library. The defaults are part of its interface; presets for developers and a
# packager for another layout set their own.
set(VESKFM_VENDOR_DOMAIN_PREFIX "org.tessaro" CACHE STRING "Reverse-domain prefix of all bus names and plug-in ids")
set(VESKFM_PLUGIN_DIR "/usr/lib/x86_64-linux-gnu/vesk-fm" CACHE PATH "Where property plug-ins are loaded from")
set(VESKFM_TRANSLATIONS_DIR "/usr/share/vesk/translations" CACHE PATH "Where the library's own catalogue is")
set(VESKFM_SHARE_DIR "/usr/share/veskfm" CACHE PATH "The file manager's shared data")
set(VESKFM_TEMPLATES_DIR "/usr/share/veskfm/templates/" CACHE STRING "System-wide templates of new files")
set(VESKFM_MODE_TOOL "/usr/sbin/zarnel-modeswitch" CACHE FILEPATH "Program that prints the security mode")
set(VESKFM_ROOT_DISPLAY_TOOL "/usr/bin/vesk-xephyr.sh" CACHE FILEPATH "Program that starts others on the root display")
set(VESKFM_ARCHIVE_READER "${CMAKE_INSTALL_FULL_LIBEXECDIR}/vesk-archive" CACHE FILEPATH "Program that reads archives")
set(VESKFM_TRACE_FILE "/tmp/log" CACHE FILEPATH "File that the tracer writes")

configure_file(${PROJECT_SOURCE_DIR}/core/fixedplaces.h.in ${PROJECT_BINARY_DIR}/generated/fixedplaces.h @ONLY)
