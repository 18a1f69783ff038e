# SPDX-License-Identifier: MIT

# ry_add_resources(library file.qrc visibility [rcc option...])
#
# Compiles resources into a library. The visibility is that of the functions that register them.
function(ry_add_resources library qrc visibility)
    # Old resource compilers know only the first format and have no option for it.
    set(options ${ARGN})
    if(NOT ${RY_QT}Core_VERSION VERSION_LESS 5.13)
        list(APPEND options --format-version 1)
    endif()
    if(RYCUSTOMIZEDDIALOG_QT EQUAL 6)
        qt6_add_resources(sources ${qrc} OPTIONS ${options})
    else()
        qt5_add_resources(sources ${qrc} OPTIONS ${options})
    endif()
    # A custom command works only for targets of its own folder, and the library may be of another.
    add_library(${library}Resources OBJECT ${sources})
    set_target_properties(${library}Resources PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET ${visibility})
    target_sources(${library} PRIVATE $<TARGET_OBJECTS:${library}Resources>)
endfunction()
