#include "RPFmtPresetNaming.h"

namespace Orlimo {

namespace {

std::string BaseName(const std::string &presetName, const std::string &nodeName)
{
    if (presetName.empty())
        return nodeName;
    return NamesFormat(presetName, nodeName) ? presetName : nodeName + ' ' + presetName;
}

} // namespace

bool NamesFormat(const std::string &presetName, const std::string &nodeName)
{
    return presetName.find(nodeName) != std::string::npos;
}

std::string ProposeCustomName(const std::string &presetName, const std::string &nodeName,
                              const std::function<bool(const std::string &)> &isInUse)
{
    const std::string base = BaseName(presetName, nodeName) + "-custom";
    int number = 0;
    while (isInUse(base + std::to_string(number)))
        ++number;
    return base + std::to_string(number);
}

} // namespace Orlimo
