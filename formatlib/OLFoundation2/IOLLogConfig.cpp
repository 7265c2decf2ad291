#include "IOLLogConfig.h"

#include <QLoggingCategory>

#include <cstdarg>
#include <cstdio>
#include <new>
#include <string>

namespace Orlimo {

namespace {

Q_LOGGING_CATEGORY(logCategory, "orlimo")

// Formats into line, whose size leaves no room for more than the text; returns the text's length.
int FormatInto(std::string &line, const char *format, std::va_list arguments)
{
    std::va_list counted;
    va_copy(counted, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, counted);
    va_end(counted);
    if (length > 0) {
        line.resize(static_cast<std::size_t>(length));
        std::vsnprintf(line.data(), line.size() + 1, format, arguments);
    }
    return length;
}

} // namespace

// Without the memory for a line there is none.
int IOLLogConfig::Printf(const char *format, ...)
{
    if (!format)
        return -1;
    int length = -1;
    std::va_list arguments;
    va_start(arguments, format);
    try {
        std::string line;
        length = FormatInto(line, format, arguments);
        if (length >= 0)
            qCWarning(logCategory, "%s", line.c_str());
    } catch (const std::bad_alloc &) {
        length = -1;
    }
    va_end(arguments);
    return length;
}

} // namespace Orlimo
