#pragma once

#include "olfoundation2_export.h"

#include <memory>
#include <string>

namespace Orlimo {

class IOLError;
class IOLJsonValue;

/// Reads JSON (RFC 8259, UTF-8), nested at most 1,024 levels; a byte order mark at the start is
/// ignored.
///
/// Both functions may be called on any thread. They log nothing, throw nothing but for lack of
/// memory, and return an empty pointer on failure; then, if @p error is not null, it is set to the
/// reason. On success @p error is left alone.
class OLFOUNDATION2_EXPORT IOLJsonReader
{
public:
    IOLJsonReader() = delete;

    /// Parses the file at @p path. Anything but a regular file of at most 256 MiB is refused
    /// unread.
    ///
    /// The path is UTF-8 on every platform, with slashes or, on Windows, backslashes too; a
    /// relative one starts at the working folder of the process. The error names it as it was
    /// given.
    static std::shared_ptr<IOLJsonValue> ReadJsonFile(std::string path,
                                                      std::shared_ptr<const IOLError> *error);

    /// Parses @p text; an empty text is a failure.
    static std::shared_ptr<IOLJsonValue> ReadJsonString(std::string text,
                                                        std::shared_ptr<const IOLError> *error);
};

} // namespace Orlimo
