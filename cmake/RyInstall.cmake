# SPDX-License-Identifier: MIT

# What `cmake --install` gives: the library, its headers, a relocatable CMake package, and what
# pkg-config and qmake need. The components are the packages of cmake/RyPackages.cmake.

include(CMakePackageConfigHelpers)

set(RY_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/RyCustomizedDialog")
set(RY_PKGCONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
# Where qmake looks if the prefix is Qt's own; elsewhere a host names it in QMAKEFEATURES.
set(RY_QMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/qt5/mkspecs/features")

install(TARGETS RyCustomizedDialog EXPORT RyCustomizedDialogTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    COMPONENT RyCustomizedDialog_Runtime
    NAMELINK_COMPONENT RyCustomizedDialog_Development
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    COMPONENT RyCustomizedDialog_Development
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    COMPONENT RyCustomizedDialog_Runtime)
install(FILES ${RY_PUBLIC_HEADERS} ${RY_FORWARDING_HEADERS}
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/RyCustomizedDialog"
    COMPONENT RyCustomizedDialog_Development)

install(EXPORT RyCustomizedDialogTargets
    NAMESPACE RyCustomizedDialog::
    DESTINATION "${RY_PACKAGE_DIR}"
    COMPONENT RyCustomizedDialog_Development)
configure_package_config_file(
    cmake/RyCustomizedDialogConfig.cmake.in
    "${PROJECT_BINARY_DIR}/RyCustomizedDialogConfig.cmake"
    INSTALL_DESTINATION "${RY_PACKAGE_DIR}"
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/RyCustomizedDialogConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/RyCustomizedDialogConfig.cmake"
    "${PROJECT_BINARY_DIR}/RyCustomizedDialogConfigVersion.cmake"
    DESTINATION "${RY_PACKAGE_DIR}"
    COMPONENT RyCustomizedDialog_Development)

# The prefix is found from where the file lies, so that the installed tree can be moved.
function(ry_find_prefix result from folder)
    file(RELATIVE_PATH up "${CMAKE_INSTALL_PREFIX}/${folder}" "${CMAKE_INSTALL_PREFIX}")
    string(REGEX REPLACE "/$" "" up "${up}")
    set(${result} "${from}/${up}" PARENT_SCOPE)
endfunction()

if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    set(RY_PKGCONFIG_PREFIX "${CMAKE_INSTALL_PREFIX}")
    set(RY_PKGCONFIG_LIBDIR "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(RY_PKGCONFIG_INCLUDEDIR "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
    set(RY_QMAKE_LIBDIR "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(RY_QMAKE_INCLUDEDIR "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
else()
    ry_find_prefix(RY_PKGCONFIG_PREFIX "\${pcfiledir}" "${RY_PKGCONFIG_DIR}")
    set(RY_PKGCONFIG_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
    set(RY_PKGCONFIG_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
    ry_find_prefix(RY_QMAKE_PREFIX "\$\$PWD" "${RY_QMAKE_DIR}")
    set(RY_QMAKE_LIBDIR "${RY_QMAKE_PREFIX}/${CMAKE_INSTALL_LIBDIR}")
    set(RY_QMAKE_INCLUDEDIR "${RY_QMAKE_PREFIX}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
configure_file(cmake/RyCustomizedDialog.pc.in "${PROJECT_BINARY_DIR}/RyCustomizedDialog.pc" @ONLY)
configure_file(cmake/rycustomizeddialog.prf.in "${PROJECT_BINARY_DIR}/rycustomizeddialog.prf" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/RyCustomizedDialog.pc"
    DESTINATION "${RY_PKGCONFIG_DIR}"
    COMPONENT RyCustomizedDialog_Development)
install(FILES "${PROJECT_BINARY_DIR}/rycustomizeddialog.prf"
    DESTINATION "${RY_QMAKE_DIR}"
    COMPONENT RyCustomizedDialog_Development)
