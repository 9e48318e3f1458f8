# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# veskfm_precompile(TARGET MODULE...): compiles the headers of these modules of the toolkit once for the sources of TARGET,
# which otherwise takes more time than the sources themselves. Off for packagers and for the check of what is installed:
# there each source has to include what it uses.
function(veskfm_precompile target)
  if(VESKFM_PRECOMPILE_HEADERS)
    list(TRANSFORM ARGN REPLACE "(.+)" "<Qt\\1>")
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()
