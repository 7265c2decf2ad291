#pragma once

#include <initializer_list>
#include <memory>
#include <string>

namespace Orlimo {
class IOLFormatNode;
class IOLFormatPreset;
} // namespace Orlimo

namespace Test {

std::shared_ptr<Orlimo::IOLFormatPreset> MakePreset(const std::string &name,
                                                    const std::string &description = {},
                                                    int faceID = 0);

// A node without presets and children.
std::shared_ptr<Orlimo::IOLFormatNode> MakeNode(const std::string &name,
                                                const std::string &description = {},
                                                int faceID = 0);

// A format with presets of these names.
std::shared_ptr<Orlimo::IOLFormatNode> MakeFormat(const std::string &name,
                                                  std::initializer_list<const char *> presets);

// A category with these formats, whose parent it becomes.
std::shared_ptr<Orlimo::IOLFormatNode> MakeCategory(
        const std::string &name,
        std::initializer_list<std::shared_ptr<Orlimo::IOLFormatNode>> formats);

} // namespace Test
