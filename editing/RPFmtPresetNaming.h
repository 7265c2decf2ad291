#pragma once

#include <functional>
#include <string>

namespace Orlimo {

// The two ways in which the editing dialog puts the names of a format node and of a preset
// together. Both texts are UTF-8, and a name contains another where it occurs in it byte by byte.

// Whether the preset's name says the format already.
bool NamesFormat(const std::string &presetName, const std::string &nodeName);

// The name to propose for a new custom preset: "-custom" and the first number from 0 on for which
// isInUse(name) is false, after the preset's name and, unless that says it, the format's. What
// comes out of a line edit is the very name: it is valid UTF-8, and where it would be longer than a
// line edit takes, the part before "-custom" is shortened.
std::string ProposeCustomName(const std::string &presetName, const std::string &nodeName,
                              const std::function<bool(const std::string &name)> &isInUse);

} // namespace Orlimo
