# Compares the symbols that LIBRARY exports with LIST: one demangled name per line, in byte order. NM
# is the nm that goes with the compiler; for a DLL, OBJDUMP and CXXFILT are its objdump and c++filt.
#
# The compilers make several symbols of one constructor or destructor, and differ in which; they have
# the same name here. The names are those of libstdc++, with ">>" closing two argument lists.
cmake_minimum_required(VERSION 3.25)

set(symbols "")
set(unique "")

function(add_symbol name)
    string(REGEX REPLACE "> (>+)" ">\\1" name "${name}")
    string(REGEX REPLACE "> (>+)" ">\\1" name "${name}")
    list(APPEND symbols "${name}")
    set(symbols "${symbols}" PARENT_SCOPE)
endfunction()

# Sets symbols and unique from the dynamic symbol table of an ELF library.
macro(read_symbol_table)
    execute_process(COMMAND "${NM}" --dynamic --demangle --defined-only "${LIBRARY}"
        OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" lines "${table}")
    foreach(line IN LISTS lines)
        if(NOT line MATCHES "^[0-9a-f]+ (.) (.+)$")
            message(FATAL_ERROR "Not a line of a symbol table: ${line}")
        endif()
        set(kind "${CMAKE_MATCH_1}")
        set(name "${CMAKE_MATCH_2}")
        add_symbol("${name}")
        if(kind STREQUAL "u")
            list(APPEND unique "${name}")
        endif()
    endforeach()
endmacro()

# Sets symbols from the export table of a DLL.
macro(read_export_table)
    execute_process(COMMAND "${OBJDUMP}" --private-headers "${LIBRARY}"
        OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCH "Name Pointer. Table[^\n]*\n(\t[^\n]+\n)+" table "${headers}")
    string(REGEX MATCHALL "[A-Za-z0-9_$@?.]+\n" mangled "${table}")
    list(TRANSFORM mangled STRIP)
    list(REMOVE_ITEM mangled Table)
    if(NOT mangled)
        message(FATAL_ERROR "${LIBRARY} exports nothing")
    endif()
    execute_process(COMMAND "${CXXFILT}" ${mangled}
        OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" names "${table}")
    foreach(name IN LISTS names)
        add_symbol("${name}")
    endforeach()
endmacro()

if(OBJDUMP)
    read_export_table()
    # The name of a type has no use outside of its type information.
    set(left_out "^typeinfo name for ")
else()
    read_symbol_table()
    set(left_out "^$")
endif()
list(SORT symbols)
list(REMOVE_DUPLICATES symbols)

file(STRINGS "${LIST}" expected)
set(in_order ${expected})
list(FILTER expected EXCLUDE REGEX "${left_out}")
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
set(sorted ${in_order})
list(SORT sorted)
list(REMOVE_DUPLICATES sorted)
if(NOT sorted STREQUAL in_order)
    message(SEND_ERROR "${LIST} is not in byte order or has a name twice")
endif()
