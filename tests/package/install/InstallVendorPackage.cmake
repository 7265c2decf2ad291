# Installs the picker that TREE has built and checks that nothing of the format libraries comes along,
# which were found below LIBRARIES_PREFIX.
cmake_minimum_required(VERSION 3.25)

foreach(library IN ITEMS OLFoundation2 OLMediaCodecs OLMediaFormat)
    file(STRINGS "${TREE}/CMakeCache.txt" found REGEX "^${library}_DIR:")
    string(FIND "${found}" "=${LIBRARIES_PREFIX}/" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "${library} was not found below ${LIBRARIES_PREFIX}: ${found}")
    endif()
endforeach()

execute_process(COMMAND "${CMAKE_COMMAND}" --install "${TREE}" COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE installed RELATIVE "${PREFIX}" "${PREFIX}/*")
if(NOT installed MATCHES "libOLMediaFormatPopup\\.so" OR NOT installed MATCHES "IOLMediaFormatPopup\\.h")
    message(SEND_ERROR "The picker was not installed: ${installed}")
endif()
foreach(file IN LISTS installed)
    if(NOT file MATCHES "^(include|lib[^/]*/(.+/)?cmake)/OLMediaFormatPopup/"
            AND NOT file MATCHES "/libOLMediaFormatPopup\\.so[.0-9]*$")
        message(SEND_ERROR "Not a part of the picker: ${file}")
    endif()
endforeach()
