#pragma once

#include "olfoundation2_export.h"

namespace Orlimo {

/// The log of the format libraries and the picker.
class OLFOUNDATION2_EXPORT IOLLogConfig
{
public:
    IOLLogConfig() = delete;

    /// Writes one line, formatted like std::printf from UTF-8 texts, as a warning of the Qt logging
    /// category "orlimo", which a host filters and redirects with Qt's own means.
    ///
    /// May be called on any thread. Returns the number of bytes of the line, or a negative number
    /// and writes nothing if @p format is null or if the compiler's std::vsnprintf cannot format
    /// it; that of MinGW leaves out characters that it cannot convert.
    static int Printf(const char *format, ...);
};

} // namespace Orlimo
