#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Orlimo {
class IOLFormatNode;
class IOLFormatPreset;
} // namespace Orlimo

namespace Test {

// A format tree as plain values, and what a search in it is to find.

struct PlainPreset
{
    std::string name;
    std::string description;
    int faceID = 0;
    int videoCodec = -1; // the index of the chosen encoder

    bool operator==(const PlainPreset &) const = default;
};

struct PlainNode
{
    std::string name;
    std::string description;
    int faceID = 0;
    std::vector<PlainPreset> presets;
    std::vector<PlainNode> children;

    bool operator==(const PlainNode &) const = default;
};

PlainPreset ToPlain(const Orlimo::IOLFormatPreset &preset);
PlainNode ToPlain(const Orlimo::IOLFormatNode &node);      // the whole tree
PlainNode AttributesOf(const Orlimo::IOLFormatNode &node); // without presets and children

// Whether the keyword occurs in the text in any letter case. Knows the ASCII letters and those that
// the random tests use.
bool ContainsInAnyCase(const std::string &text, const std::string &keyword);

// The tree with only what matches the keyword, which is not empty: presets by name or description,
// children by name with all that they hold, and children that hold what matches.
PlainNode Found(const PlainNode &node, const std::string &keyword);

// For messages.
std::string Describe(const PlainPreset &preset);
std::string Describe(const PlainNode &node);

} // namespace Test
