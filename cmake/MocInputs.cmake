# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# moc runs again when a file changes that it knew the last time, so a target that gained a header would be linked
# without it. A header that changes with the list of sources makes it look.
function(veskfm_watch_moc_inputs directory)
  get_property(targets DIRECTORY ${directory} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target ${targets})
    get_target_property(sources ${target} SOURCES)
    get_target_property(type ${target} TYPE)
    if(sources AND NOT type STREQUAL "UTILITY")
      set(list ${PROJECT_BINARY_DIR}/moc-inputs/${target}.h)
      file(CONFIGURE OUTPUT ${list} CONTENT "#pragma once\n// @sources@\n" @ONLY)
      target_sources(${target} PRIVATE ${list})
    endif()
  endforeach()
  get_property(folders DIRECTORY ${directory} PROPERTY SUBDIRECTORIES)
  foreach(folder ${folders})
    veskfm_watch_moc_inputs(${folder})
  endforeach()
endfunction()

veskfm_watch_moc_inputs(${PROJECT_SOURCE_DIR})
