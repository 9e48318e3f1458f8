# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# The library is compiled once, as objects: the shared library is linked from them, and so are the tests of private
# classes, which no exported symbol reaches. Each folder adds its own sources to veskfmcore_objects.
file(GLOB veskfm_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/veskfm/*.h)
add_library(veskfmcore_objects OBJECT ${veskfm_headers})
veskfm_precompile(veskfmcore_objects Core DBus Widgets)
target_compile_definitions(veskfmcore_objects PRIVATE VESKFMCORE_LIBRARY)
target_include_directories(veskfmcore_objects PRIVATE ${PROJECT_BINARY_DIR}/generated)

add_library(veskfmcore SHARED)
add_library(VeskFM::veskfmcore ALIAS veskfmcore)
set_target_properties(veskfmcore PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 1)
target_link_libraries(veskfmcore PRIVATE veskfmcore_objects)

foreach(target veskfmcore_objects veskfmcore)
  target_compile_features(${target} PUBLIC cxx_std_17)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                              $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  if(NOT VESKFM_VENDOR_DOMAIN_PREFIX STREQUAL "org.tessaro")
    target_compile_definitions(${target} PUBLIC VESKFM_VENDOR_DOMAIN_PREFIX="${VESKFM_VENDOR_DOMAIN_PREFIX}")
  endif()
  target_link_libraries(${target} PUBLIC veskplatform Qt5::Core Qt5::Gui Qt5::Widgets Qt5::DBus
                                  PRIVATE Qt5::Concurrent KF5::CoreAddons)
endforeach()
