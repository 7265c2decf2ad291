# shellcheck shell=bash
# shellcheck disable=SC2034 # the scripts use what is set here
# What the scripts for Windows share: where Qt for Windows is, the Debian packages they need, and what
# they ask of programs and libraries.

windows_qt=$(realpath -m "${WINDOWS_QT:-${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/orlimo/windows-qt}")
windows_packages=(g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 mingw-w64-x86-64-dev)
wine_packages=(openbox wine64 xauth xvfb)
windows_compiler=x86_64-w64-mingw32-g++-posix
wine=/usr/lib/wine/wine64
wineserver=/usr/lib/wine/wineserver64
qt_host_cmake=/usr/lib/x86_64-linux-gnu/cmake
begun_mark=.begun # in the folder of Qt while it is installed
whole_mark=.whole # in it once everything is there, with the name and version of Debian's source

# is_whole FOLDER: whether it has a Qt for Windows that was built to the end.
is_whole() {
    [[ ! -e $1/$begun_mark && -s $1/$whole_mark && -e $1/bin/Qt6Widgets.dll && -e $1/plugins/platforms/qwindows.dll ]]
}

# imports FILE...: the names of the libraries that they load.
imports() {
    x86_64-w64-mingw32-objdump -p "$@" | sed -n 's/^\tDLL Name: //p' | sort -u
}
