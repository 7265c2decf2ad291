#include "OLOutput.h"

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#endif

namespace Orlimo {

namespace {

#ifdef Q_OS_WIN

bool PrintToConsole(std::FILE *stream, const QString &text)
{
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode)
            && WriteConsoleW(handle, text.utf16(), static_cast<DWORD>(text.size()), nullptr,
                             nullptr);
}

#else

bool PrintToConsole(std::FILE *, const QString &)
{
    return false;
}

#endif

} // namespace

void Print(std::FILE *stream, const QString &text)
{
    if (!PrintToConsole(stream, text))
        std::fputs(qUtf8Printable(text), stream);
}

} // namespace Orlimo
