# SPDX-License-Identifier: MIT

# What `cpack` gives: the Debian packages of the library, its headers, its reference and its examples.
# Built by package.sh; it takes an install prefix of /usr, and the reference.

include(RyDocs)

find_program(RY_GENSYMBOLS dpkg-gensymbols)
if(NOT RY_GENSYMBOLS)
    message(FATAL_ERROR "The Debian packages take dpkg-dev.")
endif()

set(RY_DEBIAN_DIR "${PROJECT_SOURCE_DIR}/packaging/debian")
set(RY_DEBIAN_BUILD_DIR "${PROJECT_BINARY_DIR}/debian")
set(RY_RUNTIME librycustomizeddialog${PROJECT_VERSION_MAJOR})

# Debian's change log says which packaging of the version this is.
file(STRINGS "${RY_DEBIAN_DIR}/changelog" RY_NEWEST LIMIT_COUNT 1)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${RY_DEBIAN_DIR}/changelog")
if(NOT RY_NEWEST MATCHES "^rycustomizeddialog \\(([0-9.]+)-([0-9]+)\\)"
        OR NOT CMAKE_MATCH_1 VERSION_EQUAL PROJECT_VERSION)
    message(FATAL_ERROR "packaging/debian/changelog has no entry for ${PROJECT_VERSION}: ${RY_NEWEST}")
endif()
set(RY_REVISION "${CMAKE_MATCH_2}")

file(STRINGS "${RY_DEBIAN_DIR}/changelog" RY_MAINTAINER REGEX "^ -- " LIMIT_COUNT 1)
string(REGEX REPLACE "^ -- (.*>)  .*" "\\1" RY_MAINTAINER "${RY_MAINTAINER}")

# The exported symbols and since when each is there. A symbol that is not listed, or one that is gone,
# fails the build.
set(RY_SYMBOLS "${RY_DEBIAN_BUILD_DIR}/symbols")
add_custom_command(OUTPUT "${RY_SYMBOLS}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${RY_DEBIAN_BUILD_DIR}"
    COMMAND "${RY_GENSYMBOLS}" -c4 -p${RY_RUNTIME} -v${PROJECT_VERSION}-${RY_REVISION}
        "-I${RY_DEBIAN_DIR}/${RY_RUNTIME}.symbols" "-e$<TARGET_FILE:RyCustomizedDialog>"
        "-O${RY_SYMBOLS}"
    DEPENDS RyCustomizedDialog "${RY_DEBIAN_DIR}/${RY_RUNTIME}.symbols"
    COMMENT "Comparing the exported symbols"
    VERBATIM)

function(ry_compress file name)
    add_custom_command(OUTPUT "${RY_DEBIAN_BUILD_DIR}/${name}.gz"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${RY_DEBIAN_BUILD_DIR}"
        COMMAND gzip -9nc "${PROJECT_SOURCE_DIR}/${file}" > "${RY_DEBIAN_BUILD_DIR}/${name}.gz"
        DEPENDS "${PROJECT_SOURCE_DIR}/${file}"
        VERBATIM)
endfunction()
ry_compress(CHANGELOG.md changelog)
ry_compress(packaging/debian/changelog changelog.Debian)
set(RY_CHANGE_LOGS "${RY_DEBIAN_BUILD_DIR}/changelog.gz" "${RY_DEBIAN_BUILD_DIR}/changelog.Debian.gz")
add_custom_target(RyCustomizedDialogPackages ALL DEPENDS "${RY_SYMBOLS}" ${RY_CHANGE_LOGS})

# ry_add_package(component name summary text fields...)
#
# Makes the component a package. Each of the fields is a name of CPack's and a value.
macro(ry_add_package component name summary text)
    string(TOUPPER RyCustomizedDialog_${component} _component)
    set(CPACK_DEBIAN_${_component}_PACKAGE_NAME ${name})
    set(CPACK_DEBIAN_${_component}_DESCRIPTION "${summary}\n${RY_DESCRIPTION}\n.\n${text}")
    set(_fields ${ARGN})
    while(_fields)
        list(POP_FRONT _fields _field _value)
        set(CPACK_DEBIAN_${_component}_PACKAGE_${_field} "${_value}")
    endwhile()
    install(FILES "${RY_DEBIAN_DIR}/copyright" ${RY_CHANGE_LOGS}
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}"
        COMPONENT RyCustomizedDialog_${component})
    list(APPEND CPACK_COMPONENTS_ALL RyCustomizedDialog_${component})
endmacro()

set(RY_DESCRIPTION "\
RyCustomizedDialog lets the users of a Qt 5 application make its toolbars
their own. The application registers its actions and toolbars, opens one
dialog, and keeps one byte array between runs.")
set(CPACK_COMPONENTS_ALL "")

# CPack 3.25 knows no field Multi-Arch, which therefore goes along with the section. The files below
# "none" do not exist: their names keep CPack from writing scripts that call ldconfig, which the trigger
# does. It warns of them.
ry_add_package(Runtime ${RY_RUNTIME}
    "Qt 5 dialog in which users customize toolbars - library"
    "This package contains the shared library."
    SECTION "libs\nMulti-Arch: same"
    SHLIBDEPS ON)
set(CPACK_DEBIAN_RYCUSTOMIZEDDIALOG_RUNTIME_PACKAGE_CONTROL_EXTRA
    "${RY_SYMBOLS}" "${RY_DEBIAN_DIR}/triggers"
    "${RY_DEBIAN_DIR}/none/postinst" "${RY_DEBIAN_DIR}/none/postrm")
# CPack would leave sections that nobody needs.
install(CODE "execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-unneeded
    --remove-section=.comment --remove-section=.note
    \"\$ENV{DESTDIR}${CMAKE_INSTALL_FULL_LIBDIR}/libRyCustomizedDialog.so.${PROJECT_VERSION}\")"
    COMPONENT RyCustomizedDialog_Runtime)

ry_add_package(Development librycustomizeddialog-dev
    "Qt 5 dialog in which users customize toolbars - development files"
    "This package contains the headers, and what CMake, pkg-config and qmake\nneed to find the library."
    SECTION "libdevel\nMulti-Arch: same"
    DEPENDS "${RY_RUNTIME} (= ${PROJECT_VERSION}-${RY_REVISION}), qtbase5-dev (>= 5.6)"
    SUGGESTS "librycustomizeddialog-doc, librycustomizeddialog-examples")

ry_add_package(Documentation librycustomizeddialog-doc
    "Qt 5 dialog in which users customize toolbars - documentation"
    "This package contains the guide, and the reference of the classes for\nbrowsers and for Qt Assistant."
    SECTION "doc\nMulti-Arch: foreign"
    SUGGESTS "librycustomizeddialog-examples, qttools5-dev-tools")
install(DIRECTORY "${RY_DOCS_DIR}/html"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/librycustomizeddialog-doc"
    COMPONENT RyCustomizedDialog_Documentation
    PATTERN index.qhp EXCLUDE)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/librycustomizeddialog-doc/guide"
    COMPONENT RyCustomizedDialog_Documentation
    FILES_MATCHING PATTERN "*.md" PATTERN "images/*" PATTERN "icons/*" PATTERN "*.qrc"
    PATTERN pictures EXCLUDE)
# The guide's links lead to ../examples, and those of the examples to ../../docs: each is a package.
file(MAKE_DIRECTORY "${RY_DEBIAN_BUILD_DIR}")
file(CREATE_LINK ../librycustomizeddialog-examples/examples "${RY_DEBIAN_BUILD_DIR}/examples" SYMBOLIC)
file(CREATE_LINK ../librycustomizeddialog-doc/guide "${RY_DEBIAN_BUILD_DIR}/docs" SYMBOLIC)
install(FILES "${RY_DEBIAN_BUILD_DIR}/examples"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/librycustomizeddialog-doc"
    COMPONENT RyCustomizedDialog_Documentation)
install(FILES "${RY_DEBIAN_BUILD_DIR}/docs"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/librycustomizeddialog-examples"
    COMPONENT RyCustomizedDialog_Examples)
install(FILES "${RY_DOCS_DIR}/RyCustomizedDialog.qch"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/qt5/doc"
    COMPONENT RyCustomizedDialog_Documentation)
install(FILES "${RY_DEBIAN_DIR}/librycustomizeddialog-doc.doc-base"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc-base"
    COMPONENT RyCustomizedDialog_Documentation
    RENAME librycustomizeddialog-doc.librycustomizeddialog)

ry_add_package(Examples librycustomizeddialog-examples
    "Qt 5 dialog in which users customize toolbars - examples"
    "This package contains the sources of applications that use the library."
    SECTION "doc\nMulti-Arch: foreign"
    RECOMMENDS "librycustomizeddialog-dev"
    SUGGESTS "libqt5svg5-dev, librycustomizeddialog-doc")
file(GLOB RY_EXAMPLES CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*/CMakeLists.txt")
foreach(example IN LISTS RY_EXAMPLES)
    get_filename_component(example "${example}" DIRECTORY)
    install(DIRECTORY "${example}"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/librycustomizeddialog-examples/examples"
        COMPONENT RyCustomizedDialog_Examples
        PATTERN __pycache__ EXCLUDE
        PATTERN "*.sh" PERMISSIONS
            OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endforeach()

foreach(component IN ITEMS DOCUMENTATION EXAMPLES)
    set(CPACK_DEBIAN_RYCUSTOMIZEDDIALOG_${component}_PACKAGE_ARCHITECTURE all)
endforeach()
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_DEBIAN_PACKAGE_RELEASE "${RY_REVISION}")
set(CPACK_DEBIAN_PACKAGE_SOURCE rycustomizeddialog)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${RY_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
