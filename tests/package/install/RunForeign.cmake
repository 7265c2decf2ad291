# Runs the foreign program of TREE with the files in FORMATS and with its settings below SETTINGS.
# The package it was built with must be the one below EXPECTED_PREFIX.
cmake_minimum_required(VERSION 3.25)

file(STRINGS "${TREE}/CMakeCache.txt" found REGEX "^OLMediaFormatPopup_DIR:")
string(FIND "${found}" "=${EXPECTED_PREFIX}/" place)
if(place EQUAL -1)
    message(FATAL_ERROR "The package was not found below ${EXPECTED_PREFIX}: ${found}")
endif()

file(REMOVE_RECURSE "${SETTINGS}")
execute_process(
    COMMAND "${CMAKE_COMMAND}" -E env "XDG_CONFIG_HOME=${SETTINGS}" QT_QPA_PLATFORM=offscreen
        "${TREE}/foreign" "${FORMATS}/formats.json" "${FORMATS}/formats.icfg"
    COMMAND_ERROR_IS_FATAL ANY)

file(STRINGS "${SETTINGS}/Foreign Company/Foreign Application.ini" stored
    REGEX "^custom_format_preset=.")
if(NOT stored)
    message(FATAL_ERROR "The custom preset is not in the settings")
endif()
