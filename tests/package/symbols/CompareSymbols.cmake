# Compares the symbols that LIBRARY exports with LIST: one demangled name per line, in byte order. NM
# is the nm that goes with the compiler.
#
# The compilers make several symbols of one constructor or destructor, and differ in which; they have
# the same name here. The names are those of libstdc++, with ">>" closing two argument lists.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND "${NM}" --dynamic --demangle --defined-only "${LIBRARY}"
    OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)

set(symbols "")
set(unique "")
string(REGEX MATCHALL "[^\n]+" lines "${table}")
foreach(line IN LISTS lines)
    if(NOT line MATCHES "^[0-9a-f]+ (.) (.+)$")
        message(FATAL_ERROR "Not a line of a symbol table: ${line}")
    endif()
    set(kind "${CMAKE_MATCH_1}")
    string(REGEX REPLACE "> (>+)" ">\\1" name "${CMAKE_MATCH_2}")
    string(REGEX REPLACE "> (>+)" ">\\1" name "${name}")
    list(APPEND symbols "${name}")
    if(kind STREQUAL "u")
        list(APPEND unique "${name}")
    endif()
endforeach()
list(SORT symbols)
list(REMOVE_DUPLICATES symbols)

file(STRINGS "${LIST}" expected)
set(missing ${expected})
list(REMOVE_ITEM missing ${symbols})
set(added ${symbols})
list(REMOVE_ITEM added ${expected})

foreach(name IN LISTS missing)
    message(SEND_ERROR " No longer exported: ${name}")
endforeach()
foreach(name IN LISTS added)
    message(SEND_ERROR " Exported without being in the list: ${name}")
endforeach()
foreach(name IN LISTS unique)
    message(SEND_ERROR " A unique symbol keeps the library loaded for ever: ${name}")
endforeach()
if(NOT expected)
    message(SEND_ERROR "${LIST} is empty")
endif()
set(sorted ${expected})
list(SORT sorted)
list(REMOVE_DUPLICATES sorted)
if(NOT sorted STREQUAL expected)
    message(SEND_ERROR "${LIST} is not in byte order or has a name twice")
endif()
