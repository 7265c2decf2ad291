#pragma once

#include "olfoundation2_export.h"

#include <memory>
#include <string>

namespace Orlimo {

class IOLJsonValue;

/// Writes JSON (RFC 8259, UTF-8).
class OLFOUNDATION2_EXPORT IOLJsonWriter
{
public:
    IOLJsonWriter() = delete;

    /// Returns @p value as one line of JSON text, which IOLJsonReader::ReadJsonString() reads back;
    /// an empty pointer gives an empty text. What is nested deeper than the reader's 1,024 levels
    /// is written but not read back. May be called on any thread.
    static std::string WriteJsonString(std::shared_ptr<const IOLJsonValue> value);
};

} // namespace Orlimo
