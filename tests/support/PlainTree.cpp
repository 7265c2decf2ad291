#include "PlainTree.h"

#include "IOLFormatNode.h"
#include "IOLFormatPreset.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

using namespace Orlimo;

namespace Test {

namespace {

constexpr std::array<std::pair<const char *, const char *>, 3> wideLetters { {
        { "Ä", "ä" },
        { "Ж", "ж" },
        { "𐐀", "𐐨" },
} };

std::string Lowered(std::string text)
{
    for (char &letter : text) {
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    }
    for (const auto &[upper, lower] : wideLetters) {
        const std::string letter = upper;
        for (std::size_t at = text.find(letter); at != std::string::npos; at = text.find(letter))
            text.replace(at, letter.size(), lower);
    }
    return text;
}

std::string Quoted(const std::string &text)
{
    return '"' + text + '"';
}

} // namespace

PlainPreset ToPlain(const IOLFormatPreset &preset)
{
    return { preset.Name(), preset.Description(), preset.FaceID(),
             preset.CurrentVideoCodecIndex() };
}

PlainNode AttributesOf(const IOLFormatNode &node)
{
    return { node.Name(), node.Description(), node.FaceID(), {}, {} };
}

PlainNode ToPlain(const IOLFormatNode &node)
{
    PlainNode plain = AttributesOf(node);
    for (int i = 0; i < node.PresetCount(); ++i)
        plain.presets.push_back(ToPlain(*node.PresetAt(i)));
    for (int i = 0; i < node.ChildCount(); ++i)
        plain.children.push_back(ToPlain(*node.ChildAt(i)));
    return plain;
}

bool ContainsInAnyCase(const std::string &text, const std::string &keyword)
{
    return Lowered(text).find(Lowered(keyword)) != std::string::npos;
}

PlainNode Found(const PlainNode &node, const std::string &keyword)
{
    PlainNode result { node.name, node.description, node.faceID, {}, {} };
    std::ranges::copy_if(node.presets, std::back_inserter(result.presets),
                         [&](const PlainPreset &preset) {
                             return ContainsInAnyCase(preset.name, keyword)
                                     || ContainsInAnyCase(preset.description, keyword);
                         });
    for (const PlainNode &child : node.children) {
        const bool whole = ContainsInAnyCase(child.name, keyword);
        PlainNode kept = whole ? child : Found(child, keyword);
        if (whole || !kept.presets.empty() || !kept.children.empty())
            result.children.push_back(std::move(kept));
    }
    return result;
}

std::string Describe(const PlainPreset &preset)
{
    return Quoted(preset.name) + '(' + Quoted(preset.description) + ", "
            + std::to_string(preset.faceID) + ", " + std::to_string(preset.videoCodec) + ')';
}

std::string Describe(const PlainNode &node)
{
    std::string text = Quoted(node.name) + '(' + Quoted(node.description) + ", "
            + std::to_string(node.faceID) + ')';
    for (const PlainPreset &preset : node.presets)
        text += ' ' + Describe(preset);
    for (const PlainNode &child : node.children)
        text += " { " + Describe(child) + " }";
    return text;
}

} // namespace Test
