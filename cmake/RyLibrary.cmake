# SPDX-License-Identifier: MIT

# ry_set_up_library(target output_name symbol)
#
# What the libraries of this project have in common. The symbol is defined while the library itself is
# compiled.
function(ry_set_up_library target output_name symbol)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${output_name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        CXX_STANDARD ${RY_CXX_STANDARD}
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        AUTOMOC ON
        # So that moc does not wait for other libraries.
        AUTOGEN_ORIGIN_DEPENDS OFF
        DEFINE_SYMBOL ${symbol})
    target_compile_definitions(${target} PRIVATE
        QT_DEPRECATED_WARNINGS
        QT_DISABLE_DEPRECATED_BEFORE=${RY_NOT_DEPRECATED_SINCE}
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_CAST_TO_ASCII
        QT_NO_FOREACH
        QT_NO_KEYWORDS
        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
        QT_NO_URL_CAST_FROM_STRING
        QT_STRICT_ITERATORS)
    target_compile_features(${target} PUBLIC cxx_std_${RY_CXX_STANDARD})
    target_link_libraries(${target} PUBLIC ${RY_QT}::Widgets)
    ry_enable_warnings(${target})
    if(RYCUSTOMIZEDDIALOG_BUILD_FUZZERS)
        # Only the coverage of the libraries guides the fuzzers.
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
endfunction()
