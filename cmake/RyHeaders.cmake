# SPDX-License-Identifier: MIT

# The public headers, and one forwarding header for each exported class: a file with the name of the
# class that includes the header with the same name in lower case. The build tree has the same folder
# as an installation, with links to the public headers. So a host that adds this project as a
# subdirectory includes the same files.

set(RY_PUBLIC_CLASSES
    dialog/RyAbstatcManager
    dialog/RyCusInterface
    dialog/RyCustomizedDialog
    ribbon/RyCRibbonPage
    ribbon/RyCRibbonWidget
    toolbareditor/RyCToolBarPage
    toolbareditor/RyCToolBarWidget
    toolbareditor/RyTreeItemMimeData
    toolbareditor/RyTreeWidget
    toolbarmanager/RyToolBarManager)

set(RY_BUILD_INCLUDEDIR "${PROJECT_BINARY_DIR}/include")
set(RY_PUBLIC_HEADERS "${PROJECT_SOURCE_DIR}/dialog/rycustomizeddialogexport.h")
set(RY_FORWARDING_HEADERS "")
foreach(path IN LISTS RY_PUBLIC_CLASSES)
    get_filename_component(class ${path} NAME)
    string(TOLOWER ${path} header)
    list(APPEND RY_PUBLIC_HEADERS "${PROJECT_SOURCE_DIR}/${header}.h")
    get_filename_component(header ${header} NAME)
    set(forwarding "${RY_BUILD_INCLUDEDIR}/RyCustomizedDialog/${class}")
    file(GENERATE OUTPUT "${forwarding}"
        CONTENT "// SPDX-License-Identifier: MIT\n\n#include \"${header}.h\"\n")
    list(APPEND RY_FORWARDING_HEADERS "${forwarding}")
endforeach()

file(MAKE_DIRECTORY "${RY_BUILD_INCLUDEDIR}/RyCustomizedDialog")
foreach(path IN LISTS RY_PUBLIC_HEADERS)
    get_filename_component(header "${path}" NAME)
    file(CREATE_LINK "${path}" "${RY_BUILD_INCLUDEDIR}/RyCustomizedDialog/${header}" SYMBOLIC)
endforeach()

foreach(folder IN ITEMS dialog ribbon toolbareditor toolbarmanager)
    target_include_directories(RyCustomizedDialog PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/${folder}>")
endforeach()
# The inner folder comes first: beside it is a folder with the name of one of the headers.
target_include_directories(RyCustomizedDialog PUBLIC
    "$<BUILD_INTERFACE:${RY_BUILD_INCLUDEDIR}/RyCustomizedDialog>"
    "$<BUILD_INTERFACE:${RY_BUILD_INCLUDEDIR}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}${RY_INCLUDE_FOLDER}/RyCustomizedDialog>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}${RY_INCLUDE_FOLDER}>")
