# SPDX-License-Identifier: MIT

# ry_add_headers(target FOLDER folder HEADERS file... CLASSES class...)
#
# The public headers of a library, and one forwarding header for each exported class: a file with the name
# of the class that includes the header with the same name in lower case. The build tree has the same
# folder as an installation, with links to the public headers. So a host that adds this project as a
# subdirectory includes the same files. The files and classes may be in subfolders.
function(ry_add_headers target)
    cmake_parse_arguments(ARG "" "FOLDER" "HEADERS;CLASSES" ${ARGN})
    set(build_includedir "${PROJECT_BINARY_DIR}/include")
    set(headers "")
    foreach(file IN LISTS ARG_HEADERS)
        list(APPEND headers "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
    endforeach()
    set(forwarding_headers "")
    foreach(path IN LISTS ARG_CLASSES)
        get_filename_component(class ${path} NAME)
        string(TOLOWER ${path} header)
        list(APPEND headers "${CMAKE_CURRENT_SOURCE_DIR}/${header}.h")
        get_filename_component(header ${header} NAME)
        set(forwarding "${build_includedir}/${ARG_FOLDER}/${class}")
        file(GENERATE OUTPUT "${forwarding}"
            CONTENT "// SPDX-License-Identifier: MIT\n\n#include \"${header}.h\"\n")
        list(APPEND forwarding_headers "${forwarding}")
    endforeach()

    file(MAKE_DIRECTORY "${build_includedir}/${ARG_FOLDER}")
    foreach(path IN LISTS headers)
        get_filename_component(header "${path}" NAME)
        get_filename_component(folder "${path}" DIRECTORY)
        file(CREATE_LINK "${path}" "${build_includedir}/${ARG_FOLDER}/${header}" SYMBOLIC)
        target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${folder}>")
    endforeach()
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${build_includedir}/${ARG_FOLDER}>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}${RY_INCLUDE_FOLDER}/${ARG_FOLDER}>")
    set_property(GLOBAL APPEND PROPERTY RY_PUBLIC_HEADERS ${headers})
    install(FILES ${headers} ${forwarding_headers}
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}${RY_INCLUDE_FOLDER}/${ARG_FOLDER}")
endfunction()
