# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# What `cmake --install` puts where: libraries, headers, the package VeskFMCore for CMake and veskfmcore.pc.
include(CMakePackageConfigHelpers)
include(ECMSetupVersion)
include(ECMUninstallTarget)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/VeskFMCore)
ecm_setup_version(PROJECT VARIABLE_PREFIX VESKFMCORE
                  PACKAGE_VERSION_FILE ${PROJECT_BINARY_DIR}/VeskFMCoreConfigVersion.cmake)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VeskFMCoreConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/VeskFMCoreConfig.cmake INSTALL_DESTINATION ${package_dir})

# A package configuration names absolute directories, whether the build was given relative ones or not.
cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE pc_libdir)
cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_INCLUDEDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE pc_includedir)
if(NOT VESKFM_VENDOR_DOMAIN_PREFIX STREQUAL "org.tessaro")
  set(pc_defines "'-DVESKFM_VENDOR_DOMAIN_PREFIX=\"${VESKFM_VENDOR_DOMAIN_PREFIX}\"'")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/veskfmcore.pc.in ${PROJECT_BINARY_DIR}/veskfmcore.pc @ONLY)

# Below a prefix of its own the pieces must find each other; packagers for a system set CMAKE_SKIP_INSTALL_RPATH.
set_target_properties(veskfmcore veskplatform PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS veskfmcore veskplatform EXPORT VeskFMCoreTargets)
if(TARGET vesk-browser)
  file(RELATIVE_PATH libdir_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(vesk-browser PROPERTIES INSTALL_RPATH "$ORIGIN/${libdir_from_bin}")
endif()
install(EXPORT VeskFMCoreTargets NAMESPACE VeskFM:: DESTINATION ${package_dir})
install(FILES ${PROJECT_BINARY_DIR}/VeskFMCoreConfig.cmake ${PROJECT_BINARY_DIR}/VeskFMCoreConfigVersion.cmake
        DESTINATION ${package_dir})
install(FILES ${PROJECT_BINARY_DIR}/veskfmcore.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
