# Checks that neither the CMake files and headers below PREFIX nor the run paths of its programs and
# libraries name any of FOLDERS, which "|" separates.
cmake_minimum_required(VERSION 3.25)

string(REPLACE "|" ";" folders "${FOLDERS}")

function(check_names_no_folder text file)
    foreach(folder IN LISTS folders)
        string(FIND "${text}" "${folder}" place)
        if(NOT place EQUAL -1)
            message(SEND_ERROR "${file} names ${folder}")
        endif()
    endforeach()
endfunction()

file(GLOB_RECURSE texts "${PREFIX}/*.cmake" "${PREFIX}/*.h")
if(NOT texts MATCHES "OLMediaFormatPopupConfig.cmake" OR NOT texts MATCHES "IOLMediaFormatPopup.h")
    message(FATAL_ERROR "There is no package below ${PREFIX}")
endif()
foreach(file IN LISTS texts)
    file(READ "${file}" text)
    check_names_no_folder("${text}" "${file}")
endforeach()

file(GLOB_RECURSE binaries "${PREFIX}/bin/*" "${PREFIX}/*.so")
if(NOT binaries)
    message(FATAL_ERROR "There are no libraries below ${PREFIX}")
endif()
foreach(file IN LISTS binaries)
    execute_process(COMMAND "${READELF}" --dynamic "${file}"
        OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "\\((RUNPATH|RPATH)\\)[^\n]*" run_paths "${dynamic}")
    if(NOT run_paths MATCHES "\\$ORIGIN")
        message(SEND_ERROR "${file} does not look for libraries beside itself: ${run_paths}")
    endif()
    check_names_no_folder("${run_paths}" "${file}")
endforeach()
