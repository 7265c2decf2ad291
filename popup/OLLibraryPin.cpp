#include "OLLibraryPin.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace Orlimo {

namespace {

const char anchorInLibrary = 0;

} // namespace

#ifdef Q_OS_WIN

void KeepLibraryLoaded()
{
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&anchorInLibrary), &library);
}

#else

void KeepLibraryLoaded()
{
    Dl_info library;
    if (dladdr(&anchorInLibrary, &library) != 0)
        dlopen(library.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
}

#endif

} // namespace Orlimo
