# Debian's MinGW-w64 for 64-bit Windows, with the thread model of POSIX, whose std::thread and
# std::future the picker needs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The linker writes no time, so that the same sources make the same files.
foreach(kind IN ITEMS EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-Wl,--no-insert-timestamp")
endforeach()

# Where Qt for Windows is; scripts/windows-qt makes it.
if(NOT "$ENV{WINDOWS_QT}" STREQUAL "")
    file(REAL_PATH "$ENV{WINDOWS_QT}" wanted)
    file(REAL_PATH "${ORLIMO_WINDOWS_QT}" present)
    if(ORLIMO_WINDOWS_QT AND NOT present STREQUAL wanted)
        message(FATAL_ERROR "This build folder is one with the Qt in ${ORLIMO_WINDOWS_QT}; to use that in"
            " $ENV{WINDOWS_QT}, configure it with --fresh")
    endif()
    set(ORLIMO_WINDOWS_QT "$ENV{WINDOWS_QT}" CACHE PATH "The folder of Qt for Windows" FORCE)
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ORLIMO_WINDOWS_QT)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${ORLIMO_WINDOWS_QT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What is run during the build, and the tests.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/windows-run")
