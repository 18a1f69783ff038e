# SPDX-License-Identifier: MIT

# What `cmake --install` gives: the library, its headers, its translations, a relocatable CMake
# package and a pkg-config file.

include(CMakePackageConfigHelpers)

set(RY_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/${RY_NAME}")
set(RY_PKGCONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
set(RY_TRANSLATIONS_DIR "${CMAKE_INSTALL_DATADIR}/rycustomizeddialog/translations")

install(TARGETS RyCustomizedDialog RyToolBarKit EXPORT ${RY_NAME}Targets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES ${RY_TRANSLATIONS}
    DESTINATION "${RY_TRANSLATIONS_DIR}")

install(EXPORT ${RY_NAME}Targets
    NAMESPACE RyCustomizedDialog::
    DESTINATION "${RY_PACKAGE_DIR}")
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
install(FILES "${PROJECT_BINARY_DIR}/${RY_NAME}.pc" DESTINATION "${RY_PKGCONFIG_DIR}")

include(RyQmake)
