#pragma once

#include "olfoundation2_export.h"

#include <string>

namespace Orlimo {

/// Works on the text of file paths; touches no file. May be used on any thread.
///
/// Paths are UTF-8 on every platform. Their parts are separated by slashes, on Windows by
/// backslashes too, where a file name may also follow the colon of a drive at once.
class OLFOUNDATION2_EXPORT IOLFileProvider
{
public:
    IOLFileProvider() = delete;

    /// Returns @p path without the last extension of its file name and without the dot before it.
    /// A path without an extension comes back unchanged; so do a file name that only begins with a
    /// dot and the names "." and "..".
    static std::string RemovePathExtension(const std::string &path);

    /// Returns @p path, a dot and @p extension, which is given without a dot. An empty extension
    /// leaves the path unchanged.
    static std::string AppendPathExtension(const std::string &path, const std::string &extension);
};

} // namespace Orlimo
