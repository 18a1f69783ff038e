# SPDX-License-Identifier: MIT

# Chooses the Qt to build with, and what this flavour of the libraries is called. That for Qt 5
# came first and has the plain names.

set(RY_DEFAULT_QT 5)
if(TARGET Qt6::Core AND NOT TARGET Qt5::Core)
    # A host that has this as a subdirectory has found its Qt already.
    set(RY_DEFAULT_QT 6)
endif()
set(RYCUSTOMIZEDDIALOG_QT ${RY_DEFAULT_QT} CACHE STRING "The Qt to build with: 5 or 6")
set_property(CACHE RYCUSTOMIZEDDIALOG_QT PROPERTY STRINGS 5 6)

if(RYCUSTOMIZEDDIALOG_QT STREQUAL "5")
    set(RY_QT_MINIMUM 5.6)
    set(RY_CXX_STANDARD 11)
    set(RY_NAME RyCustomizedDialog)
    set(RY_KIT_NAME RyToolBarKit)
    set(RY_INCLUDE_FOLDER "")
elseif(RYCUSTOMIZEDDIALOG_QT STREQUAL "6")
    set(RY_QT_MINIMUM 6.2)
    set(RY_CXX_STANDARD 17)
    set(RY_NAME RyCustomizedDialog-qt6)
    set(RY_KIT_NAME RyToolBarKit-qt6)
    set(RY_INCLUDE_FOLDER /${RY_NAME})
else()
    message(FATAL_ERROR "RYCUSTOMIZEDDIALOG_QT is ${RYCUSTOMIZEDDIALOG_QT}, but must be 5 or 6.")
endif()
set(RY_QT Qt${RYCUSTOMIZEDDIALOG_QT})
find_package(${RY_QT} ${RY_QT_MINIMUM} REQUIRED COMPONENTS Widgets)

# Our own builds use nothing that is deprecated in their Qt 6. A later Qt may deprecate more, which
# must not end the build of somebody else.
set(RY_NOT_DEPRECATED_SINCE 0x050600)
if(RYCUSTOMIZEDDIALOG_QT EQUAL 6)
    set(RY_NOT_DEPRECATED_SINCE 0x060200)
    if(RYCUSTOMIZEDDIALOG_WARNINGS_AS_ERRORS)
        math(EXPR RY_NOT_DEPRECATED_SINCE "0x060000 + (${Qt6_VERSION_MINOR} << 8)"
            OUTPUT_FORMAT HEXADECIMAL)
    endif()
endif()

# One program can only have one Qt. An installed package makes the same check.
get_property(RY_OTHER_QT GLOBAL PROPERTY RYCUSTOMIZEDDIALOG_QT)
if(RY_OTHER_QT AND NOT RY_OTHER_QT EQUAL RYCUSTOMIZEDDIALOG_QT)
    message(FATAL_ERROR "This build already uses RyCustomizedDialog for Qt ${RY_OTHER_QT}.")
endif()
set_property(GLOBAL PROPERTY RYCUSTOMIZEDDIALOG_QT ${RYCUSTOMIZEDDIALOG_QT})
