#pragma once

#include "olfoundation2_export.h"

#include <string>

namespace Orlimo {

/// Works on UTF-8 texts. May be used on any thread.
class OLFOUNDATION2_EXPORT IOLStringHelper
{
public:
    IOLStringHelper() = delete;

    /// Returns @p text in lower case, by the full case mappings of the Unicode Standard without
    /// those that depend on the locale or on the neighbouring letters. Bytes that are not
    /// well-formed UTF-8 are kept as they are. A text in lower case comes back unchanged.
    static std::string ToLower(const std::string &text);
};

} // namespace Orlimo
