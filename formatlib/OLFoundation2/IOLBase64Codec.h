#pragma once

#include "olfoundation2_export.h"

#include <string>
#include <string_view>

namespace Orlimo {

/// Standard base64 (RFC 4648, section 4: with padding, without line breaks). May be used on any
/// thread.
class OLFOUNDATION2_EXPORT IOLBase64Codec
{
public:
    IOLBase64Codec() = delete;

    /// Returns the base64 text of @p bytes; no bytes give an empty text.
    static std::string Encode(std::string_view bytes);

    /// Returns the bytes whose base64 text is @p text, or nothing if @p text is empty or is not
    /// base64.
    static std::string Decode(std::string_view text);
};

} // namespace Orlimo
