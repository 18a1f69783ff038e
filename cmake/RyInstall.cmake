# SPDX-License-Identifier: MIT

# What `cmake --install` gives besides the headers: the libraries, their translations, a relocatable CMake
# package, and a pkg-config file and a qmake feature for each library.

include(CMakePackageConfigHelpers)

set(RY_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/${RY_NAME}")
set(RY_PKGCONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
set(RY_TRANSLATIONS_DIR "${CMAKE_INSTALL_DATADIR}/rycustomizeddialog/translations")

# ry_install_library(target export)
#
# The target goes into a file of its own, because the kit may be left out of an installation.
function(ry_install_library target export)
    install(TARGETS ${target} EXPORT ${export}
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
    install(EXPORT ${export}
        NAMESPACE RyCustomizedDialog::
        DESTINATION "${RY_PACKAGE_DIR}")
endfunction()
ry_install_library(RyCustomizedDialog ${RY_NAME}Targets)
ry_install_library(RyToolBarKit ${RY_NAME}KitTargets)
# A linker may leave out the library that only the kit uses. Then the path of the program does not count.
set_target_properties(RyToolBarKit PROPERTIES INSTALL_RPATH "$ORIGIN")
install(FILES ${RY_TRANSLATIONS}
    DESTINATION "${RY_TRANSLATIONS_DIR}")

string(TOLOWER "lib${RY_KIT_NAME}-dev" RY_KIT_PACKAGE)
configure_package_config_file(
    cmake/RyCustomizedDialogConfig.cmake.in
    "${PROJECT_BINARY_DIR}/${RY_NAME}Config.cmake"
    INSTALL_DESTINATION "${RY_PACKAGE_DIR}"
    PATH_VARS RY_TRANSLATIONS_DIR
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/${RY_NAME}ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/${RY_NAME}Config.cmake"
    "${PROJECT_BINARY_DIR}/${RY_NAME}ConfigVersion.cmake"
    DESTINATION "${RY_PACKAGE_DIR}")

# The prefix is found from where the file lies, so that the installed tree can be moved.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}"
        OR IS_ABSOLUTE "${CMAKE_INSTALL_DATADIR}")
    set(RY_PKGCONFIG_PREFIX "${CMAKE_INSTALL_PREFIX}")
    set(RY_PKGCONFIG_LIBDIR "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(RY_PKGCONFIG_INCLUDEDIR "${CMAKE_INSTALL_FULL_INCLUDEDIR}${RY_INCLUDE_FOLDER}")
    set(RY_PKGCONFIG_DATADIR "${CMAKE_INSTALL_FULL_DATADIR}")
else()
    file(RELATIVE_PATH RY_PREFIX_FROM_PKGCONFIG
        "${CMAKE_INSTALL_PREFIX}/${RY_PKGCONFIG_DIR}" "${CMAKE_INSTALL_PREFIX}")
    string(REGEX REPLACE "/$" "" RY_PREFIX_FROM_PKGCONFIG "${RY_PREFIX_FROM_PKGCONFIG}")
    set(RY_PKGCONFIG_PREFIX "\${pcfiledir}/${RY_PREFIX_FROM_PKGCONFIG}")
    set(RY_PKGCONFIG_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
    set(RY_PKGCONFIG_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}${RY_INCLUDE_FOLDER}")
    set(RY_PKGCONFIG_DATADIR "\${prefix}/${CMAKE_INSTALL_DATADIR}")
endif()
set(RY_PKGCONFIG_TRANSLATIONS "")
if(RYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS)
    set(RY_PKGCONFIG_TRANSLATIONS
        "translationsdir=${RY_PKGCONFIG_DATADIR}/rycustomizeddialog/translations\n")
endif()
configure_file(cmake/RyCustomizedDialog.pc.in "${PROJECT_BINARY_DIR}/${RY_NAME}.pc" @ONLY)
configure_file(cmake/RyToolBarKit.pc.in "${PROJECT_BINARY_DIR}/${RY_KIT_NAME}.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/${RY_NAME}.pc" "${PROJECT_BINARY_DIR}/${RY_KIT_NAME}.pc"
    DESTINATION "${RY_PKGCONFIG_DIR}")

include(RyQmake)
