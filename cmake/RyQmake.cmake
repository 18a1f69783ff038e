# SPDX-License-Identifier: MIT

# The files that qmake needs for `CONFIG += rycustomizeddialog` and `CONFIG += rytoolbarkit`. With Qt's own
# prefix, qmake finds them. With another prefix, a host sets QMAKEFEATURES to their folder.

set(RY_QMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/qt${RYCUSTOMIZEDDIALOG_QT}/mkspecs/features")

if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    set(RY_QMAKE_LIBDIR "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(RY_QMAKE_INCLUDEDIR "${CMAKE_INSTALL_FULL_INCLUDEDIR}${RY_INCLUDE_FOLDER}")
else()
    # Relative to the file, so that the installed tree can be moved.
    foreach(folder IN ITEMS LIBDIR INCLUDEDIR)
        file(RELATIVE_PATH RY_FROM_QMAKE "${CMAKE_INSTALL_PREFIX}/${RY_QMAKE_DIR}"
            "${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_${folder}}")
        set(RY_QMAKE_${folder} "\$\$PWD/${RY_FROM_QMAKE}")
    endforeach()
    string(APPEND RY_QMAKE_INCLUDEDIR "${RY_INCLUDE_FOLDER}")
endif()
foreach(feature IN ITEMS rycustomizeddialog rytoolbarkit)
    configure_file(cmake/${feature}.prf.in "${PROJECT_BINARY_DIR}/${feature}.prf" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${feature}.prf" DESTINATION "${RY_QMAKE_DIR}")
endforeach()
