include_guard(GLOBAL)

include(GenerateExportHeader)

set(ORLIMO_CMAKE_DIR "${CMAKE_CURRENT_LIST_DIR}")

# The language level, warnings and Qt definitions that every target of the project shares. Unique
# symbols, which g++ makes of static variables in templates, would keep a library loaded for ever.
function(orlimo_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_KEYWORDS
        QT_NO_FOREACH
        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /permissive- /utf-8
            $<$<BOOL:${ORLIMO_WARNINGS_AS_ERRORS}>:/WX>)
    else()
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion
            $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>
            $<$<BOOL:${ORLIMO_WARNINGS_AS_ERRORS}>:-Werror>)
    endif()
    if(ORLIMO_SANITIZERS)
        set(sanitize "-fsanitize=${ORLIMO_SANITIZERS}")
        target_compile_options(${target} PRIVATE
            ${sanitize} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE ${sanitize})
    endif()
    if(ORLIMO_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage)
        target_link_options(${target} PRIVATE --coverage)
    endif()
endfunction()

# On ELF only the interfaces of the public headers leave the library: neither the instantiations of
# other libraries' templates nor unique symbols, one of which would keep the library loaded for ever.
# And a library names everything that it needs, but for the runtimes of sanitizers, which Clang gives
# to executables only.
function(_orlimo_limit_exports target)
    if(WIN32 OR APPLE)
        return()
    endif()
    set(script "${ORLIMO_CMAKE_DIR}/exports.map")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
    if(NOT ORLIMO_SANITIZERS)
        target_link_options(${target} PRIVATE "LINKER:--no-undefined")
    endif()
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()

# orlimo_add_library(name SOURCES ... HEADERS ... PUBLIC ... PRIVATE ... DEPENDENCIES ...)
#
# Makes the shared library and its alias Orlimo::<name>, and installs it with HEADERS, which are
# included by bare file name, as the CMake package <name>. PUBLIC and PRIVATE are the libraries it
# links; DEPENDENCIES are the find_dependency() calls of its package.
function(orlimo_add_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;PUBLIC;PRIVATE;DEPENDENCIES" ${ARGN})
    string(TOLOWER ${name} lower)

    add_library(${name} SHARED ${arg_SOURCES} ${arg_HEADERS})
    add_library(Orlimo::${name} ALIAS ${name})
    orlimo_configure_target(${name})
    _orlimo_limit_exports(${name})

    set(export_header "${CMAKE_CURRENT_BINARY_DIR}/export/${lower}_export.h")
    generate_export_header(${name} EXPORT_FILE_NAME "${export_header}")
    target_include_directories(${name}
        PUBLIC
            "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>"
            "$<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}/export>"
            "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${name}>")
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        EXPORT_NAME ${name}
        INSTALL_RPATH "$<IF:$<PLATFORM_ID:Linux>,$ORIGIN,>")

    _orlimo_install_package(${name} "${export_header}" "${arg_HEADERS}" "${arg_DEPENDENCIES}")
endfunction()

function(_orlimo_install_package name export_header headers dependencies)
    set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${name}")
    list(TRANSFORM dependencies REPLACE "^(.+)$" "find_dependency(\\1)")
    list(JOIN dependencies "\n" PACKAGE_DEPENDENCIES)
    set(PACKAGE_NAME ${name})

    install(TARGETS ${name} EXPORT ${name}Targets
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(FILES ${headers} "${export_header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${name}")
    install(EXPORT ${name}Targets NAMESPACE Orlimo:: DESTINATION "${package_dir}")

    configure_package_config_file("${ORLIMO_CMAKE_DIR}/PackageConfig.cmake.in"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake" INSTALL_DESTINATION "${package_dir}")
    write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake"
        COMPATIBILITY SameMajorVersion)
    install(FILES
        "${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake"
        DESTINATION "${package_dir}")
endfunction()
