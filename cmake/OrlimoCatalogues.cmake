include_guard(GLOBAL)

find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

add_custom_target(orlimo_update_translations)

# orlimo_add_catalogues(target COLLECTION.qrc.in TRANSLATIONS x.ts ... TEXTS_FROM folders and forms)
#
# Compiles the translation sources and embeds them in the target, as the template of a resource
# collection says: in it @CATALOGUES@ is the folder of x.qm and so on, @RESOURCES@ its own.
#
# The target orlimo_update_translations brings the sources up to date with the C++ in the folders of
# TEXTS_FROM and with the forms named there.
function(orlimo_add_catalogues target template)
    cmake_parse_arguments(arg "" "" "TRANSLATIONS;TEXTS_FROM" ${ARGN})
    get_filename_component(RESOURCES "${template}" DIRECTORY)
    get_filename_component(collection "${template}" NAME_WLE)
    set(CATALOGUES "${CMAKE_CURRENT_BINARY_DIR}/catalogues")

    set_source_files_properties(${arg_TRANSLATIONS} PROPERTIES OUTPUT_LOCATION "${CATALOGUES}")
    qt6_add_translation(catalogues ${arg_TRANSLATIONS})
    configure_file("${template}" "${collection}" @ONLY)
    target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${collection}" ${catalogues})
    set_target_properties(${target} PROPERTIES AUTORCC ON)

    add_custom_target(${target}_update_translations
        COMMAND Qt6::lupdate -no-obsolete -locations none -extensions cpp,h
            ${arg_TEXTS_FROM} -ts ${arg_TRANSLATIONS}
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
        VERBATIM)
    add_dependencies(orlimo_update_translations ${target}_update_translations)
endfunction()
