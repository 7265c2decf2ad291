#include "IOLFileProvider.h"

#include <QtGlobal>

#include <string_view>

namespace Orlimo {

namespace {

#ifdef Q_OS_WIN
constexpr std::string_view separators = "/\\:"; // a file name may follow the drive at once
#else
constexpr std::string_view separators = "/";
#endif

std::size_t FileNameStart(const std::string &path)
{
    const std::size_t separator = path.find_last_of(separators);
    return separator == std::string::npos ? 0 : separator + 1;
}

} // namespace

std::string IOLFileProvider::RemovePathExtension(const std::string &path)
{
    const std::size_t start = FileNameStart(path);
    const std::size_t dot = path.rfind('.');
    const bool hasExtension = dot != std::string::npos && dot > start;
    if (!hasExtension || path.compare(start, std::string::npos, "..") == 0)
        return path;
    return path.substr(0, dot);
}

std::string IOLFileProvider::AppendPathExtension(const std::string &path,
                                                 const std::string &extension)
{
    return extension.empty() ? path : path + '.' + extension;
}

} // namespace Orlimo
